// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What the page shows in each state of the answer, and what its buttons do.

#include "ConsentPage.h"
#include "TestMain.h"

namespace {

// A step of a user: an item of the page that is clicked.
const char yes[] = "yesCheckbox";
const char no[] = "noCheckbox";
const char apply[] = "applyButton";
const char close[] = "closeButton";
const char launch[] = "showOnStartCheckBox";

const char bottom[] = "selectTrackingLabelBottom";

enum class Stored { Nothing, Yes, No, YesButNeverApplied };

void store(Stored stored)
{
    switch (stored) {
    case Stored::Nothing:
        return storeNoAnswer();
    case Stored::YesButNeverApplied:
        return storeKeys(true, false);
    case Stored::Yes:
    case Stored::No:
        return storeAnswer(stored == Stored::Yes);
    }
}

} // namespace

Q_DECLARE_METATYPE(Stored)

class PageStatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        storeNoAnswer();
    }

    void state_data()
    {
        QTest::addColumn<Stored>("stored");
        QTest::addColumn<QByteArrayList>("clicks");
        QTest::addColumn<bool>("yesChecked");
        QTest::addColumn<bool>("noChecked");
        QTest::addColumn<QString>("bottomBegins");
        QTest::addColumn<bool>("applyEnabled");
        QTest::addColumn<bool>("mayLeave");

        const QString thanks = QStringLiteral("Thank you.");
        const QString sorry = QStringLiteral("Sorry to hear that.");
        const QString nothing;
        QTest::newRow("never applied, nothing clicked")
            << Stored::Nothing << QByteArrayList{} << false << false << nothing << false << false;
        QTest::newRow("never applied, yes clicked")
            << Stored::Nothing << QByteArrayList{yes} << true << false << thanks << true << false;
        QTest::newRow("never applied, no clicked")
            << Stored::Nothing << QByteArrayList{no} << false << true << sorry << true << false;
        QTest::newRow("applied yes, nothing pending")
            << Stored::Yes << QByteArrayList{} << true << false << thanks << false << true;
        QTest::newRow("applied no, nothing pending")
            << Stored::No << QByteArrayList{} << false << true << sorry << false << true;
        QTest::newRow("applied yes, no clicked")
            << Stored::Yes << QByteArrayList{no} << false << true << sorry << true << true;
        QTest::newRow("applied no, yes clicked")
            << Stored::No << QByteArrayList{yes} << true << false << thanks << true << true;

        QTest::newRow("stored yes that was never applied is not shown")
            << Stored::YesButNeverApplied << QByteArrayList{} << false << false << nothing << false
            << false;
        QTest::newRow("first yes applied") << Stored::Nothing << QByteArrayList{yes, apply} << true
                                           << false << thanks << false << true;
        QTest::newRow("first no applied, although it is the answer held")
            << Stored::Nothing << QByteArrayList{no, apply} << false << true << sorry << false
            << true;
        QTest::newRow("never applied, no after yes") << Stored::Nothing << QByteArrayList{yes, no}
                                                     << false << true << sorry << true << false;
        QTest::newRow("click on the applied answer changes nothing")
            << Stored::Yes << QByteArrayList{yes} << true << false << thanks << false << true;
        QTest::newRow("back to the applied answer leaves Apply enabled")
            << Stored::Yes << QByteArrayList{no, yes} << true << false << thanks << true << true;
        QTest::newRow("changed and applied")
            << Stored::Yes << QByteArrayList{no, apply} << false << true << sorry << false << true;
    }

    void state()
    {
        QFETCH(Stored, stored);
        QFETCH(QByteArrayList, clicks);
        store(stored);
        ConsentPage page;
        for (const QByteArray &name : clicks) {
            page.click(name.constData());
        }
        QTEST(page.of(yes, "checked").toBool(), "yesChecked");
        QTEST(page.of(no, "checked").toBool(), "noChecked");
        QTEST(page.of(apply, "enabled").toBool(), "applyEnabled");
        QTEST(page.of(close, "enabled").toBool(), "mayLeave");
        QTEST(page.of(launch, "enabled").toBool(), "mayLeave");
        QFETCH(QString, bottomBegins);
        const QString text = page.of(bottom, "text").toString();
        QCOMPARE(text.left(bottomBegins.size()), bottomBegins);
        QCOMPARE(text.isEmpty(), bottomBegins.isEmpty());
    }

    void firstClickIsShownBeforeAnythingIsApplied()
    {
        ConsentPage page;
        page.click(yes);
        QVERIFY(!page.fixture.controller()->dataPrivacyOptInSelected());
        QVERIFY(!page.fixture.controller()->appliedOptInEnabled());
        QVERIFY(page.of("_dataPrivacyControllerPrivate", "dataPrivacyOptInSelected").toBool());
    }

    void applyHandsTheAnswerOver()
    {
        ConsentPage page;
        page.click(yes);
        page.click(apply);
        QVERIFY(page.fixture.controller()->dataPrivacyOptInSelected());
        QVERIFY(page.fixture.controller()->appliedOptInEnabled());
        QVERIFY(!page.welcome.applyFromTabsIsNeeded());
    }

    void disabledButtonsDoNothing()
    {
        ConsentPage page;
        page.click(apply);
        page.click(close);
        page.click(launch);
        QVERIFY(!page.fixture.controller()->dataPrivacyOptInSelected());
        QVERIFY(page.welcome.isVisible());
        QVERIFY(page.welcome.showAtStartup());
    }

    void closeLeavesTheWelcomeScreen()
    {
        ConsentPage page;
        page.click(no);
        page.click(close);
        QVERIFY(page.welcome.isVisible());
        page.click(apply);
        page.click(close);
        QVERIFY(!page.welcome.isVisible());
    }

    void reloadedPageShowsOnlyWhatTheControllerHolds()
    {
        ConsentPage page;
        page.click(yes);
        page.reload();
        QVERIFY(!page.of("_dataPrivacyControllerPrivate", "dataPrivacyOptInSelected").toBool());
        QCOMPARE(page.of(yes, "checked").toBool(), false);
        QCOMPARE(page.of(no, "checked").toBool(), false);
        QCOMPARE(page.of(bottom, "text").toString(), QString());
        QCOMPARE(page.of(apply, "enabled").toBool(), true);
    }

    void reloadedPageShowsThePendingAnswerOnceOneWasApplied()
    {
        storeAnswer(true);
        ConsentPage page;
        page.click(no);
        page.reload();
        QCOMPARE(page.of(no, "checked").toBool(), true);
        QCOMPARE(page.of(yes, "checked").toBool(), false);
        QCOMPARE(page.of(apply, "enabled").toBool(), true);
    }

    void answerSetFromElsewhereIsShown()
    {
        storeAnswer(true);
        ConsentPage page;
        page.click(no);
        page.click(apply);
        for (const bool answer : {true, false, true}) {
            page.fixture.controller()->setDataPrivacyOptInEnabled(answer, false);
            QCOMPARE(page.of(yes, "checked").toBool(), answer);
            QCOMPARE(page.of(no, "checked").toBool(), !answer);
        }
    }

    void launchBoxFollowsAndSetsTheWelcomeScreen()
    {
        storeAnswer(false);
        ConsentPage page;
        QCOMPARE(page.of(launch, "checked").toBool(), true);
        page.click(launch);
        QCOMPARE(page.welcome.showAtStartup(), false);
        page.welcome.setShowAtStartup(true);
        QCOMPARE(page.of(launch, "checked").toBool(), true);
        page.welcome.setShowAtStartup(false);
        QCOMPARE(page.of(launch, "checked").toBool(), false);
    }

    void answeredByKeyboardAlone()
    {
        ConsentPage page;
        page.item(yes)->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(page.item(yes)->findChild<QQuickItem *>("focusFrame")->isVisible());
        QTest::keyClick(&page.window, Qt::Key_Space);
        QTest::keyClick(&page.window, Qt::Key_Tab);
        QVERIFY(page.item(no)->hasActiveFocus());
        // One link below the tiles and three beside them come before the button.
        for (int stop = 0; stop < 5; ++stop) {
            QTest::keyClick(&page.window, Qt::Key_Tab);
        }
        QVERIFY(page.item(apply)->hasActiveFocus());
        QTest::keyClick(&page.window, Qt::Key_Space);
        QVERIFY(page.fixture.controller()->appliedOptInEnabled());
        page.item(close)->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(&page.window, Qt::Key_Space);
        QVERIFY(!page.welcome.isVisible());
    }
};

NERIX_TEST_MAIN(PageStatesTest)
#include "PageStatesTest.moc"
