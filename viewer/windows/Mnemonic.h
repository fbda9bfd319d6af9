// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Windows {

/// The text of an entry as it is read: without the '&' before its mnemonic, and without the letter
/// in parentheses that stands for it in scripts without letters of their own ("&File" and
/// "ファイル(&F)" are "File" and "ファイル"). "&&" is '&'. Callable in any thread.
QString withoutMnemonic(QString text);

} // namespace Windows
