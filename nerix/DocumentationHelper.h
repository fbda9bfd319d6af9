// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <functional>

#include <QString>
#include <QUrl>

/// Opens web addresses on behalf of pages and plug-ins. GUI thread.
class NERIXCORE_EXPORT DocumentationHelper
{
public:
    /// Opens an address that was accepted; returns whether it could.
    using Handler = std::function<bool(const QUrl &url, bool inViewer)>;

    /// Opens \a address: in a window of the viewer if \a inViewer is true and the viewer has one
    /// for it, else in the system's browser. Only http, https and mailto are accepted, the former
    /// with a server and the latter with a recipient; anything else is logged and refused.
    /// @return whether it was opened.
    static bool OpenUrl(const QString &address, bool inViewer);

    /// Whoever opens addresses says how; an empty function gives back the system's browser.
    static void setHandler(Handler handler);

    DocumentationHelper() = delete;
};
