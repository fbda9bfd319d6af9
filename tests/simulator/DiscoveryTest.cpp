// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CControlPort.h"
#include "CSimulatorProcess.h"

#include <arv.h>

#include <atomic>
#include <thread>

#include <QNetworkDatagram>
#include <QSet>
#include <QTest>
#include <QUdpSocket>

namespace {

bool isIsolated()
{
    return qgetenv("NERIX_NETWORK") != "loopback";
}

// The cameras that a broadcast finds, as "identifier address".
QStringList foundCameras()
{
    arv_update_device_list();
    QStringList result;
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i) {
        result.append(QString("%1 %2").arg(arv_get_device_id(i), arv_get_device_address(i)));
    }
    result.sort();
    return result;
}

// Asks again and again without waiting, as often as it can. What was answered: MAC address, vendor
// and model.
QSet<QByteArray> answersUntil(const std::atomic<bool> &isOver)
{
    QUdpSocket socket;
    socket.bind(QHostAddress(QHostAddress::LocalHost));
    QSet<QByteArray> found;
    while (!isOver) {
        socket.writeDatagram(QByteArray::fromHex("4201000200000001"),
                             QHostAddress(QHostAddress::LocalHost), 3956);
        while (socket.hasPendingDatagrams()) {
            const QByteArray presentation = socket.receiveDatagram().data().mid(8);
            found.insert(presentation.mid(0x08, 8).toHex() + ' '
                         + presentation.mid(0x48, 32).constData() + ' '
                         + presentation.mid(0x68, 32).constData());
        }
    }
    return found;
}

} // namespace

// How programs that look for cameras find this one.
class DiscoveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testCameraPresentsItself();
    void testOptionsAreInThePresentation();
    void testBroadcastFindsEachCameraOnce();
    void testRefusedCameraIsNoGhost();
    void testVanishedCameraIsNotFound();
    void testCameraIsItselfFromItsFirstAnswerOn();
};

void DiscoveryTest::testCameraPresentsItself()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    const QByteArray expected = QByteArray(8, '\0')                       //
                                + QByteArray::fromHex("00000261fa462ec7") // MAC address
                                + QByteArray(20, '\0') + QByteArray::fromHex("7f000001") // address
                                + QByteArray(32, '\0');
    const QByteArray found = CControlPort(camera.address()).discover();
    QCOMPARE(found.size(), 248);
    QCOMPARE(found.left(0x48).toHex(), expected.toHex());
    QCOMPARE(found.mid(0x48, 32), QByteArray("Ostrand").leftJustified(32, '\0'));
    QCOMPARE(found.mid(0x68, 32), QByteArray("XQZ-2000").leftJustified(32, '\0'));
    QCOMPARE(found.mid(0xA8, 48), QByteArray("Simulated camera").leftJustified(48, '\0'));
    QCOMPARE(found.mid(0xD8, 16), QByteArray("127000000001").leftJustified(16, '\0'));
    QCOMPARE(found.mid(0xE8, 16), QByteArray(16, '\0')); // no user-defined name
}

void DiscoveryTest::testOptionsAreInThePresentation()
{
    CSimulatorProcess camera({"--vendor", "1234567890123456789012345678901", "--model",
                              "abcdefghijklmnopqrstuvwxyzabcde", "--serial", "A-7", "--user-name",
                              "left"});
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    const QByteArray found = CControlPort(camera.address()).discover();
    QCOMPARE(found.mid(0x48, 32), QByteArray("1234567890123456789012345678901\0", 32));
    QCOMPARE(found.mid(0x68, 32), QByteArray("abcdefghijklmnopqrstuvwxyzabcde\0", 32));
    QCOMPARE(found.mid(0xD8, 16), QByteArray("A-7").leftJustified(16, '\0'));
    QCOMPARE(found.mid(0xE8, 16), QByteArray("left").leftJustified(16, '\0'));
}

void DiscoveryTest::testBroadcastFindsEachCameraOnce()
{
    if (!isIsolated()) {
        QSKIP("a broadcast needs a network of its own");
    }
    CSimulatorProcess first;
    QVERIFY2(first.start(), qPrintable(first.errorText()));
    CSimulatorProcess second({"--address", "127.0.0.2", "--serial", "B-8"});
    QVERIFY2(second.start(), qPrintable(second.errorText()));
    QCOMPARE(foundCameras(), QStringList({"Ostrand-XQZ-2000-127000000001 127.0.0.1",
                                          "Ostrand-XQZ-2000-B-8 127.0.0.2"}));
}

void DiscoveryTest::testRefusedCameraIsNoGhost()
{
    if (!isIsolated()) {
        QSKIP("a broadcast needs a network of its own");
    }
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CSimulatorProcess refused({"--serial", "B-8"});
    QVERIFY(!refused.start());
    QCOMPARE(foundCameras(), QStringList("Ostrand-XQZ-2000-127000000001 127.0.0.1"));
}

void DiscoveryTest::testVanishedCameraIsNotFound()
{
    if (!isIsolated()) {
        QSKIP("a broadcast needs a network of its own");
    }
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    QCOMPARE(camera.command("vanish"), QString("vanished"));
    QCOMPARE(foundCameras(), QStringList());
    QCOMPARE(camera.command("return"), QString("returned"));
    QCOMPARE(foundCameras(), QStringList("Ostrand-XQZ-2000-127000000001 127.0.0.1"));
}

// A program that looks for cameras at the very moment must not meet a camera that has no name yet.
void DiscoveryTest::testCameraIsItselfFromItsFirstAnswerOn()
{
    std::atomic<bool> isOver{false};
    QSet<QByteArray> found;
    std::thread asking([&] { found = answersUntil(isOver); });
    CSimulatorProcess camera;
    bool isFine = camera.start();
    for (int i = 0; i < 50 && isFine; ++i) {
        isFine = camera.command("vanish") == "vanished" && camera.command("return") == "returned";
    }
    isOver = true;
    asking.join();
    QVERIFY(isFine);
    QCOMPARE(found, QSet<QByteArray>{"00000261fa462ec7 Ostrand XQZ-2000"});
}

QTEST_GUILESS_MAIN(DiscoveryTest)

#include "DiscoveryTest.moc"
