// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CAnswerTab.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/usagedatalog/CConsentWatch.h"
#include "support/CSettingsSandbox.h"
#include "support/CTestTab.h"

#include <memory>

#include <QSignalSpy>
#include <QTest>

using Plugin::NerixWelcome::CNerixWelcomeController;
using Plugin::UsageDataLog::CConsentWatch;
using Consent = Plugin::UsageDataLog::CConsentWatch::Consent;

Q_DECLARE_METATYPE(Consent)

class ConsentWatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_welcome = QSharedPointer<CNerixWelcomeController>::create();
    }

    void testAnswerIsWhatThePageHolds_data()
    {
        QTest::addColumn<bool>("selected");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<Consent>("consent");
        QTest::newRow("never asked") << false << false << Consent::Unanswered;
        QTest::newRow("a yes that was never applied") << false << true << Consent::Unanswered;
        QTest::newRow("yes") << true << true << Consent::Yes;
        QTest::newRow("no") << true << false << Consent::No;
    }

    void testAnswerIsWhatThePageHolds()
    {
        QFETCH(bool, selected);
        QFETCH(bool, enabled);
        CTestTab other;
        CAnswerTab tab;
        tab.answer.selected = selected;
        tab.answer.enabled = enabled;
        m_welcome->addTab(&other);
        m_welcome->addTab(&tab);
        const CConsentWatch watch(m_welcome);
        QTEST(watch.consent(), "consent");
    }

    void testAnswerThatIsNotAppliedDoesNotCount()
    {
        CAnswerTab tab;
        tab.answer.selected = true;
        m_welcome->addTab(&tab);
        const CConsentWatch watch(m_welcome);
        const QSignalSpy changed(&watch, &CConsentWatch::changed);
        QCOMPARE(watch.consent(), Consent::No);
        tab.answer.setProperty("dataPrivacyApplyEnabled", true);
        tab.answer.setProperty("dataPrivacyOptInEnabled", true);
        QCOMPARE(watch.consent(), Consent::No);
        QCOMPARE(changed.count(), 0);
        tab.answer.setProperty("dataPrivacyApplyEnabled", false);
        QCOMPARE(watch.consent(), Consent::Yes);
        QCOMPARE(changed.count(), 1);
    }

    void testFirstAnswerCounts()
    {
        CAnswerTab tab;
        m_welcome->addTab(&tab);
        const CConsentWatch watch(m_welcome);
        tab.answer.setProperty("dataPrivacyOptInSelected", true);
        QCOMPARE(watch.consent(), Consent::No);
    }

    void testPageComesAndGoes()
    {
        const CConsentWatch watch(m_welcome);
        QCOMPARE(watch.consent(), Consent::NoPage);
        auto tab = std::make_unique<CAnswerTab>();
        m_welcome->addTab(tab.get());
        QCOMPARE(watch.consent(), Consent::Unanswered);
        tab.reset();
        QCOMPARE(watch.consent(), Consent::NoPage);
    }

    void testNoWelcomeScreenIsNoPage()
    {
        CConsentWatch watch({});
        QCOMPARE(watch.consent(), Consent::NoPage);
        QVERIFY(!watch.showPage());
    }

    void testShowsThePage()
    {
        CTestTab other;
        CAnswerTab tab;
        m_welcome->addTab(&other);
        CConsentWatch watch(m_welcome);
        QVERIFY(!watch.showPage());
        m_welcome->addTab(&tab);
        QVERIFY(watch.showPage());
        QVERIFY(m_welcome->isVisible());
        QCOMPARE(m_welcome->currentTab(), &tab);
    }

private:
    CSettingsSandbox m_sandbox;
    QSharedPointer<CNerixWelcomeController> m_welcome;
};

QTEST_MAIN(ConsentWatchTest)

#include "ConsentWatchTest.moc"
