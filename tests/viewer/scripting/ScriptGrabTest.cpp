// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CScriptRun.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeCameraStatus.h"
#include "support/Texts.h"

#include <QTest>

class ScriptGrabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testSingleReturnsWhenTheGrabHasEnded();
    void testStartAndStop();
    void testWaitForCountsImagesAndFailures();
    void testFiguresOfTheStatusBar();
    void testRefusalBecomesTheFailure();
    void testStopWithoutAGrabIsAFailure();
    void testWaitForWithoutAGrabIsAFailureAtOnce();
    void testWaitForEndsWithTheGrab();
    void testImagesOfTheLastGrabHaveArrived();
    void testFiguresAreZerosBeforeTheFirstGrab();
    void testFiguresOfTheLastGrabStayWhenTheCameraIsGone_data();
    void testFiguresOfTheLastGrabStayWhenTheCameraIsGone();

private:
    void emitImage(bool succeeded);

    QScopedPointer<CScriptRun> m_run;
    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<CFakeCameraStatus> m_status;
    CFakeCameraControl::CameraInfoPtr m_camera;
    QStringList m_requests;
};

void ScriptGrabTest::init()
{
    m_run.reset(new CScriptRun);
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_status = QSharedPointer<CFakeCameraStatus>::create();
    m_run->addService(m_control);
    m_run->addService(m_status);
    m_camera = m_control->plugIn("A-1");
    m_requests.clear();
    m_control->onGrabRequest = [this](const QString &operation,
                                      const CFakeCameraControl::CameraInfoPtr &camera) {
        m_requests.append(operation + QLatin1Char(' ') + camera->identity());
        if (operation != QLatin1String("stop")) {
            Q_EMIT m_status->cameraGrabStarted(camera);
        }
        if (operation != QLatin1String("continuous")) {
            Q_EMIT m_status->cameraGrabStopped(camera);
        }
    };
}

void ScriptGrabTest::cleanup()
{
    m_run.reset();
}

void ScriptGrabTest::emitImage(bool succeeded)
{
    using Nerix::CGrabResultData;
    Q_EMIT m_status->cameraImageGrabbed(
        m_camera, succeeded ? std::make_shared<CGrabResultData>(Nerix::CImage())
                            : std::make_shared<CGrabResultData>(7, "lost packets"));
}

void ScriptGrabTest::testSingleReturnsWhenTheGrabHasEnded()
{
    QCOMPARE(m_run->run("grab.single('A-1'); print(grab.figures('A-1').isGrabbing);"), QString());
    QCOMPARE(m_requests, texts({"single A-1"}));
    QCOMPARE(m_run->printed(), texts({"false"}));
}

void ScriptGrabTest::testStartAndStop()
{
    QCOMPARE(m_run->run("grab.start('A-1'); print(grab.figures('A-1').isGrabbing);\n"
                        "grab.stop('A-1'); print(grab.figures('A-1').isGrabbing);"),
             QString());
    QCOMPARE(m_requests, texts({"continuous A-1", "stop A-1"}));
    QCOMPARE(m_run->printed(), texts({"true", "false"}));
}

void ScriptGrabTest::testWaitForCountsImagesAndFailures()
{
    const auto request = m_control->onGrabRequest;
    m_control->onGrabRequest = [&](const QString &operation, const auto &camera) {
        request(operation, camera);
        QMetaObject::invokeMethod(
            m_status.data(),
            [this] {
                emitImage(true);
                emitImage(false);
                emitImage(true);
            },
            Qt::QueuedConnection);
    };
    QCOMPARE(m_run->run("grab.start('A-1');\n"
                        "grab.waitFor('A-1', 3, 60000);\n"
                        "var f = grab.figures('A-1');\n"
                        "print(f.images, f.failures, f.lastFailure);"),
             QString());
    QCOMPARE(m_run->printed(), texts({"2 1 lost packets"}));
}

void ScriptGrabTest::testFiguresOfTheStatusBar()
{
    const auto request = m_control->onGrabRequest;
    m_control->onGrabRequest = [&](const QString &operation, const auto &camera) {
        Q_EMIT m_status->cameraStatisticUpdated(camera, 10, 2, 29.5, 4096, {});
        request(operation, camera);
    };
    QCOMPARE(m_run->run("grab.start('A-1');\n"
                        "var f = grab.figures('A-1');\n"
                        "print(f.imagesGrabbedCount, f.imagesFailedCount, f.fps, f.bps);"),
             QString());
    QCOMPARE(m_run->printed(), texts({"10 2 29.5 4096"}));
}

