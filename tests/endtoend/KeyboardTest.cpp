// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerProcess.h"

#include <QProcess>
#include <QTest>

// A user without a mouse, on the real windows of the viewer, with keys that come from the X server.
// Names are those that a screen reader says.
class KeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void testFirstStartToWithdrawalByKeyboardAlone();
    void testQuestionCannotBeEscaped();

private:
    QProcess m_windowManager;
};

namespace {

const QString sessionStarted =
    "GeneralEvent\tSessionStarted\t"
    "{\"EventCategory\":\"GeneralEvent\",\"EventName\":\"SessionStarted\"}";

// Tells what has the keyboard and what becomes of the question, and touches nothing.
const char watching[] = R"JS(
var told = {};
function tell(what, value) {
    if (told[what] !== value) {
        told[what] = value;
        print(what + ": " + value);
    }
}
for (;;) {
    var state = consent.state();
    tell("answer", state.answer + (state.applyEnabled ? ", not applied" : ""));
    tell("welcome", welcome.visible() ? "shown" : "closed");
    tell("focus", windows.focus());
    sleep(10);
}
)JS";

void press(const char *key)
{
    QProcess::execute("xdotool", {"key", "--clearmodifiers", key});
}

// What the viewer tells, read once from the first line to the last.
class CStory
{
public:
    explicit CStory(CViewerProcess &viewer)
        : m_viewer(viewer)
    {}

    // Whether \a line comes, behind what was read before.
    bool goesOn(const QString &line)
    {
        if (!comes(line, 30000)) {
            qWarning("\"%s\" does not follow in: %s", qPrintable(line),
                     qPrintable(lines().join(" | ")));
            return false;
        }
        m_read = m_viewer.printed().indexOf(line, m_read) + 1;
        return true;
    }

    // A key that is pressed while the window manager moves the focus is lost; a person presses it
    // again.
    bool after(const char *key, const QString &line)
    {
        press(key);
        if (comes(line, 10000)) {
            return goesOn(line);
        }
        press(key);
        return goesOn(line);
    }

    // Walks from stop to stop.
    bool walk(const QStringList &stops)
    {
        for (const QString &stop : stops) {
            if (!after("Tab", "focus: " + stop)) {
                return false;
            }
        }
        return true;
    }

    // Opens a menu with \a key, whose first entry is then current, and goes down to \a entry.
    bool pick(const char *key, const QString &first, const QString &entry)
    {
        bool moved = after(key, "focus: " + first);
        while (moved && m_viewer.printed().last() != "focus: " + entry) {
            const int before = m_viewer.printed().size();
            press("Down");
            moved = QTest::qWaitFor([&] { return m_viewer.printed().size() > before; }, 30000);
        }
        press("Return");
        return moved;
    }

private:
    bool comes(const QString &line, int milliseconds) const
    {
        return QTest::qWaitFor([&] { return lines().contains(line); }, milliseconds);
    }

    QStringList lines() const
    {
        return m_viewer.printed().mid(m_read);
    }

    CViewerProcess &m_viewer;
    int m_read = 0;
};

} // namespace

void KeyboardTest::initTestCase()
{
    m_windowManager.start("openbox", {"--sm-disable"});
    QVERIFY(m_windowManager.waitForStarted());
}

void KeyboardTest::cleanupTestCase()
{
    m_windowManager.terminate();
    m_windowManager.waitForFinished();
}

void KeyboardTest::testFirstStartToWithdrawalByKeyboardAlone()
{
    CViewerProcess viewer;
    viewer.setOptions({"--show-windows"});
    viewer.start(watching);
    CStory story(viewer);

    // The question of the first start is answered with yes.
    QVERIFY(story.goesOn("answer: no"));
    QVERIFY(story.goesOn("focus: Data Privacy"));
    QVERIFY(story.walk({"Yes"}));
    QVERIFY(story.after("space", "answer: yes, not applied"));
    QVERIFY(story.walk({"No", "Let us know", "privacy statement", "FAQs", "support", "Apply"}));
    QVERIFY(story.after("Return", "answer: yes"));
    QVERIFY(story.goesOn("focus: Close"));
    QVERIFY(story.after("Return", "welcome: closed"));
    QVERIFY(viewer.waitForEvents(
        [](const QStringList &events) { return events.contains(sessionStarted); }));

    // The Help menu brings the page back, and the consent is withdrawn.
    QVERIFY(story.goesOn("focus: Messages"));
    QVERIFY(story.pick("alt+h", "Contents", "Data Privacy"));
    QVERIFY(story.goesOn("welcome: shown"));
    QVERIFY(story.goesOn("focus: Close"));
    QVERIFY(story.walk({"Show this window on launch", "Data Privacy", "Yes", "No"}));
    QVERIFY(story.after("space", "answer: no, not applied"));
    QVERIFY(story.walk({"Let us know", "privacy statement", "FAQs", "support", "Apply"}));
    QVERIFY(story.after("space", "answer: no"));
    QVERIFY(story.goesOn("focus: Close"));
    QVERIFY(story.after("space", "welcome: closed"));
    const QStringList withdrawal = {"ruiSDK\tOptOut\t"};
    QVERIFY(viewer.waitForEvents(
        [&withdrawal](const QStringList &events) { return events == withdrawal; }));

    press("ctrl+q");
    QCOMPARE(viewer.finish(), 0);
    QCOMPARE(viewer.storedEvents(), withdrawal);
    QVERIFY(viewer.settings().contains("OptInEnabled=false\nOptInSelected=true\n"));
}

void KeyboardTest::testQuestionCannotBeEscaped()
{
    CViewerProcess viewer;
    viewer.setOptions({"--show-windows"});
    viewer.start(watching);
    CStory story(viewer);
    QVERIFY(story.goesOn("focus: Data Privacy"));
    press("Escape");
    press("alt+F4");
    QVERIFY(story.walk({"Yes"}));
    QVERIFY(!viewer.printed().contains("welcome: closed"));
    viewer.terminate();
    viewer.finish();
    QCOMPARE(viewer.libraryFiles(), QStringList());
}

QTEST_GUILESS_MAIN(KeyboardTest)

#include "KeyboardTest.moc"
