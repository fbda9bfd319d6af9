// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// The Debian packages: what is in them, and that the viewer runs from what they unpack.
class PackageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void testPackageIsMade_data();
    void testPackageIsMade();
    void testPackageHas_data();
    void testPackageHas();
    void testHeadersAreInTheDevelopmentPackageOnly();
    void testEveryFileHasItsPlaceUnderUsr();
    void testPackageNamesWhatIsLoadedByName_data();
    void testPackageNamesWhatIsLoadedByName();
    void testViewerRunsFromWhatIsUnpacked();
    void testDesktopUnderstandsTheEntry();
    void testSoftwareCentresUnderstandTheDescription();

private:
    QString package(const char *name) const;
    QString unpacked(const QString &file) const;

    QTemporaryDir m_folder;
};

namespace {

// What the program wrote; it must end well within two minutes.
QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(120000);
    const QByteArray text = process.readAll();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        qWarning("%s: %s", qPrintable(program), text.constData());
        return {};
    }
    return text.isEmpty() ? QByteArray("good") : text;
}

QStringList filesUnder(const QString &folder)
{
    QStringList files = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    return files;
}

} // namespace

void PackageTest::initTestCase()
{
    QVERIFY(!output("cpack", {"--config", NERIX_BUILD_DIR "/CPackConfig.cmake", "-B",
                              m_folder.filePath("packages")})
                 .isEmpty());
    QVERIFY(!output("dpkg-deb", {"-x", package("nerix-viewer"), m_folder.filePath("unpacked")})
                 .isEmpty());
}

QString PackageTest::package(const char *name) const
{
    const QDir folder(m_folder.filePath("packages"));
    const QStringList found = folder.entryList({QString("%1_*.deb").arg(name)});
    return found.isEmpty() ? QString() : folder.filePath(found.at(0));
}

QString PackageTest::unpacked(const QString &file) const
{
    return m_folder.filePath("unpacked/" + file);
}

void PackageTest::testPackageIsMade_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("name") << QByteArray("Package") << QByteArray("nerix-viewer");
    QTest::newRow("version") << QByteArray("Version") << QByteArray(NERIX_VERSION);
    QTest::newRow("maintainer") << QByteArray("Maintainer")
                                << QByteArray("Ostrand <support@ostrand.example>");
    QTest::newRow("section") << QByteArray("Section") << QByteArray("science");
}

void PackageTest::testPackageIsMade()
{
    QFETCH(QByteArray, field);
    QFETCH(QByteArray, value);
    QCOMPARE(output("dpkg-deb", {"-f", package("nerix-viewer"), field}).trimmed(), value);
}

void PackageTest::testPackageHas_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file :
         {"usr/bin/nerix-viewer", "usr/bin/rui-events", "usr/bin/nerix-camera-simulator",
          "usr/lib/libNerixCore.so", "usr/lib/libruiSDK.so", "usr/lib/libruiSDK.so.7",
          "usr/lib/nerix/plugins/libUsageTracking.so",
          "usr/share/applications/example.ostrand.NerixViewer.desktop",
          "usr/share/metainfo/example.ostrand.NerixViewer.metainfo.xml",
          "usr/share/icons/hicolor/scalable/apps/example.ostrand.NerixViewer.svg",
          "usr/share/doc/nerix-viewer/copyright", "usr/share/doc/nerix-viewer/privacy.md",
          "usr/share/doc/nerix-viewer/ja/privacy.md", "usr/share/doc/nerix-viewer/ko/privacy.md",
          "usr/share/doc/nerix-viewer/zh/privacy.md"}) {
        QTest::newRow(file) << QString(file);
    }
}

void PackageTest::testPackageHas()
{
    QFETCH(QString, file);
    QVERIFY(QFile::exists(unpacked(file)));
}

void PackageTest::testHeadersAreInTheDevelopmentPackageOnly()
{
    QVERIFY(!QFile::exists(unpacked("usr/include")));
    QVERIFY(!QFile::exists(unpacked("usr/lib/cmake")));
    const QByteArray files = output("dpkg-deb", {"-c", package("nerix-viewer-dev")});
    QVERIFY(files.contains("./usr/include/nerix/Core/Plugin/IPlugin.h\n"));
    QVERIFY(files.contains("./usr/include/ruiSDK.h\n"));
    QVERIFY(!files.contains("/bin/"));
}

void PackageTest::testEveryFileHasItsPlaceUnderUsr()
{
    QCOMPARE(filesUnder(m_folder.filePath("unpacked")), QStringList({"usr"}));
    QCOMPARE(filesUnder(unpacked("usr")), QStringList({"bin", "lib", "share"}));
}

void PackageTest::testPackageNamesWhatIsLoadedByName_data()
{
    QTest::addColumn<QByteArray>("package");
    for (const char *name :
         {"qml-module-qtquick2", "qml-module-qtquick-controls2", "qml-module-qtgraphicaleffects",
          "libqt5svg5", "libaravis-0.8-0", "libqt5widgets5"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void PackageTest::testPackageNamesWhatIsLoadedByName()
{
    QFETCH(QByteArray, package);
    QVERIFY(output("dpkg-deb", {"-f", this->package("nerix-viewer"), "Depends"}).contains(package));
}

void PackageTest::testViewerRunsFromWhatIsUnpacked()
{
    QFile script(SMOKE_SCRIPT);
    QVERIFY(script.open(QIODevice::ReadOnly));
    CSimulatorProcess simulator;
    QVERIFY(simulator.start());
    CViewerProcess viewer;
    viewer.setProgram(unpacked("usr/bin/nerix-viewer"));
    viewer.setOptions({"--settings-dir", m_folder.filePath("settings")});
    QCOMPARE(viewer.run(script.readAll()), 0);
    QCOMPARE(viewer.printed(), QStringList({"smoke: good"}));
}

void PackageTest::testDesktopUnderstandsTheEntry()
{
    QVERIFY(!output("desktop-file-validate",
                    {unpacked("usr/share/applications/example.ostrand.NerixViewer.desktop")})
                 .isEmpty());
}

void PackageTest::testSoftwareCentresUnderstandTheDescription()
{
    QVERIFY(!output("appstreamcli",
                    {"validate", "--no-net",
                     unpacked("usr/share/metainfo/example.ostrand.NerixViewer.metainfo.xml")})
                 .isEmpty());
}

QTEST_GUILESS_MAIN(PackageTest)

#include "PackageTest.moc"
