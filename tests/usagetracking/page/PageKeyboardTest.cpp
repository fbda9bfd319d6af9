// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The consent page in the window of the welcome screen, by keyboard alone.

#include "ConsentWindow.h"
#include "TestMain.h"

#include <CHelpHelper.h>
#include <DocumentationHelper.h>

#include <QAccessible>
#include <QLabel>
#include <QQuickWidget>
#include <QQuickWindow>

namespace {

const QString yes = QStringLiteral("yesCheckbox");
const QString no = QStringLiteral("noCheckbox");
const QString apply = QStringLiteral("applyButton");
const QString close = QStringLiteral("closeButton");
const QString launch = QStringLiteral("showOnStartCheckBox");
const QString tabs = QStringLiteral("tabs");
const QString statement = QStringLiteral("DataPrivacy.txt");
const QString faq = QStringLiteral("https://www.ostrand.example/faq");
const QString support = QStringLiteral("https://www.ostrand.example/support/contact");

QStringList reversed(QStringList list)
{
    std::reverse(list.begin(), list.end());
    return list;
}

void store(bool answered)
{
    storeKeys(answered ? QVariant(true) : QVariant(), answered ? QVariant(true) : QVariant());
}

} // namespace

class PageKeyboardTest : public QObject
{
    Q_OBJECT

private:
    QStringList m_opened;

private Q_SLOTS:
    void init()
    {
        m_opened.clear();
        CHelpHelper::setHandler([this](CHelpHelper::HelpType type) {
            m_opened.append(QStringLiteral("help %1").arg(int(type)));
            return true;
        });
        DocumentationHelper::setHandler([this](const QUrl &url, bool) {
            m_opened.append(url.toString());
            return true;
        });
    }

    void cleanup()
    {
        CHelpHelper::setHandler({});
        DocumentationHelper::setHandler({});
    }

    void keyWalksThroughAllThatCanBeUsed_data()
    {
        QTest::addColumn<bool>("answered");
        QTest::addColumn<int>("key");
        QTest::addColumn<QStringList>("stops");

        // Without an answer Apply, Close and the box are disabled.
        const QStringList unanswered{yes, no, statement, faq, support};
        const QStringList answered{yes, no, support, statement, faq, support, close, launch};
        const QStringList out{tabs};
        QTest::newRow("Tab, unanswered") << false << int(Qt::Key_Tab) << unanswered + out;
        QTest::newRow("Shift+Tab, unanswered")
            << false << int(Qt::Key_Backtab) << reversed(unanswered) + out;
        QTest::newRow("Tab, answered") << true << int(Qt::Key_Tab) << answered + out;
        QTest::newRow("Shift+Tab, answered")
            << true << int(Qt::Key_Backtab) << reversed(answered) + out;
        QTest::newRow("Right") << true << int(Qt::Key_Right) << answered + answered;
        QTest::newRow("Down") << true << int(Qt::Key_Down) << answered + answered;
        QTest::newRow("Left") << true << int(Qt::Key_Left) << reversed(answered + answered);
        QTest::newRow("Up") << true << int(Qt::Key_Up) << reversed(answered + answered);
    }

    void keyWalksThroughAllThatCanBeUsed()
    {
        QFETCH(bool, answered);
        QFETCH(int, key);
        QFETCH(QStringList, stops);
        store(answered);
        ConsentWindow page;
        QStringList walked;
        for (int i = 0; i < stops.size(); ++i) {
            page.press(Qt::Key(key));
            walked.append(page.focus());
        }
        QCOMPARE(walked, stops);
    }

    void nothingIsChosenByWalking()
    {
        store(false);
        ConsentWindow page;
        QVERIFY(page.walkTo(tabs));
        QVERIFY(!page.of("yesCheckbox", "checked").toBool());
        QVERIFY(!page.of("noCheckbox", "checked").toBool());
        QVERIFY(!page.of("applyButton", "enabled").toBool());
    }

