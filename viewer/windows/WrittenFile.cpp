// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/WrittenFile.h"

#include <QFileDevice>

namespace Windows {

// A disk that is nearly full takes a part at first; only what comes after that tells why it is
// refused.
bool isWritten(QFileDevice &file)
{
    return file.flush() || file.flush();
}

} // namespace Windows
