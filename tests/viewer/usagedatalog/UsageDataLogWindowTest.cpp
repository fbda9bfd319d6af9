// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CAnswerTab.h"
#include "CToolScript.h"
#include "plugins/appcore/AppCorePlugin.h"
#include "plugins/appcore/IMenuControlService.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/usagedatalog/CConsentWatch.h"
#include "plugins/usagedatalog/CEventStore.h"
#include "plugins/usagedatalog/CUsageDataLogWindow.h"
#include "plugins/usagedatalog/UsageDataLogPlugin.h"
#include "support/CSettingsSandbox.h"
#include "support/CTestWindows.h"

#include <Core/Plugin/ServiceLookup.h>

#include <pluginsystem/CServiceRegistry.h>

#include <memory>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using Plugin::AppCore::IMenuControlService;
using Plugin::NerixWelcome::CNerixWelcomeController;
using Plugin::UsageDataLog::CConsentWatch;
using Plugin::UsageDataLog::CEventStore;
using Plugin::UsageDataLog::CUsageDataLogWindow;

namespace {

constexpr int waitLimit = 30000;

QByteArray line(int number, const char *name, const char *text)
{
    return QStringLiteral("{\"seq\":%1,\"state\":\"pending\",\"time\":\"2026-11-20T18:30:00.123Z\","
                          "\"category\":\"Camera\",\"name\":\"%2\",\"text\":\"%3\"}\n")
        .arg(number)
        .arg(QLatin1String(name), QLatin1String(text))
        .toUtf8();
}

} // namespace

class UsageDataLogWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testEventsAndTheirNumbersAreShown();
    void testSelectedEventShowsItsWholeRecord();
    void testSearchByKeyboard();
    void testConsentIsShown_data();
    void testConsentIsShown();
    void testButtonBringsUpTheConsentPage();
    void testNothingStoredLeavesNothingToDo();
    void testErrorIsShown();
    void testDeletingIsAskedFor_data();
    void testDeletingIsAskedFor();
    void testExportIsTold();
    void testWaitingEventsAreHandedOver();
    void testHandOverThatFailsIsTold();
    void testHandOverNeedsWaitingEvents();
    void testClientIdAndServerAreTold_data();
    void testClientIdAndServerAreTold();
    void testPolicyIsTold_data();
    void testPolicyIsTold();
    void testEscapeClosesTheWindow();
    void testHiddenWindowDoesNotWatch();

    void testEntryOfTheHelpMenuShowsTheWindow();
    void testNoEntryWithoutWindows();

private:
    void start();
    template <class Widget>
    Widget *find(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }
    QString state() const;
    bool waitForEvents(int count) const;

    std::unique_ptr<CSettingsSandbox> m_sandbox;
    std::unique_ptr<CToolScript> m_tool;
    QSharedPointer<CNerixWelcomeController> m_welcome;
    std::unique_ptr<CEventStore> m_store;
    std::unique_ptr<CConsentWatch> m_consent;
    Policy::CUsagePolicy m_policy;
    std::unique_ptr<CUsageDataLogWindow> m_window;
};

void UsageDataLogWindowTest::init()
{
    m_policy = {};
    m_sandbox = std::make_unique<CSettingsSandbox>();
    m_tool = std::make_unique<CToolScript>();
    m_tool->print("follow", line(1, "Opened", "first") + line(2, "Closed", "second\\nline"));
    m_tool->print("stats", "{\"pending\":2,\"delivered\":0}");
    m_welcome = QSharedPointer<CNerixWelcomeController>::create();
}

void UsageDataLogWindowTest::cleanup()
{
    m_window.reset();
    m_consent.reset();
    m_store.reset();
    m_welcome.reset();
    m_tool.reset();
    m_sandbox.reset();
}

