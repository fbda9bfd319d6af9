// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCrowd.h"
#include "CHostileCamera.h"
#include "CPoolRig.h"
#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CCameraTable.h"
#include "plugins/camerapool/CNetworkSearch.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>

using namespace CameraPool;

// What devices answer who looks for cameras, and who opens one: it holds up nobody else, and makes
// no camera that is not there.
class DiscoveryAttackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void searchEndsWhateverIsSent_data();
    void searchEndsWhateverIsSent();
    void wrongAnswersMakeNoCamera_data();
    void wrongAnswersMakeNoCamera();
    void thousandCamerasAreFoundByOneSocket();
    void camerasAboveTheLimitAreLeftOutAndThatIsTold();
    void devicesThatSayThatTheyAreTheSameAreBothShownAndTold_data();
    void devicesThatSayThatTheyAreTheSameAreBothShownAndTold();
    void deviceThatClaimsAnothersAddressHidesNobodyAndIsTold();
    void deviceThatPosesAsACameraLaterDoesNotTakeItsPlace();
    void openingThatDoesNotEndHoldsUpNobody();
};

namespace {

// Above the second and a half that a search takes, and below what an attack would make of it.
constexpr int SearchLimitMs = 4000;

QVector<CFoundCamera> search()
{
    CNetworkSearch search;
    return search.search();
}

QStringList identities(const QVector<CFoundCamera> &found)
{
    QStringList result;
    for (const CFoundCamera &camera : found) {
        result.append(camera.identity());
    }
    return result;
}

QByteArray withSize(QByteArray answer, int size)
{
    answer.resize(size);
    return answer;
}

bool isDiscovery(const CUdpSocket::Datagram &question)
{
    return question.bytes.size() >= 8 && question.bytes.at(3) == 0x02;
}

// Sends something to who asked, again and again.
class CPest
{
public:
    CPest(const CUdpSocket &socket, const sockaddr_in &victim, QByteArray bytes,
          std::chrono::milliseconds pause)
        : m_thread([this, &socket, victim, bytes = std::move(bytes), pause] {
            std::unique_lock<std::mutex> lock(m_mutex);
            while (!m_changed.wait_for(lock, pause, [this] { return m_isOver; })) {
                socket.send(bytes, victim);
            }
        })
    {}
    ~CPest()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_isOver = true;
        }
        m_changed.notify_all();
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(CPest)

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOver = false;
    std::thread m_thread;
};

} // namespace

void DiscoveryAttackTest::init()
{
    if (qgetenv("NERIX_NETWORK") != "isolated") {
        QSKIP("broadcasts only in a network of its own");
    }
}

void DiscoveryAttackTest::searchEndsWhateverIsSent_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("pauseMs");
    QTest::newRow("a datagram each half second") << QByteArray("x") << 450;
    QTest::newRow("nothing, each half second") << QByteArray() << 450;
    QTest::newRow("answers without a pause") << QByteArray(256, '\0') << 0;
}

void DiscoveryAttackTest::searchEndsWhateverIsSent()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, pauseMs);
    const CUdpSocket pestSocket("127.0.0.2", 3956);
    std::unique_ptr<CPest> pest;
    CHostileCamera camera;
    QVERIFY(camera.isListening());
    camera.setAnswering([&](const CUdpSocket::Datagram &question, const QByteArray &answer) {
        if (!pest) {
            pest = std::make_unique<CPest>(pestSocket, question.sender, bytes,
                                           std::chrono::milliseconds(pauseMs));
        }
        return QList<QByteArray>{answer};
    });
    QElapsedTimer time;
    time.start();
    // It ends by itself after a while, so that also a search that it keeps going comes to an end.
    QSemaphore hasEnded;
    std::thread end([&] {
        hasEnded.tryAcquire(1, 2 * SearchLimitMs);
        camera.setAnswering({});
        pest.reset();
    });
    const auto found = search();
    const qint64 lasted = time.elapsed();
    hasEnded.release();
    end.join();
    QVERIFY2(lasted < SearchLimitMs, qPrintable(QString::number(lasted) + " ms"));
    QVERIFY(identities(found).contains("Ostrand-XQZ-2000-H1"));
}

