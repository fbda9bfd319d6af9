// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CScriptRun.h"
#include "plugins/cameraselector/CDeviceSelectionService.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeCameraStatus.h"
#include "support/Texts.h"

#include <QTest>
#include <QTimer>

class ScriptCamerasTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testListTellsEachCameraWithItsState();
    void testWaitForACount();
    void testWaitForACamera_data();
    void testWaitForACamera();
    void testWaitForGone();
    void testCameraIsMeantBy_data();
    void testCameraIsMeantBy();
    void testOpenAndClose();
    void testOpenWaitsUntilEveryPluginHasHandledTheNews();
    void testOpenNamesAPluginThatNeverHandlesTheNews();
    void testSelect();
    void testEventsAreTakenOnce();
    void testFailureSaysWhatToDo_data();
    void testFailureSaysWhatToDo();
    void testDisplayNameOfTwoCamerasMeansNone();
    void testIdentityComesBeforeTheDisplayNameOfAnother();

private:
    QScopedPointer<CScriptRun> m_run;
    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<CFakeCameraStatus> m_status;
    QSharedPointer<CameraSelector::CDeviceSelectionService> m_selection;
};

void ScriptCamerasTest::init()
{
    m_run.reset(new CScriptRun);
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_status = QSharedPointer<CFakeCameraStatus>::create();
    m_selection = QSharedPointer<CameraSelector::CDeviceSelectionService>::create();
    m_run->addService(m_control);
    m_run->addService(m_status);
    m_run->addService(m_selection);
}

void ScriptCamerasTest::cleanup()
{
    m_run.reset();
}

void ScriptCamerasTest::testListTellsEachCameraWithItsState()
{
    m_control->plugIn("A-1", "XQZ-2000", "Left");
    m_control->plugIn("B-2", "XQZ-3000");
    QCOMPARE(m_run->run("cameras.open('A-1');\n"
                        "cameras.list().forEach(function (c) {\n"
                        "    print(c.identity, c.displayName, c.model, c.vendor, c.state);\n"
                        "});"),
             QString());
    QCOMPARE(m_run->printed(),
             texts({"A-1 Left XQZ-2000 Ostrand open", "B-2 B-2 XQZ-3000 Ostrand free"}));
}

void ScriptCamerasTest::testWaitForACount()
{
    m_control->plugIn("A-1");
    QTimer::singleShot(0, m_control.data(), [this] { m_control->plugIn("B-2"); });
    QCOMPARE(m_run->run("print(cameras.waitFor(2, 60000)[1].identity);"), QString());
    QCOMPARE(m_run->printed(), texts({"B-2"}));
}

void ScriptCamerasTest::testWaitForACamera_data()
{
    QTest::addColumn<QByteArray>("pattern");
    const auto row = [](const char *name, const char *pattern) {
        QTest::newRow(name) << QByteArray(pattern);
    };
    row("identity", "B-2");
    row("display name", "Right of the belt");
    row("model", "XQZ-3000");
    row("pattern with a star", "B*");
    row("pattern with a question mark", "XQZ-?000 (new)");
}

void ScriptCamerasTest::testWaitForACamera()
{
    QFETCH(QByteArray, pattern);
    m_control->plugIn("A-1", "XQZ-20000");
    QTimer::singleShot(0, m_control.data(), [this, pattern] {
        const bool isNew = pattern.contains("new");
        m_control->plugIn("B-2", isNew ? "XQZ-3000 (new)" : "XQZ-3000", "Right of the belt");
    });
    QCOMPARE(m_run->run("print(cameras.waitFor('" + pattern + "', 60000).identity);"), QString());
    QCOMPARE(m_run->printed(), texts({"B-2"}));
}

void ScriptCamerasTest::testWaitForGone()
{
    const auto camera = m_control->plugIn("A-1");
    QTimer::singleShot(0, m_control.data(), [this, camera] { m_control->unplug(camera); });
    QCOMPARE(m_run->run("cameras.waitForGone('A-1', 60000); print(cameras.list().length);"),
             QString());
    QCOMPARE(m_run->printed(), texts({"0"}));
}

void ScriptCamerasTest::testCameraIsMeantBy_data()
{
    QTest::addColumn<QByteArray>("camera");
    const auto row = [](const char *name, const char *camera) {
        QTest::newRow(name) << QByteArray(camera);
    };
    row("identity", "'B-2'");
    row("display name", "'Right'");
    row("object of the list", "cameras.list()[1]");
}

void ScriptCamerasTest::testCameraIsMeantBy()
{
    QFETCH(QByteArray, camera);
    m_control->plugIn("A-1");
    m_control->plugIn("B-2", "XQZ-3000", "Right");
    QCOMPARE(m_run->run("print(cameras.open(" + camera + ").identity);"), QString());
    QCOMPARE(m_run->printed(), texts({"B-2"}));
}

void ScriptCamerasTest::testOpenAndClose()
{
    m_control->plugIn("A-1");
    QCOMPARE(m_run->run("print(cameras.open('A-1').state);\n"
                        "cameras.close('A-1');\n"
                        "print(cameras.list()[0].state);"),
             QString());
    QCOMPARE(m_run->printed(), texts({"open", "free"}));
}

