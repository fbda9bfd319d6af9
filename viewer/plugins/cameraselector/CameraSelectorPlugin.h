// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QSharedPointer>

namespace CameraSelector {

class CDeviceSelectionService;

/// The built-in plug-in "CameraSelector": tells which device is selected, and what to do if there
/// is none to select.
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
    void onFirstSearchEnded();

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QMetaObject::Connection m_firstSearch;
    QSharedPointer<CDeviceSelectionService> m_service;
};

} // namespace CameraSelector
