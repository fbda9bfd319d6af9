// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/CHelpDocuments.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Plugin {
namespace Help {

namespace {

QString fileNameOf(CHelpHelper::HelpType type)
{
    switch (type) {
    case CHelpHelper::HelpContents:
        return QStringLiteral("help.md");
    case CHelpHelper::HelpCameras:
        return QStringLiteral("cameras.md");
    case CHelpHelper::HelpFeatures:
        return QStringLiteral("features.md");
    case CHelpHelper::HelpGrabbing:
        return QStringLiteral("grabbing.md");
    case CHelpHelper::HelpLicenses:
        return QStringLiteral("licenses.md");
    case CHelpHelper::HelpPrivacyStatement:
        return QStringLiteral("privacy.md");
    }
    return {};
}

QString withoutComments(const QString &text)
{
    const QString begin = QStringLiteral("<!--");
    const QString end = QStringLiteral("-->");
    QString rest = text.trimmed();
    while (rest.startsWith(begin) && rest.contains(end)) {
        rest = rest.mid(rest.indexOf(end) + end.size()).trimmed();
    }
    return rest;
}

} // namespace

CHelpDocuments::CHelpDocuments(const QString &folder)
    : m_folder(QDir::cleanPath(folder))
{}

QString CHelpDocuments::path(CHelpHelper::HelpType type) const
{
    const QString fileName = fileNameOf(type);
    return fileName.isEmpty() ? QString() : QDir(m_folder).absoluteFilePath(fileName);
}

bool CHelpDocuments::has(CHelpHelper::HelpType type) const
{
    const QString file = path(type);
    return !file.isEmpty() && QFileInfo(file).isFile() && QFileInfo(file).isReadable();
}

QString CHelpDocuments::text(const QString &path) const
{
    QFile file(path);
    const bool isOurs = QFileInfo(path).absolutePath() == QDir(m_folder).absolutePath();
    if (!isOurs || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return withoutComments(QString::fromUtf8(file.readAll()));
}

QString CHelpDocuments::resolve(const QUrl &link) const
{
    const bool isLocal = link.scheme().isEmpty() || link.isLocalFile();
    const QFileInfo file(QDir(m_folder).absoluteFilePath(QFileInfo(link.path()).fileName()));
    return isLocal && file.isFile() ? file.absoluteFilePath() : QString();
}

} // namespace Help
} // namespace Plugin
