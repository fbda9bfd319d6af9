// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/appcore/IMenuControlService.h"

#include <memory>
#include <vector>

namespace Plugin {
namespace AppCore {

class CActionContainer;
class CCommand;

/// The menus on real `QMenu` objects. GUI thread.
class CMenuService : public IMenuControlService
{
    Q_OBJECT

public:
    explicit CMenuService(QObject *parent = nullptr);
    ~CMenuService() override;

    IActionContainer *findActionContainer(const Core::CId &id) const override;
    ICommand *registerAction(QAction *action, const Core::CId &id,
                             const Core::AppCoreComponents::CContext &context) override;

    IActionContainer *createActionContainer(const Core::CId &id, const QString &title) override;
    void addGroup(const Core::CId &menu, const Core::CId &group) override;
    QList<QMenu *> menus() const override;
    QList<CMenuEntry> entries() const override;
    TriggerResult trigger(const Core::CId &id) override;

private:
    CActionContainer *container(const Core::CId &id) const;
    CCommand *commandFor(const Core::CId &id);
    void replaceAction(const CCommand *command, QAction *action);

    /// An action that was replaced may die later: its command goes only if it has no action now.
    void dropWithoutAction(const Core::CId &id);

    std::vector<std::unique_ptr<CActionContainer>> m_containers;
    std::vector<std::unique_ptr<CCommand>> m_commands;
};

} // namespace AppCore
} // namespace Plugin
