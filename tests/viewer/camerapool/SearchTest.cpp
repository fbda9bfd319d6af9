// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGvcpResponder.h"
#include "CSimulatorProcess.h"
#include "plugins/camerapool/CLoopbackSearch.h"
#include "plugins/camerapool/CNetworkSearch.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

#include <QTest>

using namespace CameraPool;

// The two ways to find simulated cameras.
class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void searchByAddressTellsAllOfACamera();
    void searchByAddressFindsNothingWhereNobodyListens();
    void searchByBroadcastTellsTheSame();
    void camerasWithoutASerialNumberAreToldApart_data();
    void camerasWithoutASerialNumberAreToldApart();
    void cameraThatAnswersNobodyAloneHasTheSameIdentity_data();
    void cameraThatAnswersNobodyAloneHasTheSameIdentity();
    void camerasAreAskedAllAtOnce_data();
    void camerasAreAskedAllAtOnce();
    void questionThatIsLostIsAskedASecondTime_data();
    void questionThatIsLostIsAskedASecondTime();
    void cameraThatAnswersTheBroadcastAloneIsFoundWithItsName();
    void environmentChoosesTheSearch_data();
    void environmentChoosesTheSearch();
};

namespace {

const QStringList options{QStringLiteral("--serial"), QStringLiteral("A1"),
                          QStringLiteral("--user-name"), QStringLiteral("Left of belt")};

void checkCamera(const QVector<CFoundCamera> &found)
{
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().identity(), QStringLiteral("Ostrand-XQZ-2000-A1"));
    QCOMPARE(found.first().userName, QStringLiteral("Left of belt"));
    QCOMPARE(found.first().openId, QStringLiteral("127.0.0.1"));
    QVERIFY(found.first().isGigE);
    QVERIFY(!found.first().isControlled);
}

// Where so many wait for each other; whoever joins later passes. The wait has an end, lest a search
// that asks one after the other waits for ever.
class CMeeting
{
public:
    explicit CMeeting(int count)
        : m_missing(count)
    {}

