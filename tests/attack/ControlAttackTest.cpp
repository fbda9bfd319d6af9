// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CHostileCamera.h"
#include "CPoolRig.h"
#include "plugins/camerapool/CCameraControl.h"

#include <glib.h>

#include <memory>
#include <vector>

#include <QElapsedTimer>
#include <QTest>

using namespace CameraPool;
using Answers = QList<QByteArray>;
using Datagram = CUdpSocket::Datagram;

// What a camera answers who opens it. It is opened or not, and that is told with its name; in any
// case another camera can be opened meanwhile, and the pool ends.
class ControlAttackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openingEndsAndHoldsUpNobody_data();
    void openingEndsAndHoldsUpNobody();
    void cameraThatIsBusyForEverIsClosedInTime();
    void camerasThatAreOpenedAtOnceAreNotMixedUp();
};

namespace {

enum Command : quint8 { ReadRegister = 0x80, WriteRegister = 0x82, ReadMemory = 0x84 };

bool isCommand(const Datagram &question, Command command)
{
    return question.bytes.size() >= 8 && quint8(question.bytes.at(3)) == command;
}

bool isDiscovery(const Datagram &question)
{
    return question.bytes.size() >= 8 && question.bytes.at(3) == 0x02;
}

QByteArray withStatus(QByteArray answer, quint16 status)
{
    answer[0] = char(status >> 8);
    answer[1] = char(status & 0xff);
    return answer;
}

QByteArray withNumber(QByteArray answer, int change)
{
    answer[7] = char(answer.at(7) + change);
    return answer;
}

// "Wait another minute for the answer."
QByteArray pending(const Datagram &question)
{
    return QByteArray::fromHex("0000008900040000").replace(6, 2, question.bytes.mid(6, 2))
           + QByteArray::fromHex("0000ea60");
}

// Behaves as long as it is looked for.
CHostileCamera::Answering whenOpened(CHostileCamera::Answering answering)
{
    return [answering](const Datagram &question, const QByteArray &answer) {
        return isDiscovery(question) ? Answers{answer} : answering(question, answer);
    };
}

CHostileCamera::Answering toCommand(Command command, CHostileCamera::Answering answering)
{
    return [=](const Datagram &question, const QByteArray &answer) {
        return isCommand(question, command) ? answering(question, answer) : Answers{answer};
    };
}

CHostileCamera::Identity secondCamera()
{
    CHostileCamera::Identity identity;
    identity.address = "127.0.0.2";
    identity.serial = "H2";
    identity.mac = "02000000a002";
    return identity;
}

CPoolTiming impatient()
{
    CPoolTiming timing = CPoolRig::shortTiming();
    timing.openingLimit = 2000;
    timing.closingLimit = 1000;
    return timing;
}

void addRow(const char *name, bool isOpened, const CHostileCamera::Answering &answering)
{
    QTest::newRow(name) << isOpened << answering;
}

} // namespace

Q_DECLARE_METATYPE(CHostileCamera::Answering)

void ControlAttackTest::openingEndsAndHoldsUpNobody_data()
{
    QTest::addColumn<bool>("isOpened");
    QTest::addColumn<CHostileCamera::Answering>("answering");
    addRow("each answer twice", true, [](const Datagram &, const QByteArray &answer) {
        return Answers{answer, answer};
    });
    addRow("an answer to another question before each", true,
           [](const Datagram &, const QByteArray &answer) {
               return Answers{withNumber(answer, 1), answer};
           });
    addRow("an empty datagram before each", true, [](const Datagram &, const QByteArray &answer) {
        return Answers{QByteArray(1, 'x'), answer};
    });
    addRow("answers to other questions alone", false,
           whenOpened([](const Datagram &, const QByteArray &answer) {
               return Answers{withNumber(answer, 1)};
           }));
    addRow("headers alone", false, whenOpened([](const Datagram &, const QByteArray &answer) {
               return Answers{answer.left(8)};
           }));
    addRow("half of each header", false, whenOpened([](const Datagram &, const QByteArray &answer) {
               return Answers{answer.left(4)};
           }));
    addRow("nothing but when it is looked for", false,
           whenOpened([](const Datagram &, const QByteArray &) { return Answers{}; }));
    addRow("access denied to each register", false,
           toCommand(WriteRegister, [](const Datagram &, const QByteArray &answer) {
               return Answers{withStatus(answer, 0x8006)};
           }));
    addRow("busy for ever", false,
           toCommand(WriteRegister, [](const Datagram &, const QByteArray &a) {
               return Answers{withStatus(a, 0x8007)};
           }));
    addRow("every question is an error", false,
           whenOpened([](const Datagram &, const QByteArray &answer) {
               return Answers{withStatus(answer, 0x8fff)};
           }));
    addRow("memory that cannot be read", false,
           toCommand(ReadMemory, [](const Datagram &, const QByteArray &answer) {
               return Answers{withStatus(answer, 0x8003)};
           }));
    addRow("memory that comes a minute later, for ever", false,
           toCommand(ReadMemory, [](const Datagram &question, const QByteArray &) {
               return Answers{pending(question)};
           }));
    addRow("registers that come a minute later, for ever", false,
           toCommand(ReadRegister, [](const Datagram &question, const QByteArray &) {
               return Answers{pending(question)};
           }));
    addRow("less memory than asked for", false,
           toCommand(ReadMemory, [](const Datagram &, const QByteArray &answer) {
               return Answers{answer.left(12)};
           }));
    addRow("more memory than asked for", true,
           toCommand(ReadMemory, [](const Datagram &, const QByteArray &answer) {
               return Answers{answer + QByteArray(400, 'm')};
           }));
}

