// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/settings/SettingsPlugin.h"

#include "support/CMessageCount.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using Plugin::Settings::CSettingsPlugin;

class SettingsPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testNamesTheOwnerOfTheSettings();
    void testFolderOfTheUserIsTheDefault();
    void testSettingsGoToTheFolderThatIsNamed();
    void testFolderIsMadeWhenItIsMissing();
    void testFolderThatCannotBeWrittenIsOneWarning();
    void testDamagedFileIsOneWarning();
    void testDataFolderThatCannotBeWrittenIsOneWarning();
    void testDataFolderIsNotMade();
};

void SettingsPluginTest::testNamesTheOwnerOfTheSettings()
{
    const QTemporaryDir folder;
    CSettingsPlugin plugin(folder.path());
    QVERIFY(plugin.preInitialize({}));
    QVERIFY(plugin.initialize());
    QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("Ostrand"));
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("nerix-viewer"));
    QCOMPARE(QSettings::defaultFormat(), QSettings::IniFormat);
    QVERIFY(plugin.uninitialize({}));
}

// Before any other folder is named, since Qt remembers that for the life of the process.
void SettingsPluginTest::testFolderOfTheUserIsTheDefault()
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    CSettingsPlugin plugin((QString()));
    QVERIFY(plugin.preInitialize({}));
    QCOMPARE(QSettings().fileName(), home.path() + QStringLiteral("/Ostrand/nerix-viewer.ini"));
}

void SettingsPluginTest::testSettingsGoToTheFolderThatIsNamed()
{
    const QTemporaryDir folder;
    CSettingsPlugin plugin(folder.path());
    QVERIFY(plugin.preInitialize({}));
    QSettings().setValue(QStringLiteral("Group/Key"), true);
    QFile file(folder.path() + QStringLiteral("/Ostrand/nerix-viewer.ini"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("[Group]\nKey=true\n"));
}

void SettingsPluginTest::testFolderIsMadeWhenItIsMissing()
{
    const QTemporaryDir folder;
    CSettingsPlugin plugin(folder.path() + QStringLiteral("/a/b"));
    QVERIFY(plugin.preInitialize({}));
    QSettings().setValue(QStringLiteral("Key"), 1);
    QVERIFY(QFile::exists(folder.path() + QStringLiteral("/a/b/Ostrand/nerix-viewer.ini")));
}

// A file where the folder should be stops the superuser as well, unlike permissions.
void SettingsPluginTest::testFolderThatCannotBeWrittenIsOneWarning()
{
    const QTemporaryDir folder;
    QFile file(folder.path() + QStringLiteral("/file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString warning =
        QStringLiteral("settings folder %1/Ostrand cannot be written, so nothing will be "
                       "remembered: make it writable or choose another one with --settings-dir")
            .arg(file.fileName());
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    CSettingsPlugin plugin(file.fileName());
    QVERIFY(plugin.preInitialize({}));
    QVERIFY(plugin.initialize());
    QCOMPARE(QSettings().value(QStringLiteral("Key"), 7).toInt(), 7);
}

void SettingsPluginTest::testDamagedFileIsOneWarning()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("Ostrand")));
    QFile file(folder.path() + QStringLiteral("/Ostrand/nerix-viewer.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[unclosed\nno sense\n");
    file.close();
    const QString warning = QStringLiteral("settings file %1 is damaged, so a part of it is not "
                                           "used: repair it or move it away")
                                .arg(file.fileName());
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    CSettingsPlugin plugin(folder.path());
    QVERIFY(plugin.preInitialize({}));
}

void SettingsPluginTest::testDataFolderThatCannotBeWrittenIsOneWarning()
{
    const QTemporaryDir folder;
    QFile file(folder.path() + QStringLiteral("/file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    qputenv("XDG_DATA_HOME", QFile::encodeName(file.fileName()));
    const QString warning =
        QStringLiteral("data folder %1/Ostrand/nerix-viewer cannot be written, so plug-ins keep "
                       "nothing there: make it writable or set XDG_DATA_HOME to another folder")
            .arg(file.fileName());
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    CSettingsPlugin plugin(folder.path());
    QVERIFY(plugin.preInitialize({}));
}

void SettingsPluginTest::testDataFolderIsNotMade()
{
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path() + QStringLiteral("/data")));
    const CMessageCount messages;
    CSettingsPlugin plugin(folder.path() + QStringLiteral("/settings"));
    QVERIFY(plugin.preInitialize({}));
    QCOMPARE(messages.count(), 0);
    QVERIFY(!QFile::exists(folder.path() + QStringLiteral("/data")));
}

QTEST_GUILESS_MAIN(SettingsPluginTest)

#include "SettingsPluginTest.moc"
