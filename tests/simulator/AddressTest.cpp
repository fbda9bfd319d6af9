// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Address.h"

#include "CAddressHold.h"

#include <memory>
#include <stdexcept>

#include <QTest>
#include <QUdpSocket>

// Addresses of this machine, and who holds them.
class AddressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLoopback_data();
    void testLoopback();
    void testLoopbackIsConfigured();
    void testUnknownAddressTellsHowToAddIt();
    void testHoldOwnsTheAddressUntilItsEnd();
    void testHeldAddressIsTaken();
    void testAddressHeldByAnyProgramIsTaken();
    void testOtherPortsAndAddressesAreNotOwned();
};

void AddressTest::testLoopback_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<bool>("isLoopback");

    QTest::newRow("the usual one") << QByteArray("127.0.0.1") << true;
    QTest::newRow("another one") << QByteArray("127.1.2.3") << true;
    QTest::newRow("the last one") << QByteArray("127.255.255.255") << true;
    QTest::newRow("one before") << QByteArray("126.255.255.255") << false;
    QTest::newRow("one after") << QByteArray("128.0.0.0") << false;
    QTest::newRow("all interfaces") << QByteArray("0.0.0.0") << false;
    QTest::newRow("broadcast") << QByteArray("255.255.255.255") << false;
    QTest::newRow("version 6") << QByteArray("::1") << false;
    QTest::newRow("a short form") << QByteArray("127.1") << false;
    QTest::newRow("with a port") << QByteArray("127.0.0.1:80") << false;
    QTest::newRow("with a blank") << QByteArray("127.0.0.1 ") << false;
    QTest::newRow("empty") << QByteArray("") << false;
}

void AddressTest::testLoopback()
{
    QFETCH(QByteArray, address);
    QFETCH(bool, isLoopback);
    QCOMPARE(Simulator::isLoopbackAddress(address.toStdString()), isLoopback);
}

void AddressTest::testLoopbackIsConfigured()
{
    QVERIFY(Simulator::isAddressConfigured("127.0.0.1"));
    Simulator::requireConfigured("127.0.0.1");
}

void AddressTest::testUnknownAddressTellsHowToAddIt()
{
    QVERIFY(!Simulator::isAddressConfigured("127.9.9.9"));
    try {
        Simulator::requireConfigured("127.9.9.9");
        QFAIL("accepted");
    } catch (const std::runtime_error &error) {
        QCOMPARE(QByteArray(error.what()),
                 QByteArray("no interface carries the address 127.9.9.9: as root run"
                            " ip link set lo up; ip addr add 127.9.9.9/8 dev lo"));
    }
}

void AddressTest::testHoldOwnsTheAddressUntilItsEnd()
{
    auto hold = std::make_unique<Simulator::CAddressHold>("127.0.0.1");
    QVERIFY(Simulator::ownsControlPort("127.0.0.1"));
    hold.reset();
    QVERIFY(!Simulator::ownsControlPort("127.0.0.1"));
}

void AddressTest::testHeldAddressIsTaken()
{
    const Simulator::CAddressHold hold("127.0.0.1");
    QVERIFY_EXCEPTION_THROWN(Simulator::CAddressHold("127.0.0.1"), std::runtime_error);
}

void AddressTest::testAddressHeldByAnyProgramIsTaken()
{
    QUdpSocket other;
    QVERIFY(other.bind(QHostAddress(QHostAddress::AnyIPv4), 3956, QUdpSocket::DontShareAddress));
    try {
        const Simulator::CAddressHold hold("127.0.0.1");
        QFAIL("accepted");
    } catch (const std::runtime_error &error) {
        QCOMPARE(QByteArray(error.what()),
                 QByteArray("address 127.0.0.1 is taken by another camera: end that one or choose"
                            " another with --address"));
    }
}

void AddressTest::testOtherPortsAndAddressesAreNotOwned()
{
    QUdpSocket otherPort;
    QVERIFY(otherPort.bind(QHostAddress(QHostAddress::LocalHost)));
    QVERIFY(!Simulator::ownsControlPort("127.0.0.1"));
    const Simulator::CAddressHold hold("127.0.0.1");
    QVERIFY(!Simulator::ownsControlPort("127.0.0.2"));
}

QTEST_GUILESS_MAIN(AddressTest)

#include "AddressTest.moc"
