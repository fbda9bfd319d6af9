// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixviewer/IMessageService.h"

#include <Core/Plugin/IPlugin.h>

#include <memory>

namespace ImageView {

class CImageArea;
class CImageSaving;
class CLiveCamera;
class CLiveImages;
class CViewEntries;

/// The built-in plug-in "ImageView": shows what open cameras see in the middle of the main window,
/// and saves it. What fails is told to the message service, a failed save also in a dialog.
class CImageViewPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CImageViewPlugin(QObject *parent = nullptr);
    ~CImageViewPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void addToWindow();
    void askForFile();
    void onSavingFailed(const QString &message) const;
    void onImagesFailed(const CLiveCamera &camera, const QString &text, int count) const;
    void report(Plugin::NerixViewer::IMessageService::Severity severity, const QString &text) const;

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    std::unique_ptr<CLiveImages> m_images;
    std::unique_ptr<CImageSaving> m_saving;
    std::unique_ptr<CViewEntries> m_entries;
    QPointer<CImageArea> m_area;
};

} // namespace ImageView
