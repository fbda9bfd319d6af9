// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CAttackRig.h"
#include "GvspPackets.h"
#include "HostileDescription.h"
#include "plugins/camerapool/CCameraControl.h"

#include <QtEndian>
#include <QTest>

using namespace GvspPackets;

// What is sent to the stream of a camera that grabs, by itself and by others: an image counts if it
// is whole and the camera's own, and nothing else matters.
class StreamAttackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void camerasImagesCount_data();
    void camerasImagesCount();
    void strangersPacketsDoNotCount_data();
    void strangersPacketsDoNotCount();
    void strangersAnswersAreNotBelieved();
    void sizesThatCannotBeAreRefusedWithASentence_data();
    void sizesThatCannotBeAreRefusedWithASentence();
    void camerasOwnPacketsEndNothing_data();
    void camerasOwnPacketsEndNothing();
};

namespace {

const QByteArray Strange("127.0.0.2");

// Frames in which a packet ends early. What it lacks of its header the receiver may still have from
// the packet before, which is of another frame.
QList<QByteArray> shortened(Content content, int length, Ids ids)
{
    const QByteArray payload = QByteArray(7, '\0') + QByteArray(600, 'd');
    QList<QByteArray> packets;
    for (quint64 frame = 1; frame < 40; frame += 2) {
        packets.append(leader(frame, 64, 100, Image, 0x01080001, ids));
        packets.append(leader(frame + 1, 64, 100, Image, 0x01080001, ids));
        packets.append(packet(content, frame + 1, 3, payload, ids));
        packets.append(packet(content, frame, 3, payload, ids).left(length));
    }
    return packets;
}

QList<QByteArray> images(char value)
{
    QList<QByteArray> packets;
    for (quint64 frame = 1; frame <= 96; ++frame) {
        packets.append(image(frame, 64, 100, value));
    }
    return packets;
}

// An offset that follows from a short number lies behind the end of an image whose packets were
// counted by long numbers: these leave less room for data.
QList<QByteArray> mixedNumbers(int size)
{
    const int count = (size + 1451) / 1452;
    return {leader(1, 64, quint32(size / 64), Image, 0x01080001, Extended),
            packet(Data, 1, quint32(count), QByteArray(100, 's'), Short)};
}

} // namespace

void StreamAttackTest::camerasImagesCount_data()
{
    QTest::addColumn<int>("ids");
    QTest::addColumn<bool>("tellsPort");
    QTest::newRow("short numbers, from the port that it told") << int(Short) << true;
    QTest::newRow("long numbers, where it said so") << int(Extended) << true;
    QTest::newRow("from any port of it where it told none") << int(Short) << false;
}

void StreamAttackTest::camerasImagesCount()
{
    QFETCH(int, ids);
    QFETCH(bool, tellsPort);
    CAttackRig rig;
    rig.camera().setNumber(HostileDescription::ExtendedIds, ids == Extended ? 1 : 0);
    if (!tellsPort) {
        rig.camera().setNumber(0xd1c, 0);
    }
    QVERIFY(rig.open());
    QVERIFY(rig.startGrab());
    const CUdpSocket other(rig.camera().address());
    quint64 frame = 0;
    QVERIFY(QTest::qWaitFor(
        [&] {
            rig.send(image(++frame, 64, 100, 'a', Ids(ids)),
                     tellsPort ? rig.camera().streamSocket() : other);
            return rig.arrivedValues().contains('a');
        },
        10000));
    QVERIFY(rig.stopGrab());
}

void StreamAttackTest::strangersPacketsDoNotCount_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QList<QByteArray>>("packets");
    QTest::newRow("whole images of another host") << Strange << images('s');
    QTest::newRow("whole images of another port of the camera's host")
        << QByteArray("127.0.0.1") << images('s');
    QTest::newRow("data shorter than its header") << Strange << shortened(Data, 7, Short);
    QTest::newRow("data that ends in its long header") << Strange << shortened(Data, 19, Extended);
    QTest::newRow("parts that end in their header")
        << Strange << shortened(Multipart, 27, Extended);
}

void StreamAttackTest::strangersPacketsDoNotCount()
{
    QFETCH(QByteArray, from);
    QFETCH(QList<QByteArray>, packets);
    CAttackRig rig;
    QVERIFY(rig.open());
    QVERIFY(rig.startGrab());
    QVERIFY(rig.sendUntilItArrives('a'));
    const CUdpSocket stranger(from);
    rig.send(packets, stranger);
    QVERIFY(rig.sendUntilItArrives('b'));
    QVERIFY2(!rig.arrivedValues().contains('s'), rig.arrivedValues());
    QVERIFY(rig.stopGrab());
}

