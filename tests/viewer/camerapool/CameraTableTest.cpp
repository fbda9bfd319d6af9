// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "plugins/camerapool/CCameraTable.h"

#include <QTest>

using namespace CameraPool;

namespace {

CFoundCamera camera(const char *serial, const char *userName = "")
{
    CFoundCamera found;
    found.vendor = QStringLiteral("Ostrand");
    found.model = QStringLiteral("XQZ-2000");
    found.serial = QString::fromLatin1(serial);
    found.userName = QString::fromLatin1(userName);
    found.isNameKnown = true;
    found.isControlKnown = true;
    return found;
}

// One that answered the broadcast, but not when it was asked how it is.
CFoundCamera silentCamera(const char *serial)
{
    CFoundCamera found = camera(serial);
    found.isNameKnown = false;
    found.isControlKnown = false;
    return found;
}

QStringList serials(const QList<CCameraTable::CameraInfoPtr> &cameras)
{
    QStringList result;
    for (const auto &info : cameras) {
        result.append(info->identity().section(u'-', -1));
    }
    return result;
}

const QStringList A{QStringLiteral("A")};
const QStringList none;

} // namespace

// What the pool concludes from the searches.
class CameraTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cameraIsConnectedWhenItIsFoundFirst();
    void oneMissIsNothing();
    void twoMissesInARowMeanGone();
    void missesThatAreNotInARowMeanNothing();
    void openCameraIsLostAfterThreeMissesAndStaysInTheTable();
    void removedCameraIsConnectedAgainWhenItIsFound();
    void cameraThatComesBackGetsItsOldPlace();
    void renamedCameraIsNeitherGoneNorConnected();
    void renamingIsToldOnceWithTheNewDescription();
    void renamingWhileTheCameraWasAwayIsToldToo();
    void cameraThatDoesNotTellItsNameKeepsIt();
    void cameraThatHasNeverToldItsNameHasNone();
    void cameraThatTellsThatItHasNoNameLosesIt();
    void cameraThatDoesNotTellWhoControlsItIsControlledAsBefore();
    void nameIsTheOneThatWasFoundLast();
    void descriptionStaysTheSameObjectWhileNothingChanges();
    void whoControlsACameraCanBeNotedBetweenSearches();
};

