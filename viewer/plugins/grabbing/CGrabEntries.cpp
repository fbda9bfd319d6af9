// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/grabbing/CGrabEntries.h"

#include "plugins/grabbing/CGrabController.h"
#include "plugins/grabbing/GrabIcons.h"
#include "windows/MenuEntry.h"

#include <QAction>

namespace Grabbing {

namespace {

Windows::MenuEntry entry(const char *id, const QKeySequence &shortcut)
{
    return {id, "NerixViewer.Menu.Camera", "NerixViewer.Group.Camera.Grab", shortcut};
}

} // namespace

CGrabEntries::CGrabEntries(Plugin::AppCore::IMenuService &menus, CGrabController &controller)
    : m_controller(controller)
    , m_single(Windows::addMenuEntry(
          menus, entry("Grabbing.Action.GrabSingle", Qt::Key_F6),
          [] { return tr("Grab Single &Image"); }, this))
    , m_continuous(Windows::addMenuEntry(
          menus, entry("Grabbing.Action.GrabContinuous", Qt::Key_F5),
          [] { return tr("&Grab Continuously"); }, this))
    , m_stop(Windows::addMenuEntry(
          menus, entry("Grabbing.Action.Stop", Qt::SHIFT + Qt::Key_F5),
          [] { return tr("&Stop Grabbing"); }, this))
{
    m_single->setIcon(grabSingleIcon());
    m_continuous->setIcon(grabContinuousIcon());
    m_stop->setIcon(stopIcon());
    connect(m_single, &QAction::triggered, &controller, &CGrabController::grabSingle);
    connect(m_continuous, &QAction::triggered, &controller, &CGrabController::grabContinuous);
    connect(m_stop, &QAction::triggered, &controller, &CGrabController::stop);
    connect(&controller, &CGrabController::changed, this, &CGrabEntries::update);
    update();
}

CGrabEntries::~CGrabEntries() = default;

QList<QAction *> CGrabEntries::actions() const
{
    return {m_continuous, m_single, m_stop};
}

void CGrabEntries::update()
{
    m_single->setEnabled(m_controller.canGrab());
    m_continuous->setEnabled(m_controller.canGrab());
    m_stop->setEnabled(m_controller.canStop());
}

} // namespace Grabbing
