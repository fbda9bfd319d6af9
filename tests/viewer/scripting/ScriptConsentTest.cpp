// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CScriptRun.h"
#include "plugins/help/CHelpViewService.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "support/CTestTab.h"
#include "support/Texts.h"

#include <QTest>
#include <QUrl>

// What a consent page binds to, and nothing else: the script must get along with that.
class CPageController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dataPrivacyOptInSelected MEMBER m_selected)
    Q_PROPERTY(bool dataPrivacyOptInEnabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(bool dataPrivacyApplyEnabled MEMBER m_applyEnabled)

public:
    bool isEnabled() const
    {
        return m_enabled;
    }

    void setEnabled(bool enabled)
    {
        m_calls.append(enabled ? QStringLiteral("yes") : QStringLiteral("no"));
        m_enabled = enabled;
        m_applyEnabled = true;
    }

    QStringList m_calls;
    QSharedPointer<Plugin::Help::CHelpViewService> m_help =
        QSharedPointer<Plugin::Help::CHelpViewService>::create(
            Plugin::Help::CHelpDocuments(QString()));

public Q_SLOTS:
    void onDataPrivacyApplyClicked()
    {
        m_calls.append(QStringLiteral("apply"));
        m_selected = true;
        m_applyEnabled = false;
    }

    void onDataPrivacyLinkClicked(const QString &url)
    {
        m_calls.append(url);
        if (url != QLatin1String("nothing.txt")) {
            m_help->showAddress(QUrl(url));
        }
    }

private:
    bool m_selected = false;
    bool m_enabled = false;
    bool m_applyEnabled = false;
};

class ScriptConsentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testStateOfAPageThatWasNeverAnswered();
    void testAnswerAndApplyDoWhatThePageDoes();
    void testLinkIsFollowedAsByThePage();
    void testLinkThatShowsNothingIsAFailure();
    void testMisuseIsNamed_data();
    void testMisuseIsNamed();
    void testWithoutAConsentPage();
    void testWithoutAWelcomeScreen();

private:
    QScopedPointer<CScriptRun> m_run;
    QScopedPointer<CPageController> m_page;
    QScopedPointer<CTestTab> m_otherTab;
    QScopedPointer<CTestTab> m_tab;
};

namespace {

const char printState[] = "var s = consent.state();\n"
                          "print(s.answered, s.answer, s.applyEnabled);\n";

} // namespace

void ScriptConsentTest::init()
{
    m_run.reset(new CScriptRun);
    m_page.reset(new CPageController);
    m_otherTab.reset(new CTestTab("Test.News"));
    m_tab.reset(new CTestTab("Test.Privacy"));
    m_tab->setController(m_page.data());
    const auto screen = QSharedPointer<Plugin::NerixWelcome::CNerixWelcomeController>::create();
    screen->addTab(m_otherTab.data());
    screen->addTab(m_tab.data());
    m_run->addService(screen);
    m_run->addService(m_page->m_help);
}

void ScriptConsentTest::cleanup()
{
    m_run.reset();
}

void ScriptConsentTest::testStateOfAPageThatWasNeverAnswered()
{
    QCOMPARE(m_run->run(printState), QString());
    QCOMPARE(m_run->printed(), texts({"false no false"}));
}

void ScriptConsentTest::testAnswerAndApplyDoWhatThePageDoes()
{
    QCOMPARE(m_run->run(QByteArray("consent.answer('no'); consent.answer('yes');\n") + printState
                        + "consent.apply();\n" + printState),
             QString());
    QCOMPARE(m_run->printed(), texts({"false yes true", "true yes false"}));
    QCOMPARE(m_page->m_calls, texts({"no", "yes", "apply"}));
}

void ScriptConsentTest::testLinkIsFollowedAsByThePage()
{
    QCOMPARE(m_run->run("consent.openLink('DataPrivacy.txt');"), QString());
    QCOMPARE(m_page->m_calls, texts({"DataPrivacy.txt"}));
}

void ScriptConsentTest::testLinkThatShowsNothingIsAFailure()
{
    QCOMPARE(
        m_run->run("consent.openLink('nothing.txt');"),
        QStringLiteral("test.js:1: link \"nothing.txt\" was not opened, the log says why: give "
                       "DataPrivacy.txt, or an http, https or mailto address"));
    QCOMPARE(m_page->m_calls, texts({"nothing.txt"}));
}

void ScriptConsentTest::testMisuseIsNamed_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("failure");
    QTest::newRow("an answer that is neither")
        << QByteArray("consent.answer('maybe');")
        << QStringLiteral("test.js:1: the answer is \"maybe\": give \"yes\" or \"no\"");
    QTest::newRow("apply before an answer, as the page has Apply disabled")
        << QByteArray("consent.apply();")
        << QStringLiteral("test.js:1: Apply is disabled: choose an answer first");
}

void ScriptConsentTest::testMisuseIsNamed()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, failure);
    QCOMPARE(m_run->run(script), failure);
    QCOMPARE(m_page->m_calls, QStringList());
}

void ScriptConsentTest::testWithoutAConsentPage()
{
    m_tab.reset();
    QCOMPARE(
        m_run->run("consent.state();"),
        QStringLiteral("test.js:1: the welcome screen has no consent page: plugins.list() says "
                       "whether UsageTracking is running, and Help > Data Privacy whether usage "
                       "tracking is switched off on this computer"));
}

void ScriptConsentTest::testWithoutAWelcomeScreen()
{
    CScriptRun run;
    QCOMPARE(
        run.run("consent.state();"),
        QStringLiteral("test.js:1: plug-in NerixWelcome is not running: plugins.list() says why"));
}

QTEST_MAIN(ScriptConsentTest)

#include "ScriptConsentTest.moc"
