// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/help/IHelpViewService.h"

#include <CHelpHelper.h>

class QUrl;

namespace Plugin {
namespace Help {

/// Shows the documents that are installed with the viewer, and web addresses. GUI thread.
///
/// A document is named in the log with its path. Web addresses go to the system's browser; without
/// a display they are named in the log as well.
class CHelpViewService : public IHelpViewService
{
    Q_OBJECT

public:
    /// \a folder holds the documents.
    explicit CHelpViewService(const QString &folder, QObject *parent = nullptr);
    ~CHelpViewService() override;

    QString lastShown() const override;

    /// @return false if there is no such document.
    bool showDocument(CHelpHelper::HelpType type);

    /// @return false if no browser could be started.
    bool showAddress(const QUrl &address);

private:
    void remember(const QString &pathOrAddress);

    QString m_folder;
    QString m_lastShown;
};

} // namespace Help
} // namespace Plugin
