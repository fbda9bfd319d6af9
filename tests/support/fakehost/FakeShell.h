// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Plugin/AppCore/IActionContainer.h>
#include <Plugin/AppCore/ICommand.h>
#include <Plugin/AppCore/IMenuService.h>
#include <Plugin/NerixWelcome/INerixWelcomeService.h>
#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <functional>

#include <QAction>
#include <QPointer>
#include <QStringList>

/// What was registered with the fake menu service, and a Help menu that remembers what it was
/// given.
class FakeMenuService : public Plugin::AppCore::IMenuService,
                        private Plugin::AppCore::IActionContainer
{
public:
    FakeMenuService()
        : IMenuService(nullptr)
    {}

    Plugin::AppCore::IActionContainer *findActionContainer(const Core::CId &id) const override;
    Plugin::AppCore::ICommand *
    registerAction(QAction *action, const Core::CId &id,
                   const Core::AppCoreComponents::CContext &context) override;

    /// Every call with its arguments, in order.
    mutable QStringList calls;
    QPointer<QAction> registeredAction;
    std::function<void()> onActionRegistered;

private:
    class Command : public Plugin::AppCore::ICommand
    {
    public:
        Core::CId id() const override
        {
            return commandId;
        }
        QAction *action() const override
        {
            return commandAction;
        }

        Core::CId commandId;
        QPointer<QAction> commandAction;
    };

    void addCommand(Plugin::AppCore::ICommand *command, const Core::CId &group) override;

    Command m_command;
};

/// A welcome screen that remembers what it was asked for.
class FakeWelcomeService : public Plugin::NerixWelcome::INerixWelcomeService
{
public:
    FakeWelcomeService()
        : INerixWelcomeService(nullptr)
    {}

    void addTab(const QPointer<Plugin::NerixWelcome::INerixWelcomeTab> &tab) override
    {
        tabs.append(tab);
        if (onTabAdded) {
            onTabAdded();
        }
    }

    void showTab(const QPointer<Plugin::NerixWelcome::INerixWelcomeTab> &tab,
                 QObject *requester) override
    {
        shownTabs.append(tab);
        requesters.append(requester);
    }

    QList<QPointer<Plugin::NerixWelcome::INerixWelcomeTab>> tabs;
    QList<QPointer<Plugin::NerixWelcome::INerixWelcomeTab>> shownTabs;
    QList<QPointer<QObject>> requesters;
    std::function<void()> onTabAdded;
};
