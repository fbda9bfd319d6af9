// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/settings/SettingsPlugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>

namespace Plugin {
namespace Settings {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.settings")

void warnUnlessUsable(const QSettings &settings)
{
    const QString file = QDir::toNativeSeparators(settings.fileName());
    if (!settings.isWritable()) {
        qCWarning(log).noquote().nospace()
            << "settings folder " << QFileInfo(file).path()
            << " cannot be written, so nothing will be remembered: make it writable or choose "
               "another one with --settings-dir";
    } else if (settings.status() == QSettings::FormatError) {
        qCWarning(log).noquote().nospace()
            << "settings file " << file
            << " is damaged, so a part of it is not used: repair it or move it away";
    }
}

} // namespace

CSettingsPlugin::CSettingsPlugin(const QString &folder, QObject *parent)
    : IPlugin(parent)
    , m_folder(folder)
{}

CSettingsPlugin::~CSettingsPlugin() = default;

bool CSettingsPlugin::preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Ostrand"));
    QCoreApplication::setApplicationName(QStringLiteral("nerix-viewer"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    if (!m_folder.isEmpty()) {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QDir(m_folder).absolutePath());
    }
    warnUnlessUsable(QSettings());
    return true;
}

bool CSettingsPlugin::initialize()
{
    return true;
}

bool CSettingsPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &)
{
    return true;
}

} // namespace Settings
} // namespace Plugin
