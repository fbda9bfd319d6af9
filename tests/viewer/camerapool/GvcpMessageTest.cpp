// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "plugins/camerapool/GvcpMessage.h"

#include <QTest>

using namespace CameraPool;

// The messages of the control protocol, byte by byte.
class GvcpMessageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void questionsAreTheBytesOfTheProtocol();
    void discoveryAnswerGivesTheTexts();
    void textsThatFillTheirFieldHaveNoZero();
    void macAddressStandsForASerialNumberThatIsMissing_data();
    void macAddressStandsForASerialNumberThatIsMissing();
    void damagedDiscoveryAnswerIsRefused_data();
    void damagedDiscoveryAnswerIsRefused();
    void privilegeAnswerTellsWhetherSomebodyControls_data();
    void privilegeAnswerTellsWhetherSomebodyControls();
};

namespace {

// An answer to request 0x1234 with all fields empty.
QByteArray discoveryAnswer()
{
    return QByteArray::fromHex("0000000300f81234") + QByteArray(0xf8, '\0');
}

void put(QByteArray *answer, int offset, const char *text)
{
    answer->replace(8 + offset, int(qstrlen(text)), text);
}

} // namespace

void GvcpMessageTest::questionsAreTheBytesOfTheProtocol()
{
    QCOMPARE(GvcpMessage::discovery(0x1234).toHex(), QByteArray("4201000200001234"));
    QCOMPARE(GvcpMessage::readControlPrivilege(0x0001).toHex(),
             QByteArray("420100800004000100000a00"));
}

void GvcpMessageTest::discoveryAnswerGivesTheTexts()
{
    QByteArray answer = discoveryAnswer();
    put(&answer, 0x48, "Ostrand");
    put(&answer, 0x68, "XQZ-2000");
    put(&answer, 0xd8, "404142");
    put(&answer, 0xe8,
        "Stra\xc3\x9f"
        "e 1");
    CFoundCamera camera;
    QVERIFY(GvcpMessage::parseDiscoveryAnswer(answer, 0x1234, &camera));
    QCOMPARE(camera.vendor, QStringLiteral("Ostrand"));
    QCOMPARE(camera.model, QStringLiteral("XQZ-2000"));
    QCOMPARE(camera.serial, QStringLiteral("404142"));
    QCOMPARE(camera.userName, QString::fromUtf8("Stra\xc3\x9f"
                                                "e 1"));
    QCOMPARE(camera.identity(), QStringLiteral("Ostrand-XQZ-2000-404142"));
}

void GvcpMessageTest::textsThatFillTheirFieldHaveNoZero()
{
    QByteArray answer = discoveryAnswer();
    put(&answer, 0xd8, "0123456789abcdef");
    put(&answer, 0xe8, "fedcba9876543210");
    CFoundCamera camera;
    QVERIFY(GvcpMessage::parseDiscoveryAnswer(answer, 0x1234, &camera));
    QCOMPARE(camera.serial, QStringLiteral("0123456789abcdef"));
    QCOMPARE(camera.userName, QStringLiteral("fedcba9876543210"));
}

void GvcpMessageTest::macAddressStandsForASerialNumberThatIsMissing_data()
{
    QTest::addColumn<QByteArray>("serial");
    QTest::addColumn<QString>("identity");
    QTest::newRow("none") << QByteArray("") << QStringLiteral("Ostrand-XQZ-2000-00ab0cd0ef12");
    QTest::newRow("spaces") << QByteArray("   ") << QStringLiteral("Ostrand-XQZ-2000-00ab0cd0ef12");
    QTest::newRow("given") << QByteArray("404142") << QStringLiteral("Ostrand-XQZ-2000-404142");
}

void GvcpMessageTest::macAddressStandsForASerialNumberThatIsMissing()
{
    QFETCH(QByteArray, serial);
    QByteArray answer = discoveryAnswer();
    answer.replace(8 + 0x08, 8, QByteArray::fromHex("ffff00ab0cd0ef12"));
    put(&answer, 0x48, "Ostrand");
    put(&answer, 0x68, "XQZ-2000");
    put(&answer, 0xd8, serial.constData());
    CFoundCamera camera;
    QVERIFY(GvcpMessage::parseDiscoveryAnswer(answer, 0x1234, &camera));
    QTEST(camera.identity(), "identity");
}

void GvcpMessageTest::damagedDiscoveryAnswerIsRefused_data()
{
    QTest::addColumn<QByteArray>("datagram");
    const QByteArray whole = discoveryAnswer();
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half a header") << whole.left(4);
    QTest::newRow("a byte short") << whole.left(whole.size() - 1);
    QTest::newRow("another request") << QByteArray(whole).replace(6, 2, "\x12\x35", 2);
    QTest::newRow("another answer") << QByteArray(whole).replace(2, 2, "\x00\x81", 2);
    QTest::newRow("an error") << QByteArray(whole).replace(0, 2, "\x80\x01", 2);
}

void GvcpMessageTest::damagedDiscoveryAnswerIsRefused()
{
    QFETCH(QByteArray, datagram);
    CFoundCamera camera;
    camera.serial = QStringLiteral("kept");
    QVERIFY(!GvcpMessage::parseDiscoveryAnswer(datagram, 0x1234, &camera));
    QCOMPARE(camera.serial, QStringLiteral("kept"));
}

void GvcpMessageTest::privilegeAnswerTellsWhetherSomebodyControls_data()
{
    QTest::addColumn<QByteArray>("datagram");
    QTest::addColumn<bool>("isAnswer");
    QTest::addColumn<bool>("isControlled");
    const auto row = [](const char *rule, const char *hex, bool isAnswer, bool isControlled) {
        QTest::newRow(rule) << QByteArray::fromHex(hex) << isAnswer << isControlled;
    };
    row("nobody", "000000810004123400000000", true, false);
    row("exclusive access", "000000810004123400000001", true, true);
    row("control", "000000810004123400000002", true, true);
    row("control, and others may take over", "000000810004123400000006", true, true);
    row("nobody, but a key is set", "000000810004123412340000", true, false);
    row("access denied", "8006008100001234", true, true);
    row("another error", "8001008100001234", false, false);
    row("a value that is cut off", "0000008100041234000000", false, false);
    row("another request", "000000810004123500000002", false, false);
    row("nothing", "", false, false);
}

void GvcpMessageTest::privilegeAnswerTellsWhetherSomebodyControls()
{
    QFETCH(QByteArray, datagram);
    CFoundCamera camera;
    QTEST(GvcpMessage::parsePrivilegeAnswer(datagram, 0x1234, &camera), "isAnswer");
    QTEST(camera.isControlled, "isControlled");
}

QTEST_GUILESS_MAIN(GvcpMessageTest)
#include "GvcpMessageTest.moc"
