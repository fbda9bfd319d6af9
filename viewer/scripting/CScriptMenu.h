// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptObject.h"

#include <QVariantList>

namespace Scripting {

/// `menu`: the actions of the viewer and its plug-ins. GUI thread.
class CScriptMenu : public CScriptObject
{
    Q_OBJECT

public:
    using CScriptObject::CScriptObject;

    /// Every action: "id", "text", "menu" and "group" (empty if it is in no menu), "enabled".
    Q_INVOKABLE QVariantList list();

    /// Does what choosing the action in its menu does.
    Q_INVOKABLE void trigger(const QString &id);
};

} // namespace Scripting
