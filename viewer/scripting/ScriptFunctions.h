// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantList>

struct QMetaObject;

namespace Scripting {

/// What a script can call of an object of \a type, in order: its invokable functions, each with
/// "name", "required" (so many arguments it needs) and "parameters", a list of "name" and "type" as
/// the header declares them. A function has one declaration; it may have default arguments.
QVariantList functionsOf(const QMetaObject &type);

} // namespace Scripting
