// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <memory>

#include <QPointer>
#include <QSharedPointer>
#include <QTimer>

namespace CameraSelector {

class CCameraCommands;
class CCameraListModel;
class CCameraPanel;
class CDeviceSelectionService;

/// The built-in plug-in "CameraSelector": tells which device is selected, and what to do if there
/// is none to select. Its are the list of cameras and the entries that open and close one.
class CCameraSelectorPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CCameraSelectorPlugin(QObject *parent = nullptr);
    ~CCameraSelectorPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void addCommands();
    void addPanel();
    void connectNews();
    void onFirstSearchEnded();
    void showProblem(const QString &message);
    void hint(const QString &text);
    void refreshSoon();
    void refresh();

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QMetaObject::Connection m_firstSearch;
    QSharedPointer<CDeviceSelectionService> m_service;
    std::unique_ptr<CCameraCommands> m_commands; // null without a camera pool
    std::unique_ptr<CCameraListModel> m_model;   // null without windows
    QPointer<CCameraPanel> m_panel;              // likewise; the window may delete it
    QTimer m_refreshTimer;
    QTimer m_refreshSoon;
};

} // namespace CameraSelector