void CameraTableTest::cameraIsConnectedWhenItIsFoundFirst()
{
    CCameraTable table;
    const auto changes = table.update({camera("A"), camera("B")}, {});
    QCOMPARE(serials(changes.connected), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    QVERIFY(table.update({camera("A"), camera("B")}, {}).connected.isEmpty());
    QVERIFY(table.find(QStringLiteral("Ostrand-XQZ-2000-A")));
    QVERIFY(!table.find(QStringLiteral("Ostrand-XQZ-2000-C")));
}

void CameraTableTest::oneMissIsNothing()
{
    CCameraTable table;
    table.update({camera("A")}, {});
    QVERIFY(table.update({}, {}).gone.isEmpty());
    QCOMPARE(serials(table.cameras()), A);
}

void CameraTableTest::twoMissesInARowMeanGone()
{
    CCameraTable table;
    table.update({camera("A")}, {});
    table.update({}, {});
    QCOMPARE(serials(table.update({}, {}).gone), A);
    QCOMPARE(serials(table.cameras()), none);
    QVERIFY(table.update({}, {}).gone.isEmpty());
    QCOMPARE(serials(table.update({camera("A")}, {}).connected), A);
}

void CameraTableTest::missesThatAreNotInARowMeanNothing()
{
    CCameraTable table;
    table.update({camera("A")}, {});
    for (int i = 0; i < 5; ++i) {
        QVERIFY(table.update({}, {}).gone.isEmpty());
        const auto changes = table.update({camera("A")}, {});
        QVERIFY(changes.gone.isEmpty() && changes.connected.isEmpty());
    }
}

void CameraTableTest::openCameraIsLostAfterThreeMissesAndStaysInTheTable()
{
    const QSet<QString> open{QStringLiteral("Ostrand-XQZ-2000-A")};
    CCameraTable table;
    table.update({camera("A")}, {});
    QVERIFY(table.update({}, open).lost.isEmpty());
    QVERIFY(table.update({}, open).lost.isEmpty());
    const auto changes = table.update({}, open);
    QCOMPARE(serials(changes.lost), A);
    QVERIFY(changes.gone.isEmpty());
    QCOMPARE(serials(table.cameras()), A);
    QVERIFY(table.update({}, open).lost.isEmpty());
}

void CameraTableTest::removedCameraIsConnectedAgainWhenItIsFound()
{
    CCameraTable table;
    table.update({camera("A")}, {});
    table.remove(QStringLiteral("Ostrand-XQZ-2000-A"));
    QCOMPARE(serials(table.cameras()), none);
    const auto changes = table.update({camera("A")}, {});
    QCOMPARE(serials(changes.connected), A);
    QVERIFY(changes.gone.isEmpty());
}

void CameraTableTest::cameraThatComesBackGetsItsOldPlace()
{
    CCameraTable table;
    table.update({camera("A"), camera("B")}, {});
    table.update({camera("B")}, {});
    table.update({camera("B")}, {});
    QCOMPARE(serials(table.cameras()), QStringList{QStringLiteral("B")});
    table.update({camera("B"), camera("A")}, {});
    QCOMPARE(serials(table.cameras()), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
}

void CameraTableTest::renamedCameraIsNeitherGoneNorConnected()
{
    CCameraTable table;
    table.update({camera("A")}, {});
    const auto changes = table.update({camera("A", "Left of belt")}, {});
    QVERIFY(changes.gone.isEmpty() && changes.connected.isEmpty());
    QCOMPARE(table.cameras().first()->displayName(), QStringLiteral("Left of belt"));
    QCOMPARE(table.cameras().first()->identity(), QStringLiteral("Ostrand-XQZ-2000-A"));
    table.update({camera("A")}, {});
    QCOMPARE(table.cameras().first()->displayName(), QStringLiteral("Ostrand-XQZ-2000-A"));
}

void CameraTableTest::renamingIsToldOnceWithTheNewDescription()
{
    CCameraTable table;
    QVERIFY(table.update({camera("A", "Old"), camera("B")}, {}).renamed.isEmpty());
    const auto changes = table.update({camera("A", "New"), camera("B")}, {});
    QCOMPARE(serials(changes.renamed), A);
    QCOMPARE(changes.renamed.first(), table.cameras().first());
    QVERIFY(table.update({camera("A", "New"), camera("B")}, {}).renamed.isEmpty());
}

void CameraTableTest::renamingWhileTheCameraWasAwayIsToldToo()
{
    CCameraTable table;
    table.update({camera("A")}, {});
    table.remove(QStringLiteral("Ostrand-XQZ-2000-A"));
    const auto changes = table.update({camera("A", "New")}, {});
    QCOMPARE(serials(changes.renamed), A);
    QCOMPARE(serials(changes.connected), A);
}

void CameraTableTest::cameraThatDoesNotTellItsNameKeepsIt()
{
    CCameraTable table;
    table.update({camera("A", "Left of belt")}, {});
    QVERIFY(table.update({silentCamera("A")}, {}).renamed.isEmpty());
    QCOMPARE(table.cameras().first()->displayName(), QStringLiteral("Left of belt"));
    QCOMPARE(table.nameOf(table.cameras().first()), QStringLiteral("Left of belt"));
    QVERIFY(table.update({camera("A", "Left of belt")}, {}).renamed.isEmpty());
}

void CameraTableTest::cameraThatHasNeverToldItsNameHasNone()
{
    CCameraTable table;
    QCOMPARE(serials(table.update({silentCamera("A")}, {}).connected), A);
    QCOMPARE(table.cameras().first()->displayName(), QStringLiteral("Ostrand-XQZ-2000-A"));
    QVERIFY(!table.find(QStringLiteral("Ostrand-XQZ-2000-A"))->isControlled);
    QCOMPARE(serials(table.update({camera("A", "Left of belt")}, {}).renamed), A);
    QCOMPARE(table.cameras().first()->displayName(), QStringLiteral("Left of belt"));
}

void CameraTableTest::cameraThatTellsThatItHasNoNameLosesIt()
{
    CCameraTable table;
    table.update({camera("A", "Left of belt")}, {});
    QCOMPARE(serials(table.update({camera("A")}, {}).renamed), A);
    QCOMPARE(table.cameras().first()->displayName(), QStringLiteral("Ostrand-XQZ-2000-A"));
}

void CameraTableTest::cameraThatDoesNotTellWhoControlsItIsControlledAsBefore()
{
    const QString identity = QStringLiteral("Ostrand-XQZ-2000-A");
    CCameraTable table;
    CFoundCamera controlled = camera("A");
    controlled.isControlled = true;
    table.update({controlled}, {});
    table.update({silentCamera("A")}, {});
    QVERIFY(table.find(identity)->isControlled);
    table.update({camera("A")}, {});
    table.update({silentCamera("A")}, {});
    QVERIFY(!table.find(identity)->isControlled);
}

void CameraTableTest::nameIsTheOneThatWasFoundLast()
{
    CCameraTable table;
    table.update({camera("A", "Old")}, {});
    const auto old = table.cameras().first();
    table.update({camera("A", "New")}, {});
    QCOMPARE(table.nameOf(old), QStringLiteral("New"));
    table.remove(QStringLiteral("Ostrand-XQZ-2000-A"));
    QCOMPARE(table.nameOf(old), QStringLiteral("New"));
    QCOMPARE(CCameraTable().nameOf(old), QStringLiteral("Old"));
}

void CameraTableTest::descriptionStaysTheSameObjectWhileNothingChanges()
{
    CCameraTable table;
    table.update({camera("A")}, {});
    const auto info = table.cameras().first();
    table.update({}, {});
    table.update({}, {});
    table.update({camera("A")}, {});
    QCOMPARE(table.cameras().first(), info);
}

void CameraTableTest::whoControlsACameraCanBeNotedBetweenSearches()
{
    const QString identity = QStringLiteral("Ostrand-XQZ-2000-A");
    CCameraTable table;
    table.update({camera("A")}, {});
    table.setControlled(identity, true);
    QVERIFY(table.find(identity)->isControlled);
    table.update({camera("A")}, {});
    QVERIFY(!table.find(identity)->isControlled);
}

QTEST_GUILESS_MAIN(CameraTableTest)
#include "CameraTableTest.moc"
