// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CSimulatorProcess.h"
#include "plugins/camerapool/CLoopbackSearch.h"
#include "plugins/camerapool/CNetworkSearch.h"

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
    if (qgetenv("NERIX_NETWORK") != "isolated") {
        QSKIP("broadcasts only in a network of its own");
    }
    CSimulatorProcess simulator(options);
    QVERIFY(simulator.start());
    checkCamera(CNetworkSearch().search());
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