void ScriptGrabTest::testRefusalBecomesTheFailure()
{
    m_control->onGrabRequest = [this](const QString &, const auto &camera) {
        Q_EMIT m_control->grabFailed(camera, QStringLiteral("A-1 cannot grab: open it first"));
    };
    QCOMPARE(m_run->run("grab.start('A-1')"),
             QStringLiteral("test.js:1: A-1 cannot grab: open it first"));
}

void ScriptGrabTest::testStopWithoutAGrabIsAFailure()
{
    QCOMPARE(m_run->run("grab.stop('A-1')"),
             QStringLiteral("test.js:1: camera \"A-1\" does not grab: call grab.start first"));
}

void ScriptGrabTest::testWaitForWithoutAGrabIsAFailureAtOnce()
{
    QCOMPARE(m_run->run("grab.waitFor('A-1', 1, 2147483647)"),
             QStringLiteral("test.js:1: camera \"A-1\" does not grab: call grab.start first"));
}

void ScriptGrabTest::testWaitForEndsWithTheGrab()
{
    const auto request = m_control->onGrabRequest;
    m_control->onGrabRequest = [&](const QString &operation, const auto &camera) {
        request(operation, camera);
        QMetaObject::invokeMethod(
            m_status.data(),
            [this] {
                emitImage(true);
                Q_EMIT m_status->cameraGrabStopped(m_camera);
            },
            Qt::QueuedConnection);
    };
    QCOMPARE(m_run->run("grab.start('A-1');\n"
                        "grab.waitFor('A-1', 2, 2147483647);"),
             QStringLiteral("test.js:2: camera \"A-1\" does not grab: call grab.start first"));
}

void ScriptGrabTest::testImagesOfTheLastGrabHaveArrived()
{
    m_control->onGrabRequest = [this](const QString &, const auto &camera) {
        Q_EMIT m_status->cameraGrabStarted(camera);
        emitImage(true);
        Q_EMIT m_status->cameraGrabStopped(camera);
    };
    QCOMPARE(m_run->run("grab.single('A-1'); grab.waitFor('A-1', 1);"), QString());
}

void ScriptGrabTest::testFiguresAreZerosBeforeTheFirstGrab()
{
    QCOMPARE(m_run->run("var f = grab.figures('A-1');\n"
                        "print(f.isGrabbing, f.images, f.failures, '[' + f.lastFailure + ']');\n"
                        "print(f.imagesGrabbedCount, f.imagesFailedCount, f.fps, f.bps);"),
             QString());
    QCOMPARE(m_run->printed(), texts({"false 0 0 []", "0 0 0 0"}));
}

void ScriptGrabTest::testFiguresOfTheLastGrabStayWhenTheCameraIsGone_data()
{
    QTest::addColumn<QByteArray>("camera");
    QTest::newRow("by its identity") << QByteArray("'B-2'");
    QTest::newRow("by its display name") << QByteArray("'Belt'");
    QTest::newRow("by the object of the list") << QByteArray("camera");
}

void ScriptGrabTest::testFiguresOfTheLastGrabStayWhenTheCameraIsGone()
{
    QFETCH(QByteArray, camera);
    const auto gone = m_control->plugIn("B-2", "XQZ-2000", "Belt");
    m_control->onGrabRequest = [&](const QString &, const auto &grabbing) {
        Q_EMIT m_status->cameraGrabStarted(grabbing);
        Q_EMIT m_status->cameraStatisticUpdated(grabbing, 10, 2, 29.5, 4096, {});
        Q_EMIT m_status->cameraGrabStopped(grabbing);
        m_control->unplug(gone);
    };
    QCOMPARE(m_run->run("var camera = cameras.list()[1];\n"
                        "grab.single('B-2');\n"
                        "print(grab.figures("
                        + camera
                        + ").imagesGrabbedCount);\n"
                          "grab.figures('C-3');"),
             QStringLiteral("test.js:4: there is no camera \"C-3\" (connected: A-1)"));
    QCOMPARE(m_run->printed(), texts({"10"}));
}

QTEST_MAIN(ScriptGrabTest)
#include "ScriptGrabTest.moc"
