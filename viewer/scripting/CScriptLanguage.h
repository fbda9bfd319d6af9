// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptObject.h"

#include <QString>

namespace Scripting {

/// `language`: the language of the viewer and its plug-ins. GUI thread.
class CScriptLanguage : public CScriptObject
{
    Q_OBJECT

public:
    using CScriptObject::CScriptObject;

    /// As in a locale's name: "ja", "zh_CN".
    Q_INVOKABLE QString get();

    /// Switches at once and remembers it; an empty text follows the system.
    Q_INVOKABLE void set(const QString &language);
};

} // namespace Scripting
