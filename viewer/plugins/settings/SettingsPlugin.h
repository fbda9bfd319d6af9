// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QString>

namespace Plugin {
namespace Settings {

/// The built-in plug-in "Settings": decides where the default `QSettings` of every other plug-in
/// keeps its values.
///
/// Organisation "Ostrand", application "nerix-viewer", INI format. The names also give the folder
/// in which plug-ins keep their data. Whatever the file system refuses, the viewer goes on; it then
/// remembers nothing, and says so once.
class CSettingsPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    /// @param folder where to keep the settings instead of the user's own configuration folder;
    /// empty for that one.
    explicit CSettingsPlugin(const QString &folder, QObject *parent = nullptr);
    ~CSettingsPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    QString m_folder;
};

} // namespace Settings
} // namespace Plugin
