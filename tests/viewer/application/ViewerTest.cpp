// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerRun.h"
#include "plugins/appcore/IMenuControlService.h"
#include "support/CFakeCameraControl.h"
#include "support/Texts.h"

#include <Core/Plugin/ServiceLookup.h>

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

class ViewerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testQuitEntryEndsTheViewer();
    void testPluginThatObjectsKeepsTheViewerOpen();
    void testSecondSignalInsists();
    void testSignalWhileThePluginsStartEndsTheViewerInOrder();
    void testDevicesAreClosedWhileThePluginsStillListen();
    void testRequestsWhileShuttingDownDoNotCutItShort();
    void testMissingPluginFolderIsOneLine();
    void testEmptyPluginFolderIsOneLine();
};

namespace {

// From the event loop, once every plug-in is initialised.
template <class Action>
void whenReady(CViewerRun &run, Action action)
{
    QObject::connect(&run.viewer().plugins().registry(),
                     &Core::Plugin::IPluginInitializer::initializationDone, &run.viewer(), action,
                     Qt::QueuedConnection);
}

} // namespace

void ViewerTest::testQuitEntryEndsTheViewer()
{
    CViewerRun run;
    whenReady(run, [&run] {
        Core::Plugin::findService<Plugin::AppCore::IMenuControlService>(
            &run.viewer().plugins().registry())
            ->trigger(Core::CId("NerixViewer.Action.Quit"));
    });
    QCOMPARE(run.run(), 0);
    run.viewer().shutDown();
    QCOMPARE(run.behaviour().calls, texts({"aboutToUninitialize", "uninitialize", "destroyed"}));
}

void ViewerTest::testPluginThatObjectsKeepsTheViewerOpen()
{
    CViewerRun run;
    run.behaviour().closable = false;
    int questionsAtFirst = 0;
    whenReady(run, [&] {
        run.viewer().requestQuit();
        questionsAtFirst = run.behaviour().closabilityQuestions;
        run.behaviour().closable = true;
        QTimer::singleShot(0, &run.viewer(), &Application::CViewer::requestQuit);
    });
    QCOMPARE(run.run(), 0);
    QCOMPARE(questionsAtFirst, 1);
    QCOMPARE(run.behaviour().closabilityQuestions, 2);
}

void ViewerTest::testSecondSignalInsists()
{
    CViewerRun run;
    run.behaviour().closable = false;
    QTest::ignoreMessage(QtInfoMsg,
                         "the signal was heeded but a plug-in objects; send it again to insist");
    whenReady(run, [&run] {
        run.viewer().quitBySignal();
        QTimer::singleShot(0, &run.viewer(), &Application::CViewer::quitBySignal);
    });
    QCOMPARE(run.run(), 0);
    QCOMPARE(run.behaviour().closabilityQuestions, 1);
}

void ViewerTest::testSignalWhileThePluginsStartEndsTheViewerInOrder()
{
    CViewerRun run;
    run.behaviour().work = [&run] { run.viewer().quitBySignal(); };
    QCOMPARE(run.run(), 0);
    run.viewer().shutDown();
    QCOMPARE(run.behaviour().calls, texts({"aboutToUninitialize", "uninitialize", "destroyed"}));
}

void ViewerTest::testDevicesAreClosedWhileThePluginsStillListen()
{
    CViewerRun run;
    const auto control = QSharedPointer<CFakeCameraControl>::create();
    run.behaviour().services.append(control);
    QStringList &calls = run.behaviour().calls;
    connect(control.data(), &CameraPool::ICameraControlService::allClosed, this,
            [&calls] { calls.append(QStringLiteral("allClosed")); });
    whenReady(run, [&run] { run.viewer().requestQuit(); });
    QCOMPARE(run.run(), 0);
    QCOMPARE(calls, QStringList());
    run.viewer().shutDown();
    QCOMPARE(calls, texts({"allClosed", "aboutToUninitialize", "uninitialize", "destroyed"}));
}

void ViewerTest::testRequestsWhileShuttingDownDoNotCutItShort()
{
    CViewerRun run;
    const auto control = QSharedPointer<CFakeCameraControl>::create();
    control->setClosesAll(false);
    run.behaviour().services.append(control);
    whenReady(run, [&run] { run.viewer().requestQuit(); });
    QCOMPARE(run.run(), 0);

    const QSignalSpy allClosed(control.data(), &CameraPool::ICameraControlService::allClosed);
    QTimer::singleShot(0, control.data(), [&] {
        run.viewer().quitBySignal();
        run.viewer().quitBySignal();
        QTimer::singleShot(0, control.data(), [&] { Q_EMIT control->allClosed(); });
    });
    run.viewer().shutDown();
    QCOMPARE(allClosed.count(), 1);
}

void ViewerTest::testMissingPluginFolderIsOneLine()
{
    Application::CommandLine options;
    options.pluginFolders.append(QStringLiteral("/nowhere/plugins"));
    CViewerRun run(options);
    QTest::ignoreMessage(QtWarningMsg, "Plug-in folder \"/nowhere/plugins\" does not exist: create "
                                       "it, or do not name it");
    whenReady(run, [&run] { run.viewer().requestQuit(); });
    QCOMPARE(run.run(), 0);
}

void ViewerTest::testEmptyPluginFolderIsOneLine()
{
    CViewerRun run;
    const QString line = QStringLiteral("no plug-in in folder %1/plugins").arg(run.folder());
    QTest::ignoreMessage(QtInfoMsg, qPrintable(line));
    whenReady(run, [&run] { run.viewer().requestQuit(); });
    QCOMPARE(run.run(), 0);
}

QTEST_MAIN(ViewerTest)

#include "ViewerTest.moc"
