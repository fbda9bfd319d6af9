// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <FakeHost.h>

#include <QPair>
#include <QTest>
#include <QThread>

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

namespace {

using CameraStatus = CameraPool::ICameraStatusService;
using ParameterPtr = QSharedPointer<ParameterCollection::IParameter>;

class CTab : public Plugin::NerixWelcome::INerixWelcomeTab
{
    Q_OBJECT

public:
    bool setupQmlContext(QQmlContext *) override
    {
        return true;
    }
};

/// Writes down what it receives, and whether that was in its own thread.
class CReceiver : public QObject
{
    Q_OBJECT

public:
    QString received;

public Q_SLOTS:
    void onNothing()
    {
        note(QStringLiteral("nothing"));
    }
    void onText(const QString &text)
    {
        note(text);
    }
    void onDevice(QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo> device)
    {
        note(nameOf(qSharedPointerDynamicCast<Core::CameraPoolComponents::ICameraInfo>(device)));
    }
    void onCamera(QSharedPointer<Core::CameraPoolComponents::ICameraInfo> camera)
    {
        note(nameOf(camera));
    }
    void onImage(QSharedPointer<Core::CameraPoolComponents::ICameraInfo> camera,
                 const Nerix::CGrabResultPtr &result)
    {
        note(QStringLiteral("%1 %2").arg(nameOf(camera)).arg(result->GetErrorCode()));
    }
    void onStatistic(QSharedPointer<Core::CameraPoolComponents::ICameraInfo> camera, int grabbed,
                     int failed, double fps, quint64 bps, CCompressionStatistic compression)
    {
        note(QStringLiteral("%1 %2 %3 %4 %5 %6")
                 .arg(nameOf(camera))
                 .arg(grabbed)
                 .arg(failed)
                 .arg(fps)
                 .arg(bps)
                 .arg(compression.maximumRatio));
    }
    void onParameter(QSharedPointer<ParameterCollection::IParameter> parameter)
    {
        note(parameter->fullName());
    }

private:
    static QString nameOf(const CameraInfoPtr &camera)
    {
        return camera ? camera->identity() : QStringLiteral("null");
    }

    void note(const QString &text)
    {
        received += QThread::currentThread() == thread() ? text : QStringLiteral("wrong thread");
    }
};

} // namespace

/// Every signal of every interface, sent from one thread and received in another. The connections
/// are made by name, which asks the most of the types.
class QueuedSignalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void testSignal_data();
    void testSignal();
    void testBlockingSignalWaitsForItsReceiver();
    void testArgumentsLiveUntilTheyAreReceived();

private:
    QPair<QObject *, std::function<void()>> sender(const QByteArray &signal);
    void letReceiverCatchUp();

    FakeHost m_host;
    CTab m_tab;
    QThread m_thread;
    QScopedPointer<CReceiver> m_receiver;
    CameraInfoPtr m_camera{new FakeCamera("camera 1")};
    ParameterPtr m_parameter{new FakeInteger(QStringLiteral("@CameraDevice/Gain"))};
};

void QueuedSignalsTest::initTestCase()
{
    m_thread.start();
}

void QueuedSignalsTest::cleanupTestCase()
{
    m_thread.quit();
    m_thread.wait();
}

void QueuedSignalsTest::init()
{
    m_receiver.reset(new CReceiver);
    m_receiver->moveToThread(&m_thread);
}

void QueuedSignalsTest::letReceiverCatchUp()
{
    QMetaObject::invokeMethod(
        m_receiver.data(), [] {}, Qt::BlockingQueuedConnection);
}

/// The sender of \a signal, and how it is emitted.
QPair<QObject *, std::function<void()>> QueuedSignalsTest::sender(const QByteArray &signal)
{
    auto *status = m_host.cameraStatus.data();
    const QHash<QByteArray, QPair<QObject *, std::function<void()>>> senders{
        {"initializationDone", {&m_host, [this] { Q_EMIT m_host.initializationDone(); }}},
        {"enumerationChanged",
         {m_host.enumeration.data(), [this] { Q_EMIT m_host.enumeration->enumerationChanged(); }}},
        {"applyIsNeededChanged", {&m_tab, [this] { Q_EMIT m_tab.applyIsNeededChanged(); }}},
        {"titleChanged", {&m_tab, [this] { Q_EMIT m_tab.titleChanged(); }}},
        {"parameterValueAboutToBeSet",
         {m_parameter.data(), [this] { m_parameter->setValueText(QStringLiteral("12")); }}},
        {"deviceOpened", {status, [=] { Q_EMIT status->deviceOpened(m_camera); }}},
        {"deviceClosing", {status, [=] { Q_EMIT status->deviceClosing(m_camera); }}},
        {"deviceConnected", {status, [=] { Q_EMIT status->deviceConnected(m_camera); }}},
        {"deviceDisconnected", {status, [=] { Q_EMIT status->deviceDisconnected(m_camera); }}},
        {"cameraGrabStarted", {status, [=] { Q_EMIT status->cameraGrabStarted(m_camera); }}},
        {"cameraGrabStopped", {status, [=] { Q_EMIT status->cameraGrabStopped(m_camera); }}},
        {"cameraImageGrabbed",
         {status,
          [=] {
              const auto result = std::make_shared<Nerix::CGrabResultData>(5U, "lost");
              Q_EMIT status->cameraImageGrabbed(m_camera, result);
          }}},
        {"cameraStatisticUpdated",
         {status,
          [=] {
              const CCompressionStatistic compression{0.25, 0.125, 0.5};
              Q_EMIT status->cameraStatisticUpdated(m_camera, 10, 2, 29.5, 12345678901234U,
                                                    compression);
          }}},
        {"selectionChanged",
         {m_host.deviceSelector.data(),
          [this] { Q_EMIT m_host.deviceSelector->selectionChanged({}); }}},
        {"currentChanged",
         {m_host.featureTree.data(),
          [this] { Q_EMIT m_host.featureTree->currentChanged(m_parameter); }}},
    };
    return senders.value(signal);
}

