// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerRun.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IMenuService.h>

#include <QAction>
#include <QTest>
#include <QThread>
#include <QTimer>

class ViewerScriptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEndOfTheScriptEndsTheViewer_data();
    void testEndOfTheScriptEndsTheViewer();
    void testScriptBeginsWhenEveryPluginIsInitialized();
    void testPluginThatObjectsAtTheEndIsAskedAgain();
    void testSignalBeforeTheScriptBeginsIsAFailure();
    void testSignalEndsTheScriptAndTheViewer_data();
    void testSignalEndsTheScriptAndTheViewer();
};

namespace {

void registerWhenReady(CViewerRun &run, QAction &action)
{
    using Core::Plugin::IPluginInitializer;
    const IPluginInitializer *services = &run.viewer().plugins().registry();
    QObject::connect(
        services, &IPluginInitializer::initializationDone, &action, [services, &action] {
            const Core::AppCoreComponents::CContext everywhere(Core::CId("AppCore.Global.Context"));
            Core::Plugin::findService<Plugin::AppCore::IMenuService>(services)->registerAction(
                &action, Core::CId("Test.Begun"), everywhere);
        });
}

} // namespace

void ViewerScriptTest::testEndOfTheScriptEndsTheViewer_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("status");

    const auto row = [](const char *name, const char *script, int status) {
        QTest::newRow(name) << QByteArray(script) << status;
    };
    row("its last line", "sleep(1);", 0);
    row("an empty script", "", 0);
    row("quit()", "quit(); fail('not reached');", 0);
    row("the Quit entry of the menu", "menu.trigger('NerixViewer.Action.Quit'); sleep(60000);", 0);
    row("an exception", "fail('reason');", 1);
    row("a syntax error", "var = 1;", 1);
}

void ViewerScriptTest::testEndOfTheScriptEndsTheViewer()
{
    QFETCH(QByteArray, script);
    QFETCH(int, status);
    CViewerRun run(script);
    QCOMPARE(run.run(), status);
}

void ViewerScriptTest::testScriptBeginsWhenEveryPluginIsInitialized()
{
    CViewerRun run("plugins.list().forEach(function (plugin) {"
                   "    if (plugin.state !== 'Running') fail(plugin.name);"
                   "});");
    QCOMPARE(run.run(), 0);
}

void ViewerScriptTest::testPluginThatObjectsAtTheEndIsAskedAgain()
{
    CViewerRun run("fail('reason');");
    CTestPlugin::Behaviour &behaviour = run.behaviour();
    behaviour.closable = false;
    QTimer untilAskedTwice;
    connect(&untilAskedTwice, &QTimer::timeout, this,
            [&behaviour] { behaviour.closable = behaviour.closabilityQuestions >= 2; });
    untilAskedTwice.start(1);
    QCOMPARE(run.run(), 1);
    QCOMPARE(behaviour.closabilityQuestions, 3);
}

void ViewerScriptTest::testSignalBeforeTheScriptBeginsIsAFailure()
{
    CViewerRun run("sleep(600000);");
    run.behaviour().work = [&run] { run.viewer().quitBySignal(); };
    QCOMPARE(run.run(), 1);
}

void ViewerScriptTest::testSignalEndsTheScriptAndTheViewer_data()
{
    QTest::addColumn<QByteArray>("script");
    const auto row = [](const char *name, const char *script) {
        QTest::newRow(name) << QByteArray(script);
    };
    row("that sleeps", "sleep(600000);");
    row("that waits", "waitUntil(function () { return false; }, 600000);");
    row("that waits for a camera", "cameras.waitFor('none', 600000);");
    row("that calculates", "while (true) {}");
    row("that catches everything", "while (true) { try { sleep(1); } catch (e) {} }");
}

void ViewerScriptTest::testSignalEndsTheScriptAndTheViewer()
{
    QFETCH(QByteArray, script);
    CViewerRun run("menu.trigger('Test.Begun');" + script);
    // From another thread, as the real signal, once the script is on its way.
    const QScopedPointer<QThread> signal(QThread::create([&run] { run.viewer().quitBySignal(); }));
    QAction begun;
    connect(&begun, &QAction::triggered, this, [&signal] { signal->start(); });
    registerWhenReady(run, begun);
    QCOMPARE(run.run(), 1);
    QVERIFY(signal->wait());
}

QTEST_MAIN(ViewerScriptTest)

#include "ViewerScriptTest.moc"
