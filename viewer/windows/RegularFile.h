// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QFile;

namespace Windows {

/// Opens \a file for reading, if it is a file of its own. A pipe, which could be waited for without
/// an end, a device, which may have none, and a folder are refused at once.
/// In the thread of \a file.
/// @return why it is not open; null if it is.
QString openRegular(QFile &file);

} // namespace Windows
