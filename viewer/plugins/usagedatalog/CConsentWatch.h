// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QObject>
#include <QPointer>
#include <QSharedPointer>

class QQmlEngine;

namespace Plugin {
namespace NerixWelcome {
class CNerixWelcomeController;
class INerixWelcomeTab;
} // namespace NerixWelcome
namespace UsageDataLog {

/// What the user has answered on the consent page, as that page itself knows it. GUI thread.
///
/// The page belongs to a plug-in that the viewer may be without; it is found on the welcome screen
/// by what it publishes for its page.
class CConsentWatch : public QObject
{
    Q_OBJECT

public:
    enum class Consent {
        NoPage,     ///< the plug-in that records is not there
        Unanswered, ///< nothing is recorded
        Yes,
        No
    };

    /// \a welcome may be null: there is no page then.
    explicit CConsentWatch(const QSharedPointer<NerixWelcome::CNerixWelcomeController> &welcome,
                           QObject *parent = nullptr);
    ~CConsentWatch() override;

    /// The answer in force. One that is chosen but not applied does not count.
    Consent consent() const;

    /// Brings up the page. @return false if there is none.
    bool showPage();

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void update();

private:
    void findPage();
    void follow(NerixWelcome::INerixWelcomeTab *tab, QObject *page);
    void set(Consent consent);

    QSharedPointer<NerixWelcome::CNerixWelcomeController> m_welcome;
    std::unique_ptr<QQmlEngine> m_engine;
    QPointer<NerixWelcome::INerixWelcomeTab> m_tab;
    QPointer<QObject> m_page;
    Consent m_consent = Consent::NoPage;
};

} // namespace UsageDataLog
} // namespace Plugin
