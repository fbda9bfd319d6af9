// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/CHelpViewService.h"

#include <utility>

#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QUrl>

namespace Plugin {
namespace Help {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.help", QtInfoMsg)

bool hasDisplay()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

CHelpViewService::CHelpViewService(const CHelpDocuments &documents, QObject *parent)
    : IHelpViewService(parent)
    , m_documents(documents)
{}

CHelpViewService::~CHelpViewService() = default;

QString CHelpViewService::lastShown() const
{
    return m_lastShown;
}

void CHelpViewService::setViewer(Viewer viewer)
{
    m_viewer = std::move(viewer);
}

bool CHelpViewService::showDocument(CHelpHelper::HelpType type)
{
    const QString path = m_documents.path(type);
    if (path.isEmpty()) {
        qCWarning(log).noquote() << "there is no help document of type" << int(type);
        return false;
    }
    if (!m_documents.has(type)) {
        qCWarning(log).noquote().nospace()
            << "help document " << path << " cannot be read: install the viewer's documents again";
        Q_EMIT failed(tr("The document %1 cannot be read: install the viewer's documents again")
                          .arg(QDir::toNativeSeparators(path)));
        return false;
    }
    if (m_viewer) {
        m_viewer(path);
    } else {
        qCInfo(log).noquote() << "help document:" << path;
    }
    remember(path);
    return true;
}

bool CHelpViewService::showAddress(const QUrl &address)
{
    const QString text = address.toString();
    if (hasDisplay() && !QDesktopServices::openUrl(address)) {
        qCWarning(log).noquote().nospace()
            << "web address " << text << " cannot be opened: no browser could be started";
        Q_EMIT failed(tr("No browser could be started for %1: choose a default browser, or open "
                         "the address elsewhere")
                          .arg(text));
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
