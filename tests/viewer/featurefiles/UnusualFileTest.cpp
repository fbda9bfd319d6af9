// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/CFeatureFile.h"

#include <ParameterCollection/CParameterException.h>

#include <FakeParameterCollection.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// What can be chosen as a feature file without being one.
class UnusualFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testWhatIsNoFileIsRefusedAtOnce_data();
    void testWhatIsNoFileIsRefusedAtOnce();

private:
    QTemporaryDir m_folder;
};

void UnusualFileTest::testWhatIsNoFileIsRefusedAtOnce_data()
{
    const QString pipe = m_folder.filePath("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
    QTest::addColumn<QString>("path");
    QTest::newRow("a pipe that nobody writes to") << pipe;
    QTest::newRow("a device without an end") << QStringLiteral("/dev/zero");
    QTest::newRow("a folder") << m_folder.path();
}

void UnusualFileTest::testWhatIsNoFileIsRefusedAtOnce()
{
    QFETCH(QString, path);
    const FakeParameterCollection parameters;
    QString message;
    try {
        FeatureFiles::CFeatureFile(path).load(parameters, {});
    } catch (const ParameterCollection::CParameterException &exception) {
        message = exception.message();
    }
    QCOMPARE(message,
             "file " + path + " cannot be read: It is not a file of its own; choose another file");
}

QTEST_GUILESS_MAIN(UnusualFileTest)

#include "UnusualFileTest.moc"
