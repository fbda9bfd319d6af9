// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The consent as the page shows it and as it is applied.

#include "MessageLog.h"
#include "TestMain.h"

#include <CHelpHelper.h>
#include <DocumentationHelper.h>

#include <internal/CDataPrivacyTab.h>
#include <internal/CDataPrivacyTabController.h>

#include <QQmlContext>
#include <QQmlEngine>
#include <QSignalSpy>

using namespace Plugin::UsageTracking::Internal;

namespace {

/// Writes down the controller's signals with the state that a receiver sees at that moment.
class SignalLog : public QObject
{
public:
    explicit SignalLog(CDataPrivacyTabController &observed)
        : controller(observed)
    {
        using C = CDataPrivacyTabController;
        connect(&controller, &C::dataPrivacyOptInSelectedChanged, this,
                [this] { note("selected"); });
        connect(&controller, &C::dataPrivacyOptInEnabledChanged, this, [this] { note("enabled"); });
        connect(&controller, &C::dataPrivacyApplyEnabledChanged, this, [this] { note("apply"); });
        connect(&controller, &C::dataPrivacyApplyClicked, this, [this] { note("clicked"); });
    }

    QStringList take()
    {
        QStringList taken;
        entries.swap(taken);
        return taken;
    }

private:
    void note(const char *signal)
    {
        entries.append(QStringLiteral("%1: shown %2, applied %3, selected %4, apply %5")
                           .arg(QLatin1String(signal))
                           .arg(controller.dataPrivacyOptInEnabled())
                           .arg(controller.appliedOptInEnabled())
                           .arg(controller.dataPrivacyOptInSelected())
                           .arg(controller.dataPrivacyApplyEnabled()));
    }

    CDataPrivacyTabController &controller;
    QStringList entries;
};

/// A controller as a page knows it: by the names of its properties and slots.
class Page
{
public:
    Page()
        : controller(nullptr)
        , log(controller)
    {}

    void click(bool yes)
    {
        controller.setProperty("dataPrivacyOptInEnabled", yes);
    }
    void apply()
    {
        QMetaObject::invokeMethod(&controller, "onDataPrivacyApplyClicked");
    }
    bool shown() const
    {
        return controller.property("dataPrivacyOptInEnabled").toBool();
    }
    bool canApply() const
    {
        return controller.property("dataPrivacyApplyEnabled").toBool();
    }
    bool answered() const
    {
        return controller.property("dataPrivacyOptInSelected").toBool();
    }

    CDataPrivacyTabController controller;
    SignalLog log;
};

} // namespace

class ConsentControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshControllerReadsFalseThroughout()
    {
        const Page page;
        QCOMPARE(page.answered(), false);
        QCOMPARE(page.shown(), false);
        QCOMPARE(page.canApply(), false);
        QCOMPARE(page.controller.appliedOptInEnabled(), false);
    }

    void firstClickOnTheDefaultAnswerEnablesApply()
    {
        Page page;
        page.click(false);
        QCOMPARE(page.log.take(),
                 QStringList({"apply: shown 0, applied 0, selected 0, apply 1",
                              "enabled: shown 0, applied 0, selected 0, apply 1"}));
    }

    void repeatedClickBeforeTheFirstApplyStillCounts()
    {
        Page page;
        page.click(true);
        page.log.take();
        page.click(true);
        QCOMPARE(page.log.take(), QStringList{"enabled: shown 1, applied 0, selected 0, apply 1"});
    }

    void clickShowsTheAnswerWithoutApplyingIt()
    {
        Page page;
        page.click(true);
        QCOMPARE(page.log.take(),
                 QStringList({"apply: shown 1, applied 0, selected 0, apply 1",
                              "enabled: shown 1, applied 0, selected 0, apply 1"}));
        QCOMPARE(page.controller.appliedOptInEnabled(), false);
    }

    void firstApplyEmitsApplyThenSelectedThenClicked()
    {
        Page page;
        page.click(true);
        page.log.take();
        page.apply();
        QCOMPARE(page.log.take(),
                 QStringList({"apply: shown 1, applied 1, selected 0, apply 0",
                              "selected: shown 1, applied 1, selected 1, apply 0",
                              "clicked: shown 1, applied 1, selected 1, apply 0"}));
    }

    void laterApplyEmitsApplyThenClicked()
    {
        Page page;
        page.click(true);
        page.apply();
        page.click(false);
        page.log.take();
        page.apply();
        QCOMPARE(page.log.take(),
                 QStringList({"apply: shown 0, applied 0, selected 1, apply 0",
                              "clicked: shown 0, applied 0, selected 1, apply 0"}));
    }

    void applyWithNothingPendingStillDisablesApplyAndTells()
    {
        Page page;
        page.click(true);
        page.apply();
        page.log.take();
        page.apply();
        QCOMPARE(page.log.take(),
                 QStringList({"apply: shown 1, applied 1, selected 1, apply 0",
                              "clicked: shown 1, applied 1, selected 1, apply 0"}));
    }

    void repeatOfTheHeldAnswerAfterAnApplyIsSilent()
    {
        Page page;
        page.click(true);
        page.apply();
        page.log.take();
        page.click(true);
        QCOMPARE(page.log.take(), QStringList());
        QCOMPARE(page.canApply(), false);
    }

    void otherAnswerAfterAnApplyIsShownButNotApplied()
    {
        Page page;
        page.click(true);
        page.apply();
        page.click(false);
        QCOMPARE(page.shown(), false);
        QCOMPARE(page.controller.appliedOptInEnabled(), true);
        QCOMPARE(page.canApply(), true);
    }

    void goingBackToTheAppliedAnswerLeavesApplyEnabled()
    {
        Page page;
        page.click(true);
        page.apply();
        page.click(false);
        page.log.take();
        page.click(true);
        QCOMPARE(page.log.take(), QStringList{"enabled: shown 1, applied 1, selected 1, apply 1"});
    }

    void storedAnswerIsAppliedAtOnceWithoutTouchingApply_data()
    {
        QTest::addColumn<bool>("stored");
        QTest::newRow("no") << false;
        QTest::newRow("yes") << true;
    }

    void storedAnswerIsAppliedAtOnceWithoutTouchingApply()
    {
        QFETCH(bool, stored);
        Page page;
        page.controller.setDataPrivacyOptInEnabled(stored, false);
        QCOMPARE(page.log.take(),
                 QStringList{stored ? "enabled: shown 1, applied 1, selected 0, apply 0"
                                    : "enabled: shown 0, applied 0, selected 0, apply 0"});
    }

    void storedAnswerCountsEvenIfItIsHeldAlready_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<bool>("stored");
        QTest::addColumn<QString>("told");
        QTest::newRow("an answered page, the applied answer")
            << "ya" << true << "enabled: shown 1, applied 1, selected 1, apply 0";
        QTest::newRow("an answered page, the pending answer: applied, Apply stays")
            << "yan" << false << "enabled: shown 0, applied 0, selected 1, apply 1";
        QTest::newRow("an answered page, the other answer: shown, Apply stays")
            << "yan" << true << "enabled: shown 1, applied 1, selected 1, apply 1";
        QTest::newRow("a pending first answer, the same: applied, Apply stays")
            << "y" << true << "enabled: shown 1, applied 1, selected 0, apply 1";
        QTest::newRow("a pending first answer, the other one: shown, Apply stays")
            << "y" << false << "enabled: shown 0, applied 0, selected 0, apply 1";
    }

    void storedAnswerCountsEvenIfItIsHeldAlready()
    {
        QFETCH(QString, steps);
        QFETCH(bool, stored);
        QFETCH(QString, told);
        Page page;
        for (const QChar step : steps) {
            if (step == QLatin1Char('a')) {
                page.apply();
            } else {
                page.click(step == QLatin1Char('y'));
            }
        }
        page.log.take();
        page.controller.setDataPrivacyOptInEnabled(stored, false);
        QCOMPARE(page.log.take(), QStringList(told));
    }

    void storedFlagTellsOnlyAChange()
    {
        Page page;
        page.controller.setDataPrivacyOptInSelected(false);
        QCOMPARE(page.log.take(), QStringList());
        page.controller.setDataPrivacyOptInSelected(true);
        page.controller.setDataPrivacyOptInSelected(true);
        QCOMPARE(page.log.take(), QStringList{"selected: shown 0, applied 0, selected 1, apply 0"});
    }

    void linksGoToTheHelpOrToTheBrowser_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("reached");
        QTest::newRow("the privacy statement is help type 5") << "DataPrivacy.txt"
                                                              << "help 5";
        QTest::newRow("any address that contains it, too")
            << "https://ostrand.example/DataPrivacy.txt?x"
            << "help 5";
        QTest::newRow("lower case is just an address")
            << "https://ostrand.example/dataprivacy.txt"
            << "open https://ostrand.example/dataprivacy.txt 0";
        QTest::newRow("any other address") << "https://ostrand.example/faq"
                                           << "open https://ostrand.example/faq 0";
    }

    void linksGoToTheHelpOrToTheBrowser()
    {
        QFETCH(QString, link);
        QString reached;
        CHelpHelper::setHandler([&](CHelpHelper::HelpType type) {
            reached += QStringLiteral("help %1").arg(int(type));
            return false;
        });
        DocumentationHelper::setHandler([&](const QUrl &url, bool inViewer) {
            reached += QStringLiteral("open %1 %2").arg(url.toString()).arg(inViewer);
            return false;
        });
        Page page;
        QMetaObject::invokeMethod(&page.controller, "onDataPrivacyLinkClicked",
                                  Q_ARG(QString, link));
        CHelpHelper::setHandler({});
        DocumentationHelper::setHandler({});
        QTEST(reached, "reached");
    }

    void lowerCaseFileNameIsAnAddressAndRefusedWithAWarning()
    {
        QStringList reached;
        CHelpHelper::setHandler([&](CHelpHelper::HelpType) {
            reached.append("help");
            return false;
        });
        DocumentationHelper::setHandler([&](const QUrl &, bool) {
            reached.append("browser");
            return false;
        });
        Page page;
        const MessageLog log;
        QMetaObject::invokeMethod(&page.controller, "onDataPrivacyLinkClicked",
                                  Q_ARG(QString, QStringLiteral("dataprivacy.txt")));
        CHelpHelper::setHandler({});
        DocumentationHelper::setHandler({});
        QCOMPARE(reached, QStringList());
        QCOMPARE(log.texts(),
                 QStringList{"not opened: dataprivacy.txt (only http, https and mailto addresses "
                             "are)"});
    }

    void tabTellsTheViewerWhatItIs()
    {
        CDataPrivacyTab tab(nullptr);
        QCOMPARE(tab.tabId().toString(), QStringLiteral("UsageTracking.NerixWelcome.DataPrivacy"));
        QCOMPARE(tab.tabTitle(), QStringLiteral("Data Privacy"));
        QCOMPARE(tab.tabQmlSource(), QUrl("qrc:///usagetracking/qml/DataPrivacy.qml"));
        QCOMPARE(tab.isApplyNeeded(), true);
        QCOMPARE(tab.dataPrivacyController()->parent(), &tab);
    }

    void tabPublishesTheControllerOnThePagesContext()
    {
        QQmlEngine engine;
        QQmlContext context(engine.rootContext());
        CDataPrivacyTab tab(nullptr);
        QVERIFY(tab.setupQmlContext(&context));
        QCOMPARE(context.contextProperty("_dataPrivacyController").value<QObject *>(),
                 tab.dataPrivacyController());
    }

    void tabNeedsAnAnswerUntilOneIsApplied()
    {
        CDataPrivacyTab tab(nullptr);
        QSignalSpy changed(&tab, &CDataPrivacyTab::applyIsNeededChanged);
        CDataPrivacyTabController *controller = tab.dataPrivacyController();
        controller->setProperty("dataPrivacyOptInEnabled", true);
        QCOMPARE(tab.isApplyNeeded(), true);
        controller->onDataPrivacyApplyClicked();
        QCOMPARE(tab.isApplyNeeded(), false);
        QCOMPARE(changed.count(), 1);
        controller->onDataPrivacyApplyClicked();
        QCOMPARE(changed.count(), 1);
    }

    void controllerDiesWithItsTab()
    {
        auto tab = std::make_unique<CDataPrivacyTab>(nullptr);
        const QPointer<CDataPrivacyTabController> controller = tab->dataPrivacyController();
        tab.reset();
        QVERIFY(controller.isNull());
    }
};

NERIX_TEST_MAIN(ConsentControllerTest)
#include "ConsentControllerTest.moc"
