// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CAttackRig.h"

#include <QTest>

// A camera that answers, but refuses what it is asked: nobody shall look for a broken cable.
class RefusalAttackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testRefusalIsToldInTheWordsOfTheLibrary_data();
    void testRefusalIsToldInTheWordsOfTheLibrary();
};

namespace {

// What the viewer asks for, at an offset of 2 in the question.
constexpr char WriteRegister = '\x82';
constexpr char ReadMemory = '\x84';

// An acknowledgement with a status of the protocol and nothing else.
QByteArray refusal(const QByteArray &question, const char *status)
{
    QByteArray answer(8, '\0');
    answer.replace(0, 2, QByteArray::fromHex(status));
    answer[2] = '\0';
    answer[3] = char(question.at(3) + 1);
    answer.replace(6, 2, question.mid(6, 2));
    return answer;
}

} // namespace

void RefusalAttackTest::testRefusalIsToldInTheWordsOfTheLibrary_data()
{
    const QString refuses = "Ostrand-XQZ-2000-H1 cannot be opened, since it refuses: GigEVision "
                            "read_memory error (%1); "
                            "switch it off and on, then open it again";
    QTest::addColumn<char>("command");
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QString>("message");
    QTest::newRow("access denied to the memory")
        << ReadMemory << QByteArray("8006")
        << "Ostrand-XQZ-2000-H1 denies access (GigEVision read_memory error (access-denied)): if "
           "another program has it open, close it there, else switch it off and on; then open it "
           "again";
    QTest::newRow("access denied to the control")
        << WriteRegister << QByteArray("8006")
        << "Ostrand-XQZ-2000-H1 is in use: another program controls it; close the camera there, "
           "then open it here again";
    QTest::newRow("memory that is not aligned")
        << ReadMemory << QByteArray("8005") << refuses.arg("bad-alignment");
    QTest::newRow("a camera that is busy")
        << ReadMemory << QByteArray("8007") << refuses.arg("busy");
    QTest::newRow("a general error") << ReadMemory << QByteArray("8fff") << refuses.arg("generic");
}

void RefusalAttackTest::testRefusalIsToldInTheWordsOfTheLibrary()
{
    QFETCH(char, command);
    QFETCH(QByteArray, status);
    QFETCH(QString, message);
    CAttackRig rig;
    rig.camera().setAnswering(
        [=](const CUdpSocket::Datagram &question, const QByteArray &answer) -> QList<QByteArray> {
            return {question.bytes.at(3) == command ? refusal(question.bytes, status) : answer};
        });
    QVERIFY(!rig.open());
    QCOMPARE(rig.pool().lastFailure(), message);
}

QTEST_GUILESS_MAIN(RefusalAttackTest)

#include "RefusalAttackTest.moc"
