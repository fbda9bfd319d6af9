// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/ImageViewPlugin.h"

#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "plugins/imageview/CImageArea.h"
#include "plugins/imageview/CImagePane.h"
#include "plugins/imageview/CImageSaving.h"
#include "plugins/imageview/CImageView.h"
#include "plugins/imageview/CLiveCamera.h"
#include "plugins/imageview/CLiveImages.h"
#include "plugins/imageview/CViewEntries.h"
#include "plugins/nerixviewer/IMainWindowService.h"
#include "windows/MessageBox.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IMenuService.h>

#include <QDir>

namespace ImageView {

using Core::Plugin::findService;
using Core::Plugin::IPluginInitializer;
using Plugin::NerixViewer::IMainWindowService;
using Plugin::NerixViewer::IMessageService;

CImageViewPlugin::CImageViewPlugin(QObject *parent)
    : IPlugin(parent)
{}

CImageViewPlugin::~CImageViewPlugin() = default;

bool CImageViewPlugin::preInitialize(const QPointer<IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    return true;
}

bool CImageViewPlugin::initialize()
{
    const CLiveImages::Services services{
        findService<CameraPool::ICameraControlService>(m_initializer),
        findService<CameraPool::ICameraStatusService>(m_initializer),
        findService<CameraPool::IImageService>(m_initializer)};
    const auto menus = findService<Plugin::AppCore::IMenuService>(m_initializer);
    if (!services.control || !services.status || !services.images || !menus) {
        return false;
    }
    m_images = std::make_unique<CLiveImages>(services);
    connect(m_images.get(), &CLiveImages::imagesFailed, this,
            [this](const CLiveCamera *camera, const QString &text, int count) {
                onImagesFailed(*camera, text, count);
            });
    m_saving = std::make_unique<CImageSaving>();
    connect(m_saving.get(), &CImageSaving::failed, this, &CImageViewPlugin::onSavingFailed);
    connect(m_saving.get(), &CImageSaving::saved, this, [this](const QString &path) {
        report(IMessageService::Severity::Information,
               tr("Image saved: %1").arg(QDir::toNativeSeparators(path)));
    });
    addToWindow();
    m_entries = std::make_unique<CViewEntries>(*menus, m_area);
    connect(m_entries.get(), &CViewEntries::saveRequested, this, &CImageViewPlugin::askForFile);
    return true;
}

bool CImageViewPlugin::uninitialize(const QPointer<IPluginInitializer> &)
{
    m_entries.reset();
    delete m_area;
    m_saving.reset();
    m_images.reset();
    return true;
}

void CImageViewPlugin::addToWindow()
{
    using CameraSelector::IDeviceSelectionService;
    const auto window = findService<IMainWindowService>(m_initializer);
    const auto selection = findService<IDeviceSelectionService>(m_initializer);
    if (window && selection) {
        m_area = new CImageArea(*m_images, selection);
        window->setCentralView(m_area);
    }
}

void CImageViewPlugin::askForFile()
{
    const auto window = findService<IMainWindowService>(m_initializer);
    const CImagePane *pane = m_area ? m_area->currentPane() : nullptr;
    if (window && pane) {
        m_saving->ask(pane->view().image(), pane->camera().info()->displayName(), window->window());
    }
}

// Also in a dialog: who does not see the messages would take the image for saved.
void CImageViewPlugin::onSavingFailed(const QString &message) const
{
    report(IMessageService::Severity::Error, message);
    if (const auto window = findService<IMainWindowService>(m_initializer)) {
        Windows::newMessageBox(QMessageBox::Critical, tr("Save Image"), message, QMessageBox::Close,
                               window->window())
            ->open();
    }
}

// Each one is reported, since the message service counts them.
void CImageViewPlugin::onImagesFailed(const CLiveCamera &camera, const QString &text,
                                      int count) const
{
    const QString line = QStringLiteral("%1: %2").arg(camera.name(), text);
    for (int i = 0; i < count; ++i) {
        report(IMessageService::Severity::Warning, line);
    }
}

void CImageViewPlugin::report(IMessageService::Severity severity, const QString &text) const
{
    if (const auto messages = findService<IMessageService>(m_initializer)) {
        messages->add(severity, text);
    }
}

} // namespace ImageView
