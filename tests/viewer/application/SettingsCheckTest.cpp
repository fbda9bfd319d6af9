// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CSettingsCheck.h"
#include "support/CSettingsSandbox.h"
#include "support/CSmallFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTest>

using Application::CSettingsCheck;

class SettingsCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void testWhatWasWrittenIsKept();
    void testNothingWrittenIsNoProblem();
    void testFullDiskIsToldAndTheSettingsOfBeforeStay();
    void testFullDiskAtTheFirstStartIsTold();
    void testRoomThatComesBackIsNoProblem();
    void testFolderThatVanishedIsTold();

private:
    QByteArray content() const;
    QString m_file;
    QScopedPointer<CSettingsSandbox> m_settings;
};

void SettingsCheckTest::init()
{
    m_settings.reset();
    m_settings.reset(new CSettingsSandbox);
    m_file = QSettings().fileName();
}

// Not by way of QSettings, which would try to write once more.
QByteArray SettingsCheckTest::content() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void SettingsCheckTest::testWhatWasWrittenIsKept()
{
    QSettings().setValue("UsageTracking/OptInEnabled", true);
    CSettingsCheck check;
    QSettings().setValue("UsageTracking/OptInEnabled", false);
    QCOMPARE(check.problem(), QString());
    QCOMPARE(content(), QByteArray("[UsageTracking]\nOptInEnabled=false\n"));
}

void SettingsCheckTest::testNothingWrittenIsNoProblem()
{
    CSettingsCheck check;
    QCOMPARE(check.problem(), QString());
}

// No file may grow, as on a disk without room.
void SettingsCheckTest::testFullDiskIsToldAndTheSettingsOfBeforeStay()
{
    QSettings().setValue("UsageTracking/OptInEnabled", true);
    const QByteArray before = content();
    CSettingsCheck check;
    const CSmallFiles full(0);
    QSettings().setValue("UsageTracking/OptInEnabled", false);
    const QString problem = check.problem();
    QVERIFY2(problem.contains(m_file) && problem.contains("make room"), qPrintable(problem));
    QCOMPARE(content(), before);
}

void SettingsCheckTest::testFullDiskAtTheFirstStartIsTold()
{
    CSettingsCheck check;
    const CSmallFiles full(0);
    QSettings().setValue("UsageTracking/OptInEnabled", true);
    QVERIFY(!check.problem().isEmpty());
}

void SettingsCheckTest::testRoomThatComesBackIsNoProblem()
{
    CSettingsCheck check;
    {
        const CSmallFiles full(0);
        QSettings().setValue("UsageTracking/OptInEnabled", true);
    }
    QCOMPARE(check.problem(), QString());
    QCOMPARE(content(), QByteArray("[UsageTracking]\nOptInEnabled=true\n"));
}

void SettingsCheckTest::testFolderThatVanishedIsTold()
{
    QSettings().setValue("UsageTracking/OptInEnabled", true);
    CSettingsCheck check;
    const QString folder = QFileInfo(QSettings().fileName()).path();
    QVERIFY(QDir(folder).removeRecursively());
    QFile inItsPlace(folder);
    QVERIFY(inItsPlace.open(QIODevice::WriteOnly));
    QSettings().setValue("UsageTracking/OptInEnabled", false);
    QVERIFY(!check.problem().isEmpty());
}

QTEST_GUILESS_MAIN(SettingsCheckTest)

#include "SettingsCheckTest.moc"
