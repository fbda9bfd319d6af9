// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <DocumentationHelper.h>

#include <utility>

#include <QDesktopServices>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(documentation, "nerix.documentation")

bool openInBrowser(const QUrl &url, bool /*inViewer*/)
{
    return QDesktopServices::openUrl(url);
}

DocumentationHelper::Handler &currentHandler()
{
    static DocumentationHelper::Handler handler = openInBrowser;
    return handler;
}

bool isAccepted(const QUrl &url)
{
    const QString scheme = url.scheme();
    if (scheme == QLatin1String("mailto")) {
        return url.isValid() && !url.path().isEmpty();
    }
    return url.isValid() && !url.host().isEmpty()
           && (scheme == QLatin1String("https") || scheme == QLatin1String("http"));
}

} // namespace

bool DocumentationHelper::OpenUrl(const QString &address, bool inViewer)
{
    const QUrl url(address, QUrl::StrictMode);
    if (!isAccepted(url)) {
        qCWarning(documentation).noquote()
            << "not opened:" << address << "(only http, https and mailto addresses are)";
        return false;
    }
    // A copy, since the function may set another one.
    const Handler handler = currentHandler();
    return handler(url, inViewer);
}

void DocumentationHelper::setHandler(Handler handler)
{
    currentHandler() = handler ? std::move(handler) : Handler(openInBrowser);
}
