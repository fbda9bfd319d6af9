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
             QStringLiteral("test.js:1: camera \"A-1\" does not grab"));
}

QTEST_MAIN(ScriptGrabTest)
#include "ScriptGrabTest.moc"
