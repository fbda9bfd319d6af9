// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Signals that were queued while tracking and are delivered behind the stop: they are heard without
// a session.

#include "TestMain.h"
#include "TrackingFixture.h"

#include <QSemaphore>

namespace {

QString parameterChanged(const char *handle, const char *before, const char *after)
{
    return QStringLiteral("ruiTrackEventText(%1 | ParameterValueChanged | Gain | "
                          R"({"CameraNr":0,"EventCategory":"ParameterValueChanged",)"
                          R"("EventName":"Gain","InitialValue":"%2","ParameterName":"Gain",)"
                          R"("ParameterValue":"%3"} | ))")
        .arg(QLatin1String(handle), QLatin1String(before), QLatin1String(after));
}

const QString openedWithoutASession =
    QStringLiteral("ruiTrackEventText(NULL | Camera | Opened | "
                   R"({"CameraNr":0,"EventCategory":"Camera","EventName":"Opened",)"
                   R"("FeatureStreamStats":"","Model":"Vendor ab1234-50c"} | ))");

/// Queues a stop and, behind it, what \a emission emits. @return the calls behind the end of the
/// session.
QStringList callsBehindTheStop(TrackingFixture &f, const std::function<void()> &emission)
{
    QSemaphore busy;
    QMetaObject::invokeMethod(
        f.provider, [&] { busy.acquire(); }, Qt::QueuedConnection);
    QMetaObject::invokeMethod(f.provider, "stopTracking", Qt::QueuedConnection);
    f.host.inCameraThread(emission);
    busy.release();
    f.settle();
    return f.analytics.takeCalls().mid(3);
}

} // namespace

class QueuedBehindStopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openedCameraIsReportedToANullHandle()
    {
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        f.startQuietly();
        QCOMPARE(callsBehindTheStop(f, [&] { Q_EMIT f.host.cameraStatus->deviceOpened(camera); }),
                 QStringList(openedWithoutASession));
    }

    void enumerationIsReportedToANullHandle()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(callsBehindTheStop(f, [&] { Q_EMIT f.host.enumeration->enumerationChanged(); }),
                 QStringList(QStringLiteral(
                     "ruiTrackEventText(NULL | GeneralEvent | InitialCameraCount | "
                     R"({"EventCategory":"GeneralEvent","EventName":"InitialCameraCount",)"
                     R"("InitialCameraCount":0} | ))")));
    }

    void stopWithoutASessionKeepsTheObserversOfThatCamera_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::newRow("stop") << QByteArray("stopTracking");
        QTest::newRow("opt-out") << QByteArray("stopTrackingAndOptOut");
    }

    void stopWithoutASessionKeepsTheObserversOfThatCamera()
    {
        QFETCH(QByteArray, request);
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.startQuietly();
        callsBehindTheStop(f, [&] { Q_EMIT f.host.cameraStatus->deviceOpened(camera); });
        QMetaObject::invokeMethod(f.provider, request.constData(), Qt::BlockingQueuedConnection);
        QCOMPARE(f.analytics.takeCalls(), QStringList());
        QCOMPARE(f.callsFor([&] { gain->setValueText(QStringLiteral("1")); }),
                 QStringList(parameterChanged("NULL", "", "1")));
    }

    void observersOfThatCameraKeepTheNullHandleUntilTheNextStop()
    {
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.startQuietly();
        callsBehindTheStop(f, [&] { Q_EMIT f.host.cameraStatus->deviceOpened(camera); });
        QCOMPARE(f.callsFor([&] { gain->setValueText(QStringLiteral("1")); }),
                 QStringList(parameterChanged("NULL", "", "1")));

        f.start();
        f.openCamera(camera);
        QCOMPARE(
            f.callsFor([&] { gain->setValueText(QStringLiteral("2")); }),
            QStringList({parameterChanged("NULL", "1", "2"), parameterChanged("#2", "", "2")}));

        f.stop();
        QCOMPARE(f.callsFor([&] { gain->setValueText(QStringLiteral("3")); }), QStringList());
    }
};

NERIX_TEST_MAIN(QueuedBehindStopTest)
#include "QueuedBehindStopTest.moc"