void UsageDataLogWindowTest::start()
{
    m_store = std::make_unique<CEventStore>(m_tool->program(), QStringLiteral("folder"));
    m_consent = std::make_unique<CConsentWatch>(m_welcome);
    m_window = std::make_unique<CUsageDataLogWindow>(*m_store, *m_consent, m_policy);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

QString UsageDataLogWindowTest::state() const
{
    return find<QLabel>("state")->text();
}

bool UsageDataLogWindowTest::waitForEvents(int count) const
{
    return QTest::qWaitFor([&] { return find<QTableView>("events")->model()->rowCount() == count; },
                           waitLimit);
}

void UsageDataLogWindowTest::testEventsAndTheirNumbersAreShown()
{
    start();
    QVERIFY(waitForEvents(2));
    QTRY_COMPARE(state(), QStringLiteral("Events: 2. Waiting: 2. Delivered: 0."));
    QVERIFY(find<QPushButton>("export")->isEnabled());
    QVERIFY(find<QPushButton>("delete")->isEnabled());
}

void UsageDataLogWindowTest::testSelectedEventShowsItsWholeRecord()
{
    start();
    QVERIFY(waitForEvents(2));
    QTRY_VERIFY(find<QPushButton>("export")->isEnabled());
    auto *table = find<QTableView>("events");
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Down);
    QTRY_COMPARE(find<QPlainTextEdit>("record")->toPlainText(), QStringLiteral("second\nline"));
    // Tab leaves the table, which has many cells.
    QTest::keyClick(table, Qt::Key_Tab);
    QVERIFY(find<QPlainTextEdit>("record")->hasFocus());
    QTest::keyClick(find<QPlainTextEdit>("record"), Qt::Key_Tab);
    QVERIFY(find<QPushButton>("export")->hasFocus());
}

void UsageDataLogWindowTest::testSearchByKeyboard()
{
    start();
    QVERIFY(waitForEvents(2));
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    auto *search = find<QLineEdit>("search");
    QVERIFY(search->hasFocus());
    QTest::keyClicks(search, QStringLiteral("SECOND"));
    QVERIFY(waitForEvents(1));
    QTRY_COMPARE(state(), QStringLiteral("Events: 2. Waiting: 2. Delivered: 0. Found: 1."));
    search->clear();
    QVERIFY(waitForEvents(2));
}

void UsageDataLogWindowTest::testConsentIsShown_data()
{
    QTest::addColumn<bool>("hasPage");
    QTest::addColumn<bool>("answered");
    QTest::addColumn<bool>("answer");
    QTest::addColumn<QString>("text");
    QTest::newRow("no plug-in") << false << false << false
                                << "Nothing is recorded: the plug-in that records is not there.";
    QTest::newRow("not answered")
        << true << false << false
        << "Nothing is recorded: you have not been asked yet, or have not answered.";
    QTest::newRow("yes") << true << true << true
                         << "You have agreed: how you use the viewer is recorded.";
    QTest::newRow("no") << true << true << false << "You have not agreed: nothing is recorded.";
}

void UsageDataLogWindowTest::testConsentIsShown()
{
    QFETCH(bool, hasPage);
    QFETCH(bool, answered);
    QFETCH(bool, answer);
    CAnswerTab tab;
    start();
    if (hasPage) {
        m_welcome->addTab(&tab);
    }
    tab.answer.setProperty("dataPrivacyOptInEnabled", answer);
    tab.answer.setProperty("dataPrivacyOptInSelected", answered);
    QTEST(find<QLabel>("consent")->text(), "text");
    QCOMPARE(find<QPushButton>("change")->isVisible(), hasPage);
    m_welcome.reset();
}

void UsageDataLogWindowTest::testButtonBringsUpTheConsentPage()
{
    CAnswerTab tab;
    m_welcome->addTab(&tab);
    start();
    find<QPushButton>("change")->click();
    QVERIFY(m_welcome->isVisible());
    QCOMPARE(m_welcome->currentTab(), &tab);
}

void UsageDataLogWindowTest::testNothingStoredLeavesNothingToDo()
{
    m_tool->print("follow", "");
    m_tool->fail("stats", "rui-events: folder: no usage events are stored here\n");
    start();
    QTRY_COMPARE_WITH_TIMEOUT(
        state(), QStringLiteral("Nothing was ever recorded on this computer."), waitLimit);
    QVERIFY(!find<QPushButton>("export")->isEnabled());
    QVERIFY(!find<QPushButton>("delete")->isEnabled());
}

void UsageDataLogWindowTest::testErrorIsShown()
{
    m_tool->print("follow", "");
    m_tool->fail("stats", "rui-events: the database is of a newer version\n");
    start();
    QTRY_COMPARE_WITH_TIMEOUT(state(),
                              QStringLiteral("The events cannot be read: rui-events: the database "
                                             "is of a newer version"),
                              waitLimit);
}

void UsageDataLogWindowTest::testDeletingIsAskedFor_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("left");
    QTest::newRow("Cancel is what Return means") << int(Qt::Key_Return) << 2;
    QTest::newRow("Esc") << int(Qt::Key_Escape) << 2;
    QTest::newRow("Delete") << 0 << 0;
}