void ControlAttackTest::openingEndsAndHoldsUpNobody()
{
    QFETCH(bool, isOpened);
    QFETCH(CHostileCamera::Answering, answering);
    CHostileCamera hostile;
    CHostileCamera honest(secondCamera());
    QVERIFY(hostile.isListening() && honest.isListening());
    hostile.setAnswering(answering);
    CPoolRig rig(impatient());
    QVERIFY(rig.search());
    rig.pool().control()->open(rig.camera("H1"));
    QElapsedTimer time;
    time.start();
    QVERIFY(rig.open(rig.camera("H2")));
    QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed()) + " ms"));
    QVERIFY(rig.waitFor(isOpened ? "opened H1" : "openFailed H1"));
    if (!isOpened) {
        QVERIFY2(rig.lastFailure().startsWith("Ostrand-XQZ-2000-H1 "),
                 qPrintable(rig.lastFailure()));
    }
    hostile.setAnswering({});
    QVERIFY(rig.closeAll());
}

// It grabs, and from then on answers everything with "later".
void ControlAttackTest::cameraThatIsBusyForEverIsClosedInTime()
{
    CHostileCamera hostile;
    QVERIFY(hostile.isListening());
    CPoolRig rig(impatient());
    QVERIFY(rig.search());
    QVERIFY(rig.open(rig.camera("H1")));
    rig.pool().control()->grabContinuous(rig.camera("H1"));
    QVERIFY(rig.waitFor("grabStarted H1"));
    hostile.setAnswering(whenOpened(
        [](const Datagram &question, const QByteArray &) { return Answers{pending(question)}; }));
    QElapsedTimer time;
    time.start();
    QVERIFY(rig.closeAll());
    QVERIFY2(time.elapsed() < 4000, qPrintable(QString::number(time.elapsed()) + " ms"));
    hostile.setAnswering({});
}

// Four of them, some times: each description has its own features, and Aravis has nothing to say.
void ControlAttackTest::camerasThatAreOpenedAtOnceAreNotMixedUp()
{
    g_log_set_always_fatal(GLogLevelFlags(G_LOG_LEVEL_CRITICAL | G_LOG_FATAL_MASK));
    std::vector<std::unique_ptr<CHostileCamera>> cameras;
    for (int i = 1; i <= 4; ++i) {
        CHostileCamera::Identity identity;
        identity.address = "127.0.0." + QByteArray::number(i);
        identity.serial = "H" + QByteArray::number(i);
        identity.mac = "02000000a00" + QByteArray::number(i);
        cameras.push_back(std::make_unique<CHostileCamera>(identity));
    }
    CPoolRig rig(CPoolRig::shortTiming());
    QVERIFY(rig.search());
    for (int round = 1; round <= 10; ++round) {
        for (int i = 1; i <= 4; ++i) {
            rig.pool().control()->open(rig.camera("H" + QString::number(i)));
        }
        for (int i = 1; i <= 4; ++i) {
            QVERIFY(rig.waitFor("opened H" + QString::number(i), round));
        }
        for (int i = 1; i <= 4; ++i) {
            QVERIFY(rig.close(rig.camera("H" + QString::number(i))));
        }
    }
}

QTEST_GUILESS_MAIN(ControlAttackTest)

#include "ControlAttackTest.moc"
