// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/PluginFolder.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace PluginSystem;

class PluginFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void testListsLibrariesByNameAndNothingElse();
    void testEmptyFolderIsNoError();
    void testFolderThatIsMissing();
    void testFolderThatIsAFile();
    void testFolderThatCannotBeRead();

private:
    void write(const QString &name);
    QString path(const QString &name) const;

    QScopedPointer<QTemporaryDir> m_folder;
};

void PluginFolderTest::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
}

void PluginFolderTest::testListsLibrariesByNameAndNothingElse()
{
    write(QStringLiteral("libB.so"));
    write(QStringLiteral("libA.so"));
    write(QStringLiteral("README.txt"));
    write(QStringLiteral("libA.so.debug"));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("libFolder.so")));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("deeper")));
    write(QStringLiteral("deeper/libC.so"));

    QString error;
    const QStringList expected{path(QStringLiteral("libA.so")), path(QStringLiteral("libB.so"))};
    QCOMPARE(librariesIn(m_folder->path(), error), expected);
    QCOMPARE(error, QString());
}

void PluginFolderTest::testEmptyFolderIsNoError()
{
    QString error;
    QCOMPARE(librariesIn(m_folder->path(), error), QStringList());
    QCOMPARE(error, QString());
}

void PluginFolderTest::testFolderThatIsMissing()
{
    QString error;
    QCOMPARE(librariesIn(path(QStringLiteral("none")), error), QStringList());
    QCOMPARE(error, QStringLiteral("Plug-in folder \"%1/none\" does not exist: create it, or do "
                                   "not name it")
                        .arg(m_folder->path()));
}

void PluginFolderTest::testFolderThatIsAFile()
{
    write(QStringLiteral("file"));
    QString error;
    QCOMPARE(librariesIn(path(QStringLiteral("file")), error), QStringList());
    QCOMPARE(error, QStringLiteral("Plug-in folder \"%1/file\" is not a folder: name the folder "
                                   "that the plug-ins are in")
                        .arg(m_folder->path()));
}

void PluginFolderTest::testFolderThatCannotBeRead()
{
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::WriteOwner));
    if (QFileInfo(m_folder->path()).isReadable()) {
        QSKIP("this user may read everything");
    }
    QString error;
    QCOMPARE(librariesIn(m_folder->path(), error), QStringList());
    QCOMPARE(error, QStringLiteral("Plug-in folder \"%1\" cannot be read: give yourself the "
                                   "permission to read it")
                        .arg(m_folder->path()));
    QVERIFY(QFile::setPermissions(m_folder->path(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void PluginFolderTest::write(const QString &name)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("a text\n");
}

QString PluginFolderTest::path(const QString &name) const
{
    return m_folder->filePath(name);
}

QTEST_GUILESS_MAIN(PluginFolderTest)
#include "PluginFolderTest.moc"
