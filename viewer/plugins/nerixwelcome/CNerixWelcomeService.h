// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

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

    void addTab(const QPointer<INerixWelcomeTab> &tab) override;
    void showTab(const QPointer<INerixWelcomeTab> &tab, QObject *requester) override;

private:
    QSharedPointer<CNerixWelcomeController> m_controller;
};

} // namespace NerixWelcome
} // namespace Plugin
