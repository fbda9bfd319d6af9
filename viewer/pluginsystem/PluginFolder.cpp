// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/PluginFolder.h>

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace PluginSystem {

namespace {

QString obstacle(const QFileInfo &folder)
{
    if (!folder.exists()) {
        return QStringLiteral("does not exist: create it, or do not name it");
    }
    if (!folder.isDir()) {
        return QStringLiteral("is not a folder: name the folder that the plug-ins are in");
    }
    if (!folder.isReadable() || !folder.isExecutable()) {
        return QStringLiteral("cannot be read: give yourself the permission to read it");
    }
    return {};
}

} // namespace

QStringList librariesIn(const QString &folder, QString &error)
{
    const QString reason = obstacle(QFileInfo(folder));
    if (!reason.isEmpty()) {
        error = QStringLiteral("Plug-in folder \"%1\" %2")
                    .arg(QDir::toNativeSeparators(folder), reason);
        return {};
    }
    QStringList libraries;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (QLibrary::isLibrary(file.fileName())) {
            libraries += file.absoluteFilePath();
        }
    }
    return libraries;
}

} // namespace PluginSystem