void DiscoveryAttackTest::wrongAnswersMakeNoCamera_data()
{
    QTest::addColumn<int>("size"); // of the answer; -1: as it should be
    QTest::addColumn<int>("offset");
    QTest::addColumn<char>("value"); // of the byte at offset; no change for -1
    QTest::newRow("empty") << 0 << -1 << '\0';
    QTest::newRow("shorter than a header") << 7 << -1 << '\0';
    QTest::newRow("a header alone") << 8 << -1 << '\0';
    QTest::newRow("a byte short") << 255 << -1 << '\0';
    QTest::newRow("refusal") << -1 << 0 << '\x80';
    QTest::newRow("answer to another question") << -1 << 3 << '\x81';
    QTest::newRow("another number than asked") << -1 << 6 << '\x7f';
}

void DiscoveryAttackTest::wrongAnswersMakeNoCamera()
{
    QFETCH(int, size);
    QFETCH(int, offset);
    QFETCH(char, value);
    CHostileCamera camera;
    QVERIFY(camera.isListening());
    camera.setAnswering([=](const CUdpSocket::Datagram &question, QByteArray answer) {
        if (isDiscovery(question) && offset >= 0) {
            answer[offset] = value;
        }
        return QList<QByteArray>{isDiscovery(question) && size >= 0 ? withSize(answer, size)
                                                                    : answer};
    });
    QCOMPARE(identities(search()), QStringList());
}

void DiscoveryAttackTest::thousandCamerasAreFoundByOneSocket()
{
    rlimit before = {};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const CCrowd crowd(1000, [](int index) { return QByteArray::number(index); });
    QVERIFY(crowd.isListening());
    const rlimit lowered = {64, before.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &lowered), 0);
    QElapsedTimer time;
    time.start();
    const auto found = search();
    const qint64 lasted = time.elapsed();
    ::setrlimit(RLIMIT_NOFILE, &before);
    QCOMPARE(found.size(), 1000);
    QCOMPARE(std::count_if(found.begin(), found.end(),
                           [](const CFoundCamera &camera) { return camera.isControlKnown; }),
             1000);
    QVERIFY2(lasted < SearchLimitMs, qPrintable(QString::number(lasted) + " ms"));
}

void DiscoveryAttackTest::camerasAboveTheLimitAreLeftOutAndThatIsTold()
{
    const CCrowd crowd(2100, [](int index) { return QByteArray::number(index); });
    QVERIFY(crowd.isListening());
    QTest::ignoreMessage(
        QtWarningMsg,
        "more than 2000 cameras answer; the others are left out: find the device that "
        "answers for so many, or split the network");
    QCOMPARE(search().size(), 2000);
}

void DiscoveryAttackTest::devicesThatSayThatTheyAreTheSameAreBothShownAndTold_data()
{
    QTest::addColumn<QByteArray>("mac");
    QTest::addColumn<QString>("distinction");
    QTest::addColumn<QString>("told");
    QTest::newRow("equal serial numbers")
        << QByteArray("02000000a002") << "02000000a002"
        << "two devices say that they are Ostrand-XQZ-2000-H1: 02000000a001 at 127.0.0.1 and "
           "02000000a002 at 127.0.0.2; give each a serial number of its own, or find out which one "
           "is the camera";
    QTest::newRow("equal MAC addresses too")
        << QByteArray("02000000a001") << "127.0.0.2"
        << "two devices say that they are Ostrand-XQZ-2000-H1: 02000000a001 at 127.0.0.1 and "
           "02000000a001 at 127.0.0.2; give each a serial number of its own, or find out which one "
           "is the camera";
}

