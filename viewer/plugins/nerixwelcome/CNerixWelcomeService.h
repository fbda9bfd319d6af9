// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CId.h>
#include <Plugin/NerixWelcome/INerixWelcomeService.h>

#include <QSharedPointer>

namespace Plugin {
namespace NerixWelcome {

class CNerixWelcomeController;

/// What other plug-ins may do with the welcome screen. GUI thread.
class CNerixWelcomeService : public INerixWelcomeService
{
    Q_OBJECT

public:
    /// \a controller, never null, is shared because another plug-in may keep the service longer
    /// than its own plug-in lives.
    explicit CNerixWelcomeService(QSharedPointer<CNerixWelcomeController> controller,
                                  QObject *parent = nullptr);
    ~CNerixWelcomeService() override;

    /// Tabs with this id are not shown from now on. Who wants to see one is told by
    /// `withheldTabWanted`.
    void withhold(const Core::CId &tabId);

    void addTab(const QPointer<INerixWelcomeTab> &tab) override;
    void showTab(const QPointer<INerixWelcomeTab> &tab, QObject *requester) override;

Q_SIGNALS:
    void withheldTabWanted();

private:
    bool isWithheld(const INerixWelcomeTab *tab) const;

    QSharedPointer<CNerixWelcomeController> m_controller;
    Core::CId m_withheld;
};

} // namespace NerixWelcome
} // namespace Plugin
