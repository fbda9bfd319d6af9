// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/settings/SettingsPlugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>

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

// Nothing is made here: who keeps nothing in the folder must not find one.
bool canBeWritten(const QString &folder)
{
    QFileInfo info(folder);
    while (!info.exists() && !info.isRoot()) {
        info.setFile(info.path());
    }
    return info.isDir() && info.isWritable();
}

void warnUnlessDataFolderIsUsable()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!canBeWritten(folder)) {
        qCWarning(log).noquote().nospace()
            << "data folder " << QDir::toNativeSeparators(folder)
            << " cannot be written, so plug-ins keep nothing there: make it writable or set "
               "XDG_DATA_HOME to another folder";
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
    warnUnlessDataFolderIsUsable();
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