    // False if the others did not come: too late to answer.
    bool join()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        --m_missing;
        m_changed.notify_all();
        return m_changed.wait_for(lock, std::chrono::seconds(5), [this] { return m_missing <= 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_missing;
};

QStringList identities(const QVector<CFoundCamera> &found)
{
    QStringList result;
    for (const CFoundCamera &camera : found) {
        result.append(camera.identity());
    }
    result.sort();
    return result;
}

bool isIsolated()
{
    return qgetenv("NERIX_NETWORK") == "isolated";
}

} // namespace

void SearchTest::searchByAddressTellsAllOfACamera()
{
    CSimulatorProcess simulator(options);
    QVERIFY(simulator.start());
    checkCamera(CLoopbackSearch().search());
}

void SearchTest::searchByAddressFindsNothingWhereNobodyListens()
{
    QVERIFY(CLoopbackSearch().search().isEmpty());
}

void SearchTest::searchByBroadcastTellsTheSame()
{
    if (!isIsolated()) {
        QSKIP("broadcasts only in a network of its own");
    }
    CSimulatorProcess simulator(options);
    QVERIFY(simulator.start());
    checkCamera(CNetworkSearch().search());
}

void SearchTest::camerasWithoutASerialNumberAreToldApart_data()
{
    QTest::addColumn<bool>("isByAddress");
    QTest::newRow("by address") << true;
    QTest::newRow("by broadcast") << false;
}

void SearchTest::camerasWithoutASerialNumberAreToldApart()
{
    QFETCH(bool, isByAddress);
    if (!isIsolated()) {
        QSKIP("needs several addresses, and broadcasts only in a network of its own");
    }
    const CGvcpResponder one({"127.0.0.1", "02ab00000001", "", ""});
    const CGvcpResponder other({"127.0.0.2", "02ab00000002", "", ""});
    QVERIFY(one.isListening() && other.isListening());
    QCOMPARE(identities(isByAddress ? CLoopbackSearch().search() : CNetworkSearch().search()),
             (QStringList{QStringLiteral("Ostrand-XQZ-2000-02ab00000001"),
                          QStringLiteral("Ostrand-XQZ-2000-02ab00000002")}));
}

void SearchTest::cameraThatAnswersNobodyAloneHasTheSameIdentity_data()
{
    QTest::addColumn<QByteArray>("serial");
    QTest::addColumn<QString>("identity");
    QTest::newRow("serial number") << QByteArray("A1") << QStringLiteral("Ostrand-XQZ-2000-A1");
    QTest::newRow("serial number with a space at its end")
        << QByteArray("A1 ") << QStringLiteral("Ostrand-XQZ-2000-A1");
    QTest::newRow("no serial number")
        << QByteArray("") << QStringLiteral("Ostrand-XQZ-2000-02ab00000001");
}

void SearchTest::cameraThatAnswersNobodyAloneHasTheSameIdentity()
{
    if (!isIsolated()) {
        QSKIP("broadcasts only in a network of its own");
    }
    QFETCH(QByteArray, serial);
    QFETCH(QString, identity);
    const CGvcpResponder camera({"127.0.0.1", "02ab00000001", serial, "", 0, [] { return false; }});
    QVERIFY(camera.isListening());
    QCOMPARE(identities(CNetworkSearch().search()), QStringList{identity});
}

void SearchTest::camerasAreAskedAllAtOnce_data()
{
    QTest::addColumn<bool>("isByAddress");
    QTest::newRow("by address") << true;
    QTest::newRow("by broadcast") << false;
}

// None answers before all were asked: who asks one after the other gets no answer in time.
void SearchTest::camerasAreAskedAllAtOnce()
{
    QFETCH(bool, isByAddress);
    if (!isIsolated()) {
        QSKIP("needs several addresses, and broadcasts only in a network of its own");
    }
    CMeeting meeting(3);
    const auto meet = [&meeting] { return meeting.join(); };
    const CGvcpResponder one({"127.0.0.1", "02ab00000001", "A1", "Left", 0, meet});
    const CGvcpResponder two({"127.0.0.2", "02ab00000002", "B2", "Middle", 2, meet});
    const CGvcpResponder three({"127.0.0.3", "02ab00000003", "C3", "Right", 0, meet});
    QVERIFY(one.isListening() && two.isListening() && three.isListening());
    const auto found = isByAddress ? CLoopbackSearch().search() : CNetworkSearch().search();
    QCOMPARE(identities(found), (QStringList{QStringLiteral("Ostrand-XQZ-2000-A1"),
                                             QStringLiteral("Ostrand-XQZ-2000-B2"),
                                             QStringLiteral("Ostrand-XQZ-2000-C3")}));
    for (const CFoundCamera &camera : found) {
        QVERIFY(camera.isNameKnown && camera.isControlKnown);
        QCOMPARE(camera.userName, camera.serial == QStringLiteral("A1") ? QStringLiteral("Left")
                                  : camera.serial == QStringLiteral("B2")
                                      ? QStringLiteral("Middle")
                                      : QStringLiteral("Right"));
        QCOMPARE(camera.isControlled, camera.serial == QStringLiteral("B2"));
    }
}

void SearchTest::questionThatIsLostIsAskedASecondTime_data()
{
    QTest::addColumn<bool>("isByAddress");
    QTest::addColumn<int>("lost");
    QTest::newRow("who are you, by address") << true << 1;
    QTest::newRow("who controls you, by address") << true << 2;
    QTest::newRow("who are you, by broadcast") << false << 1;
    QTest::newRow("who controls you, by broadcast") << false << 2;
}

void SearchTest::questionThatIsLostIsAskedASecondTime()
{
    QFETCH(bool, isByAddress);
    QFETCH(int, lost);
    if (!isIsolated()) {
        QSKIP("broadcasts only in a network of its own");
    }
    int count = 0; // in the camera's thread
    const CGvcpResponder camera({"127.0.0.1", "02ab00000001", "A1", "Left of belt", 2,
                                 [&count, lost] { return ++count != lost; }});
    QVERIFY(camera.isListening());
    const auto found = isByAddress ? CLoopbackSearch().search() : CNetworkSearch().search();
    QCOMPARE(found.size(), 1);
    QVERIFY(found.first().isNameKnown && found.first().isControlKnown);
    QCOMPARE(found.first().userName, QStringLiteral("Left of belt"));
    QVERIFY(found.first().isControlled);
}

void SearchTest::cameraThatAnswersTheBroadcastAloneIsFoundWithItsName()
{
    if (!isIsolated()) {
        QSKIP("broadcasts only in a network of its own");
    }
    const CGvcpResponder camera(
        {"127.0.0.1", "02ab00000001", "A1", "Left of belt", 2, [] { return false; }});
    QVERIFY(camera.isListening());
    const auto found = CNetworkSearch().search();
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().openId, QStringLiteral("127.0.0.1"));
    QCOMPARE(found.first().userName, QStringLiteral("Left of belt"));
    QVERIFY(found.first().isNameKnown && !found.first().isControlKnown);
}

void SearchTest::environmentChoosesTheSearch_data()
{
    QTest::addColumn<QByteArray>("network");
    QTest::addColumn<bool>("isByAddress");
    QTest::newRow("loopback: by address") << QByteArray("loopback") << true;
    QTest::newRow("isolated: by broadcast") << QByteArray("isolated") << false;
    QTest::newRow("nothing said: by broadcast") << QByteArray() << false;
}

void SearchTest::environmentChoosesTheSearch()
{
    QFETCH(QByteArray, network);
    const QByteArray before = qgetenv("NERIX_NETWORK");
    qputenv("NERIX_NETWORK", network);
    const auto search = createCameraSearch();
    qputenv("NERIX_NETWORK", before);
    QTEST(dynamic_cast<CLoopbackSearch *>(search.get()) != nullptr, "isByAddress");
}

QTEST_GUILESS_MAIN(SearchTest)
#include "SearchTest.moc"
