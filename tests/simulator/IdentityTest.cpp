// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CIdentity.h"

#include <QSet>
#include <QTest>

// The MAC address that is made of serial number and address.
class IdentityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testMacAddressStaysTheSame();
    void testMacAddressIsLocalAndUnicast();
    void testMacAddressesDiffer();
};

void IdentityTest::testMacAddressStaysTheSame()
{
    QCOMPARE(Simulator::macAddress("127000000001", "127.0.0.1"), Q_UINT64_C(0x0261FA462EC7));
}

void IdentityTest::testMacAddressIsLocalAndUnicast()
{
    for (const char *serial : {"", "1", "A-7", "127000000001"}) {
        const auto mac = Simulator::macAddress(serial, "127.0.0.1");
        QCOMPARE(mac >> 40, Q_UINT64_C(0x02));
    }
}

void IdentityTest::testMacAddressesDiffer()
{
    QSet<quint64> found;
    for (int serial = 0; serial < 100; ++serial) {
        for (int last = 1; last < 100; ++last) {
            found.insert(
                Simulator::macAddress(std::to_string(serial), "127.0.0." + std::to_string(last)));
        }
    }
    QCOMPARE(found.size(), 9900);
}

QTEST_APPLESS_MAIN(IdentityTest)

#include "IdentityTest.moc"
