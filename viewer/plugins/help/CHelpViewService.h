// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/help/CHelpDocuments.h"
#include "plugins/help/IHelpViewService.h"

#include <CHelpHelper.h>

#include <functional>

class QUrl;

namespace Plugin {
namespace Help {

/// Shows the documents that are installed with the viewer, and web addresses. GUI thread.
///
/// A document is shown by the viewer of `setViewer`, without one it is named in the log with its
/// path. Web addresses go to the system's browser; without a display they are named in the log as
/// well.
class CHelpViewService : public IHelpViewService
{
    Q_OBJECT

public:
    /// Shows the document at a path.
    using Viewer = std::function<void(const QString &path)>;

    explicit CHelpViewService(const CHelpDocuments &documents, QObject *parent = nullptr);
    ~CHelpViewService() override;

    QString lastShown() const override;

    /// An empty function withdraws it.
    void setViewer(Viewer viewer);

    /// @return false if there is no such document.
    bool showDocument(CHelpHelper::HelpType type);

    /// @return false if no browser could be started.
    bool showAddress(const QUrl &address);

private:
    void remember(const QString &pathOrAddress);

    CHelpDocuments m_documents;
    Viewer m_viewer;
    QString m_lastShown;
};

} // namespace Help
} // namespace Plugin
