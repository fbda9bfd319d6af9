// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptObject.h"

#include <QVariantList>

namespace Scripting {

/// `welcome`: the welcome screen. GUI thread.
class CScriptWelcome : public CScriptObject
{
    Q_OBJECT

public:
    using CScriptObject::CScriptObject;

    /// The tabs in order: "id", "title", "source" and "applyNeeded".
    Q_INVOKABLE QVariantList tabs();

    /// The id of the current tab, empty without tabs.
    Q_INVOKABLE QString currentTab();

    Q_INVOKABLE bool visible();

    /// Whether a tab holds a question that must be answered before the screen can be closed.
    Q_INVOKABLE bool applyNeeded();

    Q_INVOKABLE void show();
    Q_INVOKABLE void showTab(const QString &id);

    /// @return false if the screen stays, because of `applyNeeded`.
    Q_INVOKABLE bool close();

    Q_INVOKABLE bool showAtStartup();
    Q_INVOKABLE void setShowAtStartup(bool show);
};

} // namespace Scripting
