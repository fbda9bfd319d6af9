// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerProcess.h"

#include <QProcess>
#include <QTest>

// What `cmake --install` puts under a prefix runs from there.
class InstalledTreeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void testViewerFindsThePluginAndTheDocumentsBesideIt();
    void testTreeHas_data();
    void testTreeHas();

private:
    QString path(const QString &name) const;

    QTemporaryDir m_prefix;
};

void InstalledTreeTest::initTestCase()
{
    QProcess cmake;
    cmake.setProcessChannelMode(QProcess::MergedChannels);
    cmake.start("cmake", {"--install", NERIX_BUILD_DIR, "--prefix", m_prefix.path()});
    QVERIFY(cmake.waitForFinished(120000));
    QVERIFY2(cmake.exitCode() == 0, cmake.readAll().constData());
}

QString InstalledTreeTest::path(const QString &name) const
{
    return m_prefix.filePath(name);
}

void InstalledTreeTest::testViewerFindsThePluginAndTheDocumentsBesideIt()
{
    CViewerProcess viewer;
    viewer.setProgram(path("bin/nerix-viewer"));
    QCOMPARE(viewer.run("plugins.list().forEach(function (plugin) {\n"
                        "    if (plugin.name === 'UsageTracking') print(plugin.state);\n"
                        "});\n"
                        "consent.openLink('DataPrivacy.txt'); print(help.lastShown());"),
             0);
    QCOMPARE(viewer.printed(), QStringList({"Running", path("share/doc/nerix-viewer/privacy.md")}));
}

void InstalledTreeTest::testTreeHas_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file :
         {"bin/nerix-viewer", "bin/nerix-camera-simulator", "bin/rui-events", "lib/libNerixCore.so",
          "lib/libruiSDK.so", "lib/libruiSDK.so.7", "lib/nerix/plugins/libUsageTracking.so",
          "include/nerix/Core/Plugin/IPlugin.h", "include/ruiSDK.h",
          "share/doc/nerix-viewer/README.md", "share/doc/nerix-viewer/collector.yaml",
          "share/doc/nerix-viewer/examples/hello/CMakeLists.txt",
          "share/doc/nerix-viewer/scripting.md", "share/doc/nerix-viewer/ja/privacy.md",
          "share/doc/nerix-viewer/ko/help.md", "share/doc/nerix-viewer/zh/cameras.md"}) {
        QTest::newRow(file) << QString(file);
    }
}

void InstalledTreeTest::testTreeHas()
{
    QFETCH(QString, file);
    QVERIFY(QFile::exists(path(file)));
}

QTEST_GUILESS_MAIN(InstalledTreeTest)

#include "InstalledTreeTest.moc"