    void keyPressesWhereItStands_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Space") << int(Qt::Key_Space);
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }

    void keyPressesWhereItStands()
    {
        QFETCH(int, key);
        store(false);
        ConsentWindow page;
        QVERIFY(page.walkTo(yes));
        page.press(Qt::Key(key));
        QVERIFY(page.of("yesCheckbox", "checked").toBool());
        QVERIFY(page.walkTo(no));
        page.press(Qt::Key(key));
        QVERIFY(page.of("noCheckbox", "checked").toBool());
        QVERIFY(!page.of("yesCheckbox", "checked").toBool());
        // On the answer already held.
        page.press(Qt::Key(key));
        QVERIFY(page.of("noCheckbox", "checked").toBool());

        QVERIFY(page.walkTo(apply));
        page.press(Qt::Key(key));
        QVERIFY(page.fixture.controller()->dataPrivacyOptInSelected());
        QVERIFY(!page.fixture.controller()->appliedOptInEnabled());

        QVERIFY(page.walkTo(launch));
        page.press(Qt::Key(key));
        QVERIFY(!page.welcome.showAtStartup());
        QVERIFY(!page.of("showOnStartCheckBox", "checked").toBool());
        page.press(Qt::Key(key));
        QVERIFY(page.welcome.showAtStartup());

        QVERIFY(page.walkTo(close));
        page.press(Qt::Key(key));
        QVERIFY(!page.window->isVisible());
    }

    void keyFollowsALink_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("opened");
        QTest::newRow("Space, statement") << int(Qt::Key_Space) << statement << "help 5";
        QTest::newRow("Return, FAQ") << int(Qt::Key_Return) << faq << faq;
        QTest::newRow("Enter, support") << int(Qt::Key_Enter) << support << support;
    }

    void keyFollowsALink()
    {
        QFETCH(int, key);
        QFETCH(QString, link);
        QFETCH(QString, opened);
        store(false);
        ConsentWindow page;
        QVERIFY(page.walkTo(link));
        page.press(Qt::Key(key));
        QCOMPARE(m_opened, QStringList(opened));
    }

    // The page says where it is, so that a screen can be magnified there.
    void frameStandsAroundTheLink_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "ja", "ko", "zh"}) {
            QTest::newRow(language) << QString::fromLatin1(language);
        }
    }

    void frameStandsAroundTheLink()
    {
        QFETCH(QString, language);
        store(false);
        ConsentWindow page;
        page.fixture.plugin->setLanguage(language);
        QQuickItem *label = page.item("trackingLabelTwo");
        for (const QString &link : {statement, faq, support}) {
            QVERIFY(page.walkTo(link));
            const QQuickItem *stop = page.page()->quickWindow()->activeFocusItem();
            int frames = 0;
            for (const QQuickItem *frame : stop->childItems()) {
                if (frame->objectName() != QLatin1String("linkFrame")) {
                    continue;
                }
                ++frames;
                const QPointF middle =
                    label->mapFromItem(frame, {frame->width() / 2, frame->height() / 2});
                QString found;
                QMetaObject::invokeMethod(label, "linkAt", Q_RETURN_ARG(QString, found),
                                          Q_ARG(qreal, middle.x()), Q_ARG(qreal, middle.y()));
                QCOMPARE(found, link);
                QVERIFY(label->contains(middle));
            }
            QVERIFY(frames >= 1);
        }
    }

    void linkHasANameForScreenReaders()
    {
        store(false);
        ConsentWindow page;
        QVERIFY(page.walkTo(faq));
        QObject *stop = page.page()->quickWindow()->activeFocusItem();
        const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(stop);
        QVERIFY(reader);
        QCOMPARE(reader->role(), QAccessible::Link);
        QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("FAQs"));
    }

    void firstStartByKeyboardAlone()
    {
        store(false);
        ConsentWindow page;
        page.press(Qt::Key_Escape);
        QVERIFY(page.window->isVisible());
        QVERIFY(!page.window->findChild<QLabel *>("notice")->text().isEmpty());

        page.press(Qt::Key_Tab);
        QCOMPARE(page.focus(), yes);
        page.press(Qt::Key_Right);
        QCOMPARE(page.focus(), no);
        page.press(Qt::Key_Left);
        page.press(Qt::Key_Space);
        QVERIFY(page.walkTo(apply));
        page.press(Qt::Key_Return);
        QVERIFY(page.fixture.controller()->appliedOptInEnabled());
        QVERIFY(page.fixture.trackingActive());
        QVERIFY(page.window->findChild<QLabel *>("notice")->text().isEmpty());
        // Apply is disabled now, so the keyboard is at its neighbour.
        QCOMPARE(page.focus(), close);
        page.press(Qt::Key_Return);
        QVERIFY(!page.window->isVisible());
        QVERIFY(!page.welcome.isVisible());
    }

    void escapeClosesTheWindowOnceAnswered()
    {
        store(true);
        ConsentWindow page;
        QVERIFY(page.walkTo(faq));
        page.press(Qt::Key_Escape);
        QVERIFY(!page.window->isVisible());
    }

    // Nobody who uses the mouse sees where the keyboard is.
    void mouseShowsNoFocus()
    {
        store(false);
        ConsentWindow page;
        QCOMPARE(page.focus(), QString());
        const QQuickItem *tile = page.item("yesCheckbox");
        QWidget *widget = page.page();
        QTest::mouseClick(widget, Qt::LeftButton, {},
                          tile->mapToScene({tile->width() / 2, tile->height() / 2}).toPoint());
        QVERIFY(page.of("yesCheckbox", "checked").toBool());
        QCOMPARE(page.focus(), QString());
    }
};

NERIX_TEST_MAIN(PageKeyboardTest)
#include "PageKeyboardTest.moc"
