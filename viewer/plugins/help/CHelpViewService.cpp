// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/CHelpViewService.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QUrl>

namespace Plugin {
namespace Help {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.help", QtInfoMsg)

/// Empty where we have no document.
QString fileNameOf(CHelpHelper::HelpType type)
{
    switch (type) {
    case CHelpHelper::HelpContents:
        return QStringLiteral("README.md");
    case CHelpHelper::HelpPrivacyStatement:
        return QStringLiteral("privacy.md");
    default:
        return {};
    }
}

bool hasDisplay()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

CHelpViewService::CHelpViewService(const QString &folder, QObject *parent)
    : IHelpViewService(parent)
    , m_folder(folder)
{}

CHelpViewService::~CHelpViewService() = default;

QString CHelpViewService::lastShown() const
{
    return m_lastShown;
}

bool CHelpViewService::showDocument(CHelpHelper::HelpType type)
{
    const QString fileName = fileNameOf(type);
    if (fileName.isEmpty()) {
        qCWarning(log).noquote() << "there is no help document of type" << int(type);
        return false;
    }
    const QString path = QDir::cleanPath(QDir(m_folder).absoluteFilePath(fileName));
    if (!QFileInfo(path).isReadable()) {
        qCWarning(log).noquote().nospace()
            << "help document " << path << " cannot be read: install the viewer's documents again";
        return false;
    }
    qCInfo(log).noquote() << "help document:" << path;
    remember(path);
    return true;
}

bool CHelpViewService::showAddress(const QUrl &address)
{
    const QString text = address.toString();
    if (hasDisplay() && !QDesktopServices::openUrl(address)) {
        qCWarning(log).noquote().nospace()
            << "web address " << text << " cannot be opened: no browser could be started";
        return false;
    }
    qCInfo(log).noquote() << "web address:" << text;
    remember(text);
    return true;
}

void CHelpViewService::remember(const QString &pathOrAddress)
{
    m_lastShown = pathOrAddress;
    Q_EMIT shown(pathOrAddress);
}

} // namespace Help
} // namespace Plugin
