// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

class QFileDevice;

namespace Windows {

/// Whether all that was written to \a file found room on the disk; else its errorString() tells why
/// not. To be asked before QSaveFile::commit(), which does not notice.
/// In the thread of \a file.
bool isWritten(QFileDevice &file);

} // namespace Windows
