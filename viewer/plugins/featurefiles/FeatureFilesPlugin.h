// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <memory>

namespace FeatureFiles {

class CFeatureFileEntries;

/// The built-in plug-in "FeatureFiles": saves the features of a camera in a file, and loads them
/// again.
class CFeatureFilesPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    explicit CFeatureFilesPlugin(QObject *parent = nullptr);
    ~CFeatureFilesPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    std::unique_ptr<CFeatureFileEntries> m_entries;
};

} // namespace FeatureFiles
