// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// In which order each slot asks the host and sends.

#include "CatchingApplication.h"
#include "HostJournal.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <memory>

using Core::CameraPoolComponents::CameraInfoPtr;

namespace {

/// A running provider at a host that notes every question.
struct Journalled
{
    Journalled()
    {
        tracking.host.removeService(tracking.host.parameterService);
        tracking.host.addService(parameterService);
        tracking.inTrackingThread([this] { tracking.provider->acquireServices(&tracking.host); });
        tracking.startQuietly();
    }

    QStringList entriesFor(const std::function<void()> &emission)
    {
        journal.take();
        tracking.emitFromHost(emission);
        return journal.take();
    }

    HostJournal journal;
    QSharedPointer<JournallingParameterService> parameterService{
        QSharedPointer<JournallingParameterService>::create(journal)};
    QSharedPointer<JournallingCamera> camera{QSharedPointer<JournallingCamera>::create(journal)};
    TrackingFixture tracking;
    FakeCameraStatusService &cameras = *tracking.host.cameraStatus;
};

} // namespace

class SlotOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void connectedSendsThePlainEventBeforeItAsksForTheNumber()
    {
        Journalled j;
        QCOMPARE(j.entriesFor([&] { Q_EMIT j.cameras.deviceConnected(j.camera); }),
                 QStringList({"model", "identity", "send Vendor ab1234-50c", "identity",
                              "send Connected"}));
    }

    void removedAsksForTheModelBeforeTheNumber()
    {
        Journalled j;
        QCOMPARE(j.entriesFor([&] { Q_EMIT j.cameras.deviceDisconnected(j.camera); }),
                 QStringList({"model", "identity", "send Removed"}));
    }

    void selectedAsksAsTheOthersDoAndSendsNothing()
    {
        Journalled j;
        QCOMPARE(j.entriesFor(
                     [&] { Q_EMIT j.tracking.host.deviceSelector->selectionChanged(j.camera); }),
                 QStringList({"model", "identity"}));
    }

    void openedAttachesObserversBeforeTheStreamIsRead()
    {
        Journalled j;
        j.parameterService->collection().add<FakeInteger>("@CameraDevice/Gain");
        QCOMPARE(j.entriesFor([&] { Q_EMIT j.cameras.deviceOpened(j.camera); }),
                 QStringList({"identity", "model", "collection", "parameters", "identity",
                              "SequencerConfigurationMode", "SequenceEnable",
                              "stream of @CameraDevice", "identity", "send Opened"}));
    }

    void openedAsksBothProbesEvenIfTheFirstForbidsTheStream()
    {
        Journalled j;
        j.parameterService->collection()
            .add<FakeEnumeration>("@CameraDevice/SequencerConfigurationMode")
            ->number = 1;
        QCOMPARE(j.entriesFor([&] { Q_EMIT j.cameras.deviceOpened(j.camera); }),
                 QStringList({"identity", "model", "collection", "parameters", "identity",
                              "SequencerConfigurationMode", "SequenceEnable", "identity",
                              "send Opened"}));
    }

    void closedAsksNoProbe()
    {
        Journalled j;
        QCOMPARE(j.entriesFor([&] { Q_EMIT j.cameras.deviceClosing(j.camera); }),
                 QStringList({"model", "collection", "stream of @CameraDevice", "identity",
                              "send Closed"}));
    }

    void grabStartedReadsTheModeFirst()
    {
        Journalled j;
        j.parameterService->collection().add<FakeEnumeration>("@CameraDevice/AcquisitionMode");
        QCOMPARE(
            j.entriesFor([&] { Q_EMIT j.cameras.cameraGrabStarted(j.camera); }),
            QStringList({"collection", "AcquisitionMode", "model", "identity", "send Started"}));
    }

    void grabStoppedReportsFailuresLast()
    {
        Journalled j;
        const auto failure = std::make_shared<Nerix::CGrabResultData>(7U, "...");
        QCOMPARE(j.entriesFor([&] { Q_EMIT j.cameras.cameraImageGrabbed(j.camera, failure); }),
                 QStringList("identity"));
        QCOMPARE(j.entriesFor([&] { Q_EMIT j.cameras.cameraGrabStopped(j.camera); }),
                 QStringList({"collection",   "AcquisitionMode",
                              "collection",   "Statistic_Total_Buffer_Count",
                              "collection",   "Statistic_Failed_Buffer_Count",
                              "collection",   "Statistic_Total_Packet_Count",
                              "collection",   "Statistic_Resend_Request_Count",
                              "collection",   "Statistic_Resend_Packet_Count",
                              "collection",   "Statistic_Failed_Packet_Count",
                              "collection",   "Statistic_Missed_Frame_Count",
                              "collection",   "Statistic_Resynchronization_Count",
                              "display name", "model",
                              "identity",     "send Stopped",
                              "identity",     "identity",
                              "send Failed"}));
    }

    void theCameraIsNumberedAfreshForEveryFailureEvent()
    {
        Journalled j;
        j.entriesFor([&] {
            for (const unsigned code : {1U, 2U, 3U}) {
                Q_EMIT j.cameras.cameraImageGrabbed(
                    j.camera, std::make_shared<Nerix::CGrabResultData>(code, "..."));
            }
        });
        const QStringList entries =
            j.entriesFor([&] { Q_EMIT j.cameras.cameraGrabStopped(j.camera); });
        QCOMPARE(entries.mid(entries.indexOf("send Stopped")),
                 QStringList({"send Stopped", "identity", "identity", "send Failed", "identity",
                              "send Failed", "identity", "send Failed"}));
    }

    void statisticsAreFiledUnderTheIdentity()
    {
        Journalled j;
        QCOMPARE(j.entriesFor([&] {
            Q_EMIT j.cameras.cameraStatisticUpdated(j.camera, 1, 2, 3.0, 4,
                                                    CCompressionStatistic());
        }),
                 QStringList("identity"));
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, SlotOrderTest)
#include "SlotOrderTest.moc"
