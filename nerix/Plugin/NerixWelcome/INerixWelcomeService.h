// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <QObject>
#include <QPointer>

namespace Plugin {
namespace NerixWelcome {

class INerixWelcomeTab;

/// The welcome screen. GUI thread.
class NERIXCORE_EXPORT INerixWelcomeService : public QObject
{
    Q_OBJECT

public:
    ~INerixWelcomeService() override;

    /// Shows \a tab on the welcome screen from now on, after the tabs that are there. The tab stays
    /// its owner's and disappears from the screen when it is destroyed. Null, or a tab that is
    /// there already, is ignored.
    virtual void addTab(const QPointer<INerixWelcomeTab> &tab) = 0;

    /// Brings up the welcome screen on \a tab. \a requester is who asks, for the log. A tab that
    /// was never added, or null, brings up nothing.
    virtual void showTab(const QPointer<INerixWelcomeTab> &tab, QObject *requester) = 0;

protected:
    explicit INerixWelcomeService(QObject *parent = nullptr);
};

} // namespace NerixWelcome
} // namespace Plugin
