// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QJSValue;

namespace Scripting {

/// One line "FILE:LINE: message" for the exception \a error, which left the script \a file. The
/// line is that of the script, also where the exception comes from a function that the viewer
/// brings.
QString describeError(const QString &file, const QJSValue &error);

} // namespace Scripting
