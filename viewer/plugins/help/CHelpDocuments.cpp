// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/CHelpDocuments.h"

#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

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

bool isReadable(const QString &path)
{
    return QFileInfo(path).isFile() && QFileInfo(path).isReadable();
}

// The folders for "zh_CN" are "zh_CN" and "zh", as with the catalogues of the menus.
QStringList foldersOf(const QString &language)
{
    static const QRegularExpression region(QStringLiteral("[_-].*$"));
    return {language, QString(language).remove(region)};
}

} // namespace

CHelpDocuments::CHelpDocuments(const QString &folder, Language language)
    : m_folder(QDir::cleanPath(folder))
    , m_language(std::move(language))
{}

QString CHelpDocuments::path(CHelpHelper::HelpType type) const
{
    const QString fileName = fileNameOf(type);
    return fileName.isEmpty() ? QString() : pathOf(fileName);
}

bool CHelpDocuments::has(CHelpHelper::HelpType type) const
{
    return isReadable(path(type));
}

QString CHelpDocuments::text(const QString &path) const
{
    QFile file(path);
    const QString folder = QDir(m_folder).absolutePath() + QLatin1Char('/');
    const bool isOurs = QDir::cleanPath(QFileInfo(path).absoluteFilePath()).startsWith(folder);
    if (!isOurs || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return withoutComments(QString::fromUtf8(file.readAll()));
}

QString CHelpDocuments::resolve(const QUrl &link) const
{
    const bool isLocal = link.scheme().isEmpty() || link.isLocalFile();
    const QString path = pathOf(QFileInfo(link.path()).fileName());
    return isLocal && QFileInfo(path).isFile() ? path : QString();
}

QString CHelpDocuments::pathOf(const QString &fileName) const
{
    const QDir folder(m_folder);
    const QStringList languages = foldersOf(m_language ? m_language() : QString());
    for (const QString &language : languages) {
        const QString path = folder.absoluteFilePath(language + QLatin1Char('/') + fileName);
        if (!language.isEmpty() && isReadable(path)) {
            return path;
        }
    }
    return folder.absoluteFilePath(fileName);
}

} // namespace Help
} // namespace Plugin