void QueuedSignalsTest::testSignal_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("received");

    const QByteArray device("(QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo>)");
    const QByteArray camera("(QSharedPointer<Core::CameraPoolComponents::ICameraInfo>)");
    const QByteArray parameter("(QSharedPointer<ParameterCollection::IParameter>)");
    const QByteArray image("(QSharedPointer<Core::CameraPoolComponents::ICameraInfo>,"
                           "Nerix::CGrabResultPtr)");
    const QByteArray statistic("(QSharedPointer<Core::CameraPoolComponents::ICameraInfo>,int,int,"
                               "double,quint64,CCompressionStatistic)");
    const auto row = [](const char *signal, const char *slot, const QByteArray &arguments,
                        const char *received) {
        QTest::newRow(signal) << signal + arguments << slot + arguments
                              << QString::fromLatin1(received);
    };
    row("initializationDone", "onNothing", "()", "nothing");
    row("enumerationChanged", "onNothing", "()", "nothing");
    row("applyIsNeededChanged", "onNothing", "()", "nothing");
    row("titleChanged", "onNothing", "()", "nothing");
    row("parameterValueAboutToBeSet", "onText", "(QString)", "12");
    row("deviceOpened", "onDevice", device, "camera 1");
    row("deviceClosing", "onDevice", device, "camera 1");
    row("deviceConnected", "onDevice", device, "camera 1");
    row("deviceDisconnected", "onDevice", device, "camera 1");
    row("cameraGrabStarted", "onCamera", camera, "camera 1");
    row("cameraGrabStopped", "onCamera", camera, "camera 1");
    row("cameraImageGrabbed", "onImage", image, "camera 1 5");
    row("cameraStatisticUpdated", "onStatistic", statistic,
        "camera 1 10 2 29.5 12345678901234 0.5");
    row("selectionChanged", "onDevice", device, "null");
    row("currentChanged", "onParameter", parameter, "@CameraDevice/Gain");
}

void QueuedSignalsTest::testSignal()
{
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, slot);
    QFETCH(QString, received);
    const auto [object, send] = sender(signal.left(signal.indexOf('(')));
    QVERIFY(object);
    // What the macros SIGNAL and SLOT put before a name.
    const bool isConnected = connect(object, ("2" + signal).constData(), m_receiver.data(),
                                     ("1" + slot).constData(), Qt::QueuedConnection);
    QVERIFY(isConnected);

    send();
    letReceiverCatchUp();

    QCOMPARE(m_receiver->received, received);
}

void QueuedSignalsTest::testBlockingSignalWaitsForItsReceiver()
{
    connect(m_host.cameraStatus.data(), &CameraStatus::deviceClosing, m_receiver.data(),
            &CReceiver::onDevice, Qt::BlockingQueuedConnection);

    Q_EMIT m_host.cameraStatus->deviceClosing(m_camera);

    QCOMPARE(m_receiver->received, QStringLiteral("camera 1"));
}

void QueuedSignalsTest::testArgumentsLiveUntilTheyAreReceived()
{
    connect(m_host.cameraStatus.data(), &CameraStatus::deviceDisconnected, m_receiver.data(),
            &CReceiver::onDevice);
    DeviceBaseInfoPtr camera(new FakeCamera("short-lived"));

    Q_EMIT m_host.cameraStatus->deviceDisconnected(camera);
    camera.reset();
    letReceiverCatchUp();

    QCOMPARE(m_receiver->received, QStringLiteral("short-lived"));
}

QTEST_GUILESS_MAIN(QueuedSignalsTest)
#include "QueuedSignalsTest.moc"
