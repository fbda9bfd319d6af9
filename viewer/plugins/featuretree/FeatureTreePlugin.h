// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QPointer>
#include <QSharedPointer>

class QWidget;

namespace FeatureTree {

class CFeatureSelectionService;
struct CFeatureServices;

/// The built-in plug-in "FeatureTree": tells which feature is current, and shows the features of
/// the selected camera in a panel of the main window, if there is one.
class CFeatureTreePlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CFeatureTreePlugin(QObject *parent = nullptr);
    ~CFeatureTreePlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    CFeatureServices findServices() const;

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QSharedPointer<CFeatureSelectionService> m_service;
    QPointer<QWidget> m_panel;
};

} // namespace FeatureTree