// The stranger is quicker than the camera and guesses the number of each question.
void StreamAttackTest::strangersAnswersAreNotBelieved()
{
    CAttackRig rig;
    const CUdpSocket stranger(Strange, 3956);
    QVERIFY(stranger.handle() >= 0);
    rig.camera().setAnswering([&](const CUdpSocket::Datagram &question, const QByteArray &answer) {
        QByteArray forged = answer;
        for (int i = 8; i < forged.size(); ++i) {
            forged[i] = '\x7f';
        }
        stranger.send(forged, question.sender);
        return QList<QByteArray>{answer};
    });
    QVERIFY(rig.open());
    QVERIFY(rig.startGrab());
    QVERIFY(rig.sendUntilItArrives('a'));
    QVERIFY(rig.stopGrab());
}

void StreamAttackTest::sizesThatCannotBeAreRefusedWithASentence_data()
{
    QTest::addColumn<QByteArray>("payloadSize"); // the register, in hexadecimal
    QTest::addColumn<quint32>("width");
    QTest::addColumn<QString>("message");
    const QString wrong(
        "Ostrand-XQZ-2000-H1 cannot grab: it announces images of %1 bytes, which does "
        "not fit their format: set the image format anew, or switch the camera off "
        "and on");
    const QString tooLarge("Ostrand-XQZ-2000-H1 cannot grab: it has images of %1 bytes, for which "
                           "this computer has too little memory: make the images smaller, or close "
                           "other programs");
    QTest::newRow("nothing") << QByteArray("0000000000000000") << 64U << wrong.arg("0");
    QTest::newRow("-1") << QByteArray("ffffffffffffffff") << 64U << wrong.arg("-1");
    QTest::newRow("the least number")
        << QByteArray("8000000000000000") << 64U << wrong.arg("-9223372036854775808");
    QTest::newRow("1 TiB") << QByteArray("0000010000000000") << 64U << wrong.arg("1099511627776");
    QTest::newRow("1 TiB, and images of an unknown size")
        << QByteArray("0000010000000000") << 0xffffffffU << tooLarge.arg("1099511627776");
    QTest::newRow("the greatest number, and images of an unknown size")
        << QByteArray("7fffffffffffffff") << 0U << tooLarge.arg("9223372036854775807");
}

void StreamAttackTest::sizesThatCannotBeAreRefusedWithASentence()
{
    QFETCH(QByteArray, payloadSize);
    QFETCH(quint32, width);
    QFETCH(QString, message);
    CAttackRig rig;
    rig.camera().setRegister(HostileDescription::PayloadSize, QByteArray::fromHex(payloadSize));
    rig.camera().setNumber(HostileDescription::Width, width);
    QVERIFY(rig.open());
    rig.pool().pool().control()->grabContinuous(rig.info());
    QVERIFY(rig.pool().waitFor("grabFailed H1"));
    QCOMPARE(rig.pool().lastFailure(), message);
    rig.camera().setNumber(HostileDescription::Width, 64);
    rig.camera().setRegister(HostileDescription::PayloadSize, QByteArray(8, '\0'));
    rig.camera().setHeight(100);
    QVERIFY(rig.startGrab());
    QVERIFY(rig.sendUntilItArrives('b'));
    QVERIFY(rig.stopGrab());
}

void StreamAttackTest::camerasOwnPacketsEndNothing_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QList<QByteArray>>("packets");
    QTest::newRow("data shorter than its header") << 100 << shortened(Data, 7, Short);
    QTest::newRow("data that ends in its long header") << 100 << shortened(Data, 19, Extended);
    QTest::newRow("parts that end in their header") << 100 << shortened(Multipart, 27, Extended);
    QTest::newRow("numbers of two kinds in a frame") << 9000 << mixedNumbers(9000 * 64);
}

void StreamAttackTest::camerasOwnPacketsEndNothing()
{
    QFETCH(int, height);
    QFETCH(QList<QByteArray>, packets);
    CAttackRig rig;
    rig.camera().setHeight(quint32(height));
    QVERIFY(rig.open());
    QVERIFY(rig.startGrab());
    rig.send(packets);
    QVERIFY(rig.sendUntilItArrives('b'));
    QVERIFY(rig.stopGrab());
}

QTEST_GUILESS_MAIN(StreamAttackTest)

#include "StreamAttackTest.moc"