void DiscoveryAttackTest::devicesThatSayThatTheyAreTheSameAreBothShownAndTold()
{
    QFETCH(QByteArray, mac);
    QFETCH(QString, distinction);
    QFETCH(QString, told);
    CHostileCamera camera;
    CHostileCamera::Identity identity;
    identity.address = "127.0.0.2";
    identity.mac = mac;
    CCameraTable table;
    table.update(search(), {});
    CHostileCamera poser(identity);
    QVERIFY(camera.isListening() && poser.isListening());
    const auto changes = table.update(search(), {});
    QCOMPARE(table.cameras().size(), 2);
    QCOMPARE(table.cameras().last()->identity(), "Ostrand-XQZ-2000-H1-" + distinction);
    QCOMPARE(table.find("Ostrand-XQZ-2000-H1")->openId, QString("127.0.0.1"));
    QCOMPARE(changes.conflicts, QStringList{told});
    QCOMPARE(table.update(search(), {}).conflicts, QStringList());
}

// It is quicker than the camera.
void DiscoveryAttackTest::deviceThatClaimsAnothersAddressHidesNobodyAndIsTold()
{
    CHostileCamera::Identity identity;
    identity.address = "127.0.0.2";
    identity.serial = "H2";
    CHostileCamera poser(identity);
    poser.setNumber(0x24, 0x7f000001);
    CHostileCamera camera;
    QVERIFY(camera.isListening() && poser.isListening());
    CCameraTable table;
    const auto changes = table.update(search(), {});
    QCOMPARE(table.cameras().size(), 1);
    QCOMPARE(table.find("Ostrand-XQZ-2000-H1")->openId, QString("127.0.0.1"));
    QCOMPARE(changes.conflicts,
             QStringList{"two devices have the address 127.0.0.1, and one of them says that it is "
                         "Ostrand-XQZ-2000-H1: give each an address of its own, or find out which "
                         "one is the camera"});
}

void DiscoveryAttackTest::deviceThatPosesAsACameraLaterDoesNotTakeItsPlace()
{
    CHostileCamera::Identity identity;
    identity.address = "127.0.0.2";
    identity.mac = "02000000a002";
    CCameraTable table;
    {
        const CHostileCamera camera;
        table.update(search(), {});
    }
    const CHostileCamera poser(identity);
    QVERIFY(poser.isListening());
    table.update(search(), {});
    QCOMPARE(table.find("Ostrand-XQZ-2000-H1")->openId, QString("127.0.0.1"));
    QCOMPARE(table.find("Ostrand-XQZ-2000-H1-02000000a002")->openId, QString("127.0.0.2"));
}

void DiscoveryAttackTest::openingThatDoesNotEndHoldsUpNobody()
{
    CHostileCamera slow;
    CHostileCamera::Identity identity;
    identity.address = "127.0.0.2";
    identity.serial = "H2";
    CHostileCamera honest(identity);
    QVERIFY(slow.isListening() && honest.isListening());
    // "Pending": the answer comes within 60 s.
    slow.setAnswering([](const CUdpSocket::Datagram &question, const QByteArray &answer) {
        const bool isMemory = question.bytes.size() >= 8 && quint8(question.bytes.at(3)) == 0x84;
        return QList<QByteArray>{
            isMemory
                ? QByteArray::fromHex("0000008900040000").replace(6, 2, question.bytes.mid(6, 2))
                      + QByteArray::fromHex("0000ea60")
                : answer};
    });
    CPoolTiming timing = CPoolRig::shortTiming();
    timing.openingLimit = 3000;
    CPoolRig rig(timing);
    QVERIFY(rig.search());
    rig.pool().control()->open(rig.camera("H1"));
    QElapsedTimer time;
    time.start();
    QVERIFY(rig.open(rig.camera("H2")));
    QVERIFY(rig.close(rig.camera("H2")));
    QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed()) + " ms"));
    QVERIFY(rig.waitFor("openFailed H1"));
    QCOMPARE(rig.lastFailure(),
             QString("Ostrand-XQZ-2000-H1 cannot be opened: it answers, but does not come to the "
                     "end of its description; switch it off and on, then open it again"));
}

QTEST_GUILESS_MAIN(DiscoveryAttackTest)

#include "DiscoveryAttackTest.moc"