void UsageDataLogWindowTest::testDeletingIsAskedFor()
{
    QFETCH(int, key);
    QFETCH(int, left);
    start();
    QVERIFY(waitForEvents(2));
    QTRY_VERIFY(find<QPushButton>("delete")->isEnabled());
    find<QPushButton>("delete")->click();
    auto *question = m_window->findChild<QMessageBox *>();
    QVERIFY(question && question->isVisible());
    const QPointer<QMessageBox> open(question);
    QVERIFY2(question->text().startsWith("Delete all 2 events?"), qPrintable(question->text()));
    QCOMPARE(m_store->model().rowCount(), 2);
    m_tool->print("list", left > 0 ? line(1, "Opened", "first") + line(2, "Closed", "second")
                                   : QByteArray());
    m_tool->print("stats",
                  left > 0 ? "{\"pending\":2,\"delivered\":0}" : "{\"pending\":0,\"delivered\":0}");
    QVERIFY(QTest::qWaitForWindowActive(question));
    if (key != 0) {
        QTest::keyClick(question, Qt::Key(key));
    } else {
        for (QAbstractButton *button : question->buttons()) {
            if (button->text() == QLatin1String("&Delete")) {
                QTest::mouseClick(button, Qt::LeftButton);
                break;
            }
        }
    }
    QVERIFY(!open || !open->isVisible());
    QVERIFY(waitForEvents(left));
}

void UsageDataLogWindowTest::testExportIsTold()
{
    m_tool->print("list", line(1, "Opened", "first"));
    start();
    const QString file = m_sandbox->path() + QStringLiteral("/events.csv");
    m_window->exportTo(file);
    QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>("notice")->text(),
                              QStringLiteral("All events are written to %1").arg(file), waitLimit);
    m_window->exportTo(m_sandbox->path() + QStringLiteral("/no/folder"));
    QVERIFY(find<QLabel>("notice")->text().endsWith(
        "/no/folder cannot be written: No such file or directory"));
}

void UsageDataLogWindowTest::testWaitingEventsAreHandedOver()
{
    start();
    QVERIFY(waitForEvents(2));
    QTRY_VERIFY(find<QPushButton>("handOver")->isEnabled());
    QByteArray exported = line(1, "Opened", "first") + line(2, "Closed", "second");
    exported.replace("pending", "exported");
    m_tool->print("list", exported);
    m_tool->print("stats", "{\"pending\":0,\"delivered\":0,\"exported\":2}");
    m_window->handOverTo(QStringLiteral("/some/file.jsonl"));
    QTRY_COMPARE_WITH_TIMEOUT(
        find<QLabel>("notice")->text(),
        QStringLiteral(
            "The events that waited are written to /some/file.jsonl, and will not be sent."),
        waitLimit);
    QTRY_COMPARE_WITH_TIMEOUT(
        state(), QStringLiteral("Events: 2. Waiting: 0. Delivered: 0. Handed over: 2."), waitLimit);
    QVERIFY(!find<QPushButton>("handOver")->isEnabled());
    QVERIFY(m_tool->calls().contains("export --otlp /some/file.jsonl folder\n"));
}

void UsageDataLogWindowTest::testHandOverThatFailsIsTold()
{
    m_tool->print("list", line(1, "Opened", "first") + line(2, "Closed", "second"));
    m_tool->fail("export", "rui-events: /some/file.jsonl: is there already\n");
    start();
    QVERIFY(waitForEvents(2));
    m_window->handOverTo(QStringLiteral("/some/file.jsonl"));
    QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>("notice")->text(),
                              QStringLiteral("rui-events: /some/file.jsonl: is there already"),
                              waitLimit);
    QCOMPARE(m_store->model().waitingCount(), 2);
}

void UsageDataLogWindowTest::testHandOverNeedsWaitingEvents()
{
    QByteArray delivered = line(1, "Opened", "first");
    delivered.replace("pending", "delivered");
    m_tool->print("follow", delivered);
    m_tool->print("stats", "{\"pending\":0,\"delivered\":1}");
    start();
    QVERIFY(waitForEvents(1));
    QTRY_VERIFY(find<QPushButton>("export")->isEnabled());
    QVERIFY(!find<QPushButton>("handOver")->isEnabled());
}

