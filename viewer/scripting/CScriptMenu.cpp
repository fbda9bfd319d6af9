// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptMenu.h"

#include "plugins/appcore/IMenuControlService.h"

#include <QVariantMap>

namespace Scripting {

using Plugin::AppCore::IMenuControlService;

namespace {

QString obstacle(IMenuControlService::TriggerResult result)
{
    switch (result) {
    case IMenuControlService::TriggerResult::Triggered:
        return {};
    case IMenuControlService::TriggerResult::Unknown:
        return QStringLiteral(
            "is not there: menu.list() gives those that are, and a script has the "
            "actions of windows only with --show-windows");
    case IMenuControlService::TriggerResult::Disabled:
        return QStringLiteral(
            "is disabled now: wait until menu.list() has it enabled; most actions "
            "need a camera that is selected and open");
    case IMenuControlService::TriggerResult::NotApplicable:
        return QStringLiteral("does not apply to any view that is active now: make its view the "
                              "active one first");
    }
    return {};
}

QVariantMap describe(const Plugin::AppCore::CMenuEntry &entry)
{
    return {{QStringLiteral("id"), entry.id.toString()},
            {QStringLiteral("text"), entry.text},
            {QStringLiteral("menu"), entry.menu.toString()},
            {QStringLiteral("group"), entry.group.toString()},
            {QStringLiteral("enabled"), entry.enabled}};
}

} // namespace

QVariantList CScriptMenu::list()
{
    QVariantList entries;
    if (const auto menus = service<IMenuControlService>("AppCore")) {
        const auto found = menus->entries();
        for (const auto &entry : found) {
            entries.append(describe(entry));
        }
    }
    return entries;
}

void CScriptMenu::trigger(const QString &id)
{
    if (const auto menus = service<IMenuControlService>("AppCore")) {
        const QString reason = obstacle(menus->trigger(Core::CId(id)));
        if (!reason.isEmpty()) {
            fail(QStringLiteral("action \"%1\" %2").arg(id, reason));
        }
    }
}

} // namespace Scripting
