// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerRun.h"
#include "support/CMessageLines.h"
#include "support/Texts.h"

#include <QTest>
#include <QTimer>

// What a plug-in that does not let the viewer close says, it says once for each request.
class ViewerObjectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEachRequestTellsTheObjection();
    void testPluginsAreAskedAgainWithoutWordsAfterAScript();
    void testSignalIsToldOnce();
    void testSignalAfterTheScriptIsToldOnce();
    void testFailedScriptStaysFailedWhenQuitIsChosenMeanwhile();
};

namespace {

const char objection[] = "Plug-in \"A\" does not let the viewer close: wait until it has finished, "
                         "or end what it does";
const char heeded[] = "the signal was heeded but a plug-in objects; send it again to insist";

// Looks at the plug-in again and again, from the event loop.
void whenAsked(CViewerRun &run, int times, const std::function<void()> &action)
{
    auto *timer = new QTimer(&run.viewer());
    QObject::connect(timer, &QTimer::timeout, &run.viewer(), [&run, times, action, timer] {
        if (run.behaviour().closabilityQuestions >= times) {
            timer->stop();
            action();
        }
    });
    timer->start(1);
}

void allowClosingWhenAsked(CViewerRun &run, int times)
{
    run.behaviour().closable = false;
    whenAsked(run, times, [&run] { run.behaviour().closable = true; });
}

QStringList toldOf(const CMessageLines &messages)
{
    QStringList told;
    for (const QString &line : messages.lines()) {
        if (line == QLatin1String(objection) || line == QLatin1String(heeded)) {
            told.append(line);
        }
    }
    return told;
}

} // namespace

void ViewerObjectionTest::testEachRequestTellsTheObjection()
{
    const CMessageLines messages;
    CViewerRun run;
    run.behaviour().closable = false;
    connect(&run.viewer().plugins().registry(),
            &Core::Plugin::IPluginInitializer::initializationDone, &run.viewer(), [&run] {
                run.viewer().requestQuit();
                run.viewer().requestQuit();
                run.behaviour().closable = true;
                QTimer::singleShot(0, &run.viewer(), &Application::CViewer::requestQuit);
            });
    QCOMPARE(run.run(), 0);
    QCOMPARE(toldOf(messages), texts({objection, objection}));
}

void ViewerObjectionTest::testPluginsAreAskedAgainWithoutWordsAfterAScript()
{
    const CMessageLines messages;
    CViewerRun run("sleep(1);");
    allowClosingWhenAsked(run, 3);
    QCOMPARE(run.run(), 0);
    QCOMPARE(toldOf(messages), texts({objection}));
}

void ViewerObjectionTest::testSignalIsToldOnce()
{
    const CMessageLines messages;
    CViewerRun run("sleep(600000);");
    connect(&run.viewer().plugins().registry(),
            &Core::Plugin::IPluginInitializer::initializationDone, &run.viewer(),
            &Application::CViewer::quitBySignal);
    allowClosingWhenAsked(run, 5);
    QCOMPARE(run.run(), 1);
    QCOMPARE(toldOf(messages), texts({objection, heeded}));
}

void ViewerObjectionTest::testSignalAfterTheScriptIsToldOnce()
{
    const CMessageLines messages;
    CViewerRun run("");
    allowClosingWhenAsked(run, 4);
    whenAsked(run, 1, [&run] { run.viewer().quitBySignal(); });
    QCOMPARE(run.run(), 0);
    QCOMPARE(toldOf(messages), texts({objection, heeded}));
}

void ViewerObjectionTest::testFailedScriptStaysFailedWhenQuitIsChosenMeanwhile()
{
    const CMessageLines messages;
    CViewerRun run("fail('reason');");
    run.behaviour().closable = false;
    whenAsked(run, 1, [&run] {
        run.behaviour().closable = true;
        run.viewer().requestQuit();
    });
    QCOMPARE(run.run(), 1);
}

QTEST_MAIN(ViewerObjectionTest)

#include "ViewerObjectionTest.moc"
