// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CCameraCommands.h"

#include "plugins/cameraselector/CameraStateLook.h"
#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "windows/MenuEntry.h"

#include <utility>

#include <QAction>

namespace CameraSelector {

using CameraPool::ICameraControlService;
using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::ICameraInfo;

namespace {

QKeySequence closeKey()
{
    return QKeySequence(Qt::CTRL + Qt::Key_W);
}

bool isOpen(ICameraControlService::CameraState state)
{
    return state == ICameraControlService::Open || state == ICameraControlService::Grabbing;
}

} // namespace

CCameraCommands::CCameraCommands(QSharedPointer<ICameraControlService> control,
                                 QSharedPointer<IDeviceSelectionService> selection)
    : m_control(std::move(control))
    , m_selection(std::move(selection))
{
    connect(m_selection.data(), &IDeviceSelectorService::selectionChanged, this,
            &CCameraCommands::update);
}

CCameraCommands::~CCameraCommands() = default;

void CCameraCommands::addEntries(Plugin::AppCore::IMenuService &menus)
{
    m_open = Windows::addMenuEntry(
        menus,
        {"CameraSelector.Action.Open", "NerixViewer.Menu.Camera", "NerixViewer.Group.Camera.Device",
         QKeySequence(Qt::CTRL + Qt::Key_O)},
        [] { return tr("&Open Camera"); }, this);
    m_open->setIcon(stateIcon(ICameraControlService::Open));
    connect(m_open, &QAction::triggered, this, [this] { m_control->open(selected()); });

    m_close = Windows::addMenuEntry(
        menus,
        {"CameraSelector.Action.Close", "NerixViewer.Menu.Camera",
         "NerixViewer.Group.Camera.Device", closeKey()},
        [] { return tr("&Close Camera"); }, this);
    m_close->setIcon(stateIcon(ICameraControlService::Free));
    connect(m_close, &QAction::triggered, this, [this] { m_control->close(selected()); });
    update();
}

void CCameraCommands::update()
{
    if (!m_open) {
        return;
    }
    const CameraInfoPtr camera = selected();
    const auto state = camera ? m_control->state(camera) : ICameraControlService::Gone;
    // One in use elsewhere may be free the next moment: who tries is told.
    m_open->setEnabled(state == ICameraControlService::Free
                       || state == ICameraControlService::InUseElsewhere);
    m_close->setEnabled(isOpen(state));
}

void CCameraCommands::openOrClose(const CameraInfoPtr &camera)
{
    if (!camera) {
        return;
    }
    switch (m_control->state(camera)) {
    case ICameraControlService::Grabbing:
        Q_EMIT leftAlone(
            tr("%1 is grabbing: press %2 to close it (Camera > Close Camera)")
                .arg(camera->displayName(), closeKey().toString(QKeySequence::NativeText)));
        break;
    case ICameraControlService::Open:
        m_control->close(camera);
        break;
    default:
        m_control->open(camera);
    }
}

QAction *CCameraCommands::openAction() const
{
    return m_open;
}

QAction *CCameraCommands::closeAction() const
{
    return m_close;
}

CameraInfoPtr CCameraCommands::selected() const
{
    return qSharedPointerDynamicCast<ICameraInfo>(m_selection->selected());
}

} // namespace CameraSelector