void UsageDataLogWindowTest::testClientIdAndServerAreTold_data()
{
    QTest::addColumn<QByteArray>("statistics");
    QTest::addColumn<QString>("text");
    QTest::newRow("both") << QByteArray(
        R"("client":"f81d","server":"https://c.example:443/v1/logs")")
                          << "Your client ID: f81d\nServer: c.example";
    QTest::newRow("no server")
        << QByteArray(R"("client":"f81d","server":"")")
        << "Your client ID: f81d\nNo server: the events stay on this computer.";
    QTest::newRow("withdrawn") << QByteArray(
        R"("client":null,"server":"https://c.example:443/v1/logs")")
                               << "You have no client ID.\nServer: c.example";
    QTest::newRow("server not known")
        << QByteArray(R"("client":"f81d","server":null)") << "Your client ID: f81d";
}

void UsageDataLogWindowTest::testClientIdAndServerAreTold()
{
    QFETCH(QByteArray, statistics);
    QFETCH(QString, text);
    m_tool->print("stats", "{" + statistics + ",\"pending\":2,\"delivered\":0}");
    start();
    QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>("identity")->text(), text, waitLimit);
}

void UsageDataLogWindowTest::testPolicyIsTold_data()
{
    using Kind = Policy::CUsagePolicy::Kind;
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasButton");
    QTest::newRow("off by the administrator") << int(Kind::OffByAdministrator)
                                              << "The administrator of this computer has switched "
                                                 "usage tracking off: nothing is recorded "
                                                 "or sent."
                                              << false;
    QTest::newRow("off by the environment") << int(Kind::OffByEnvironment)
                                            << "DO_NOT_TRACK in the environment has switched usage "
                                               "tracking off: nothing is recorded or "
                                               "sent."
                                            << false;
    QTest::newRow("off by a file that makes no sense")
        << int(Kind::OffByUnreadableFile)
        << "Usage tracking is switched off: the administrator's file /etc/ruisdk/policy.json "
           "cannot "
           "be read. Nothing is recorded or sent."
        << false;
    QTest::newRow("nothing may be sent")
        << int(Kind::OnThisComputer)
        << "The administrator of this computer has forbidden to send usage data: what is recorded "
           "stays here."
        << true;
}

void UsageDataLogWindowTest::testPolicyIsTold()
{
    QFETCH(int, kind);
    QFETCH(bool, hasButton);
    CAnswerTab tab;
    tab.answer.setProperty("dataPrivacyOptInEnabled", true);
    tab.answer.setProperty("dataPrivacyOptInSelected", true);
    m_welcome->addTab(&tab);
    m_policy = Policy::CUsagePolicy::Kind(kind);
    start();
    QTEST(find<QLabel>("consent")->text(), "text");
    QCOMPARE(find<QPushButton>("change")->isVisible(), hasButton);
    m_welcome.reset();
}

void UsageDataLogWindowTest::testEscapeClosesTheWindow()
{
    start();
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
}

void UsageDataLogWindowTest::testHiddenWindowDoesNotWatch()
{
    start();
    QVERIFY(waitForEvents(2));
    m_window->close();
    QVERIFY(!m_store->isWatching());
    m_window->show();
    QVERIFY(m_store->isWatching());
}

void UsageDataLogWindowTest::testEntryOfTheHelpMenuShowsTheWindow()
{
    PluginSystem::CServiceRegistry registry;
    const auto windows = QSharedPointer<CTestWindows>::create();
    registry.addService(windows);
    Plugin::AppCore::CAppCorePlugin appCore;
    Plugin::UsageDataLog::CUsageDataLogPlugin plugin(m_tool->program());
    QVERIFY(appCore.preInitialize(&registry) && plugin.preInitialize(&registry));
    const auto menus = Core::Plugin::findService<IMenuControlService>(&registry);
    menus->createActionContainer(Core::CId("NerixViewer.Menu.Help"), QStringLiteral("Help"));
    QVERIFY(plugin.initialize());
    QCOMPARE(menus->entries().at(0).text, QStringLiteral("Usage Data Log"));
    QCOMPARE(menus->entries().at(0).group.toString(),
             QStringLiteral("NerixViewer.Group.Help.Support"));

    QCOMPARE(menus->trigger(Core::CId("UsageDataLog.Action.Show")),
             IMenuControlService::TriggerResult::Triggered);
    const QPointer<QWidget> shown(windows->window()->findChild<CUsageDataLogWindow *>());
    QVERIFY(shown && shown->isVisible());
    QVERIFY(plugin.uninitialize(&registry));
    QVERIFY(!shown);
    QVERIFY(menus->entries().isEmpty());
}

void UsageDataLogWindowTest::testNoEntryWithoutWindows()
{
    PluginSystem::CServiceRegistry registry;
    Plugin::AppCore::CAppCorePlugin appCore;
    Plugin::UsageDataLog::CUsageDataLogPlugin plugin(m_tool->program());
    QVERIFY(appCore.preInitialize(&registry) && plugin.preInitialize(&registry));
    QVERIFY(plugin.initialize());
    QVERIFY(Core::Plugin::findService<IMenuControlService>(&registry)->entries().isEmpty());
    QVERIFY(plugin.uninitialize(&registry));
}

QTEST_MAIN(UsageDataLogWindowTest)

#include "UsageDataLogWindowTest.moc"