void ScriptCamerasTest::testOpenWaitsUntilEveryPluginHasHandledTheNews()
{
    const auto camera = m_control->plugIn("A-1");
    m_control->setOpeningsHandled(false);
    bool isHandled = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, m_control.data(), [&] {
        isHandled = m_control->state(camera) == CFakeCameraControl::Open;
        m_control->setOpeningsHandled(isHandled);
    });
    timer.start(1);
    QCOMPARE(m_run->run("print(cameras.open('A-1').state);"), QString());
    QCOMPARE(m_run->printed(), texts({"open"}));
    QVERIFY(isHandled);
}

void ScriptCamerasTest::testOpenNamesAPluginThatNeverHandlesTheNews()
{
    m_control->plugIn("A-1");
    m_control->setOpeningsHandled(false);
    QCOMPARE(m_run->run("try { cameras.open('A-1', 20); } catch (e) { print(e.message); }"),
             QString());
    QCOMPARE(m_run->printed(),
             texts({"camera \"A-1\" is open, but a plug-in is not done with the news of it after "
                    "20 ms (connected: A-1)"}));
}

void ScriptCamerasTest::testSelect()
{
    const auto camera = m_control->plugIn("A-1");
    QCOMPARE(m_run->run("print(cameras.selected());\n"
                        "cameras.select('A-1');\n"
                        "print(cameras.selected().identity, cameras.selected().state);\n"
                        "cameras.open('A-1');\n"
                        "print(cameras.selected().state);"),
             QString());
    QCOMPARE(m_run->printed(), texts({"null", "A-1 free", "open"}));
    QCOMPARE(m_selection->selected().data(), camera.data());

    CScriptRun other;
    other.addService(m_control);
    other.addService(m_selection);
    QCOMPARE(other.run("cameras.select(null);"), QString());
    QVERIFY(m_selection->selected().isNull());
}

void ScriptCamerasTest::testEventsAreTakenOnce()
{
    const auto camera = m_control->plugIn("A-1");
    QTimer::singleShot(0, m_status.data(), [this, camera] {
        Q_EMIT m_status->deviceConnected(camera);
        Q_EMIT m_status->deviceOpened(camera);
        Q_EMIT m_status->deviceClosing(camera);
        Q_EMIT m_status->deviceDisconnected(camera);
        Q_EMIT m_status->deviceConnected({});
    });
    QCOMPARE(m_run->run("var events = [];\n"
                        "waitUntil(function () {\n"
                        "    events = events.concat(cameras.takeEvents());\n"
                        "    return events.length >= 4;\n"
                        "}, 60000);\n"
                        "events.forEach(function (e) { print(e.event, e.identity); });\n"
                        "print(cameras.takeEvents().length);"),
             QString());
    QCOMPARE(m_run->printed(),
             texts({"connected A-1", "opened A-1", "closing A-1", "disconnected A-1", "0"}));
}

void ScriptCamerasTest::testFailureSaysWhatToDo_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("openFailure");
    QTest::addColumn<QString>("failure");
    const auto row = [](const char *name, const char *script, const char *openFailure,
                        const char *failure) {
        QTest::newRow(name) << QByteArray(script) << QString::fromUtf8(openFailure)
                            << QString::fromUtf8(failure);
    };
    row("too few cameras", "cameras.waitFor(3, 10);", "",
        "test.js:1: there are not 3 cameras after 10 ms (connected: A-1, B-2)");
    row("a camera that does not come", "cameras.waitFor('C*', 10);", "",
        "test.js:1: there is no camera \"C*\" after 10 ms (connected: A-1, B-2)");
    row("a camera that does not go", "cameras.waitForGone('A*', 10);", "",
        "test.js:1: camera \"A*\" is still there after 10 ms (connected: A-1, B-2)");
    row("a camera that is not there", "cameras.open('C-3');", "",
        "test.js:1: there is no camera \"C-3\" (connected: A-1, B-2)");
    row("a camera that cannot be opened", "cameras.open('A-1');", "camera A-1 is in use",
        "test.js:1: camera A-1 is in use");
}

void ScriptCamerasTest::testFailureSaysWhatToDo()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, openFailure);
    QFETCH(QString, failure);
    m_control->plugIn("A-1");
    m_control->plugIn("B-2");
    m_control->failToOpen(qPrintable(openFailure));
    QCOMPARE(m_run->run(script), failure);
}

void ScriptCamerasTest::testDisplayNameOfTwoCamerasMeansNone()
{
    m_control->plugIn("A-1", "XQZ-2000", "Belt");
    m_control->plugIn("B-2", "XQZ-3000", "Belt");
    QCOMPARE(m_run->run("cameras.open('B-2'); cameras.close('B-2');\n"
                        "cameras.open('Belt');"),
             QStringLiteral("test.js:2: 2 cameras have the name \"Belt\": give the identity of one "
                            "(A-1, B-2)"));
}

void ScriptCamerasTest::testIdentityComesBeforeTheDisplayNameOfAnother()
{
    m_control->plugIn("A-1", "XQZ-2000", "B-2");
    m_control->plugIn("B-2", "XQZ-3000");
    QCOMPARE(m_run->run("print(cameras.open('B-2').model);"), QString());
    QCOMPARE(m_run->printed(), texts({"XQZ-3000"}));
}

QTEST_MAIN(ScriptCamerasTest)

#include "ScriptCamerasTest.moc"
