// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The built plug-in library, by a program that knows nothing of the viewer: read byte by byte, and
// loaded by Qt's own loader.

#include <dlfcn.h>

#include <QDataStream>
#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QResource>
#include <QtTest>

namespace {

QList<int> registeredVersions;
QStringList registeredFiles;
int unregistered = 0;

using ResourceFunction = bool (*)(int, const unsigned char *, const unsigned char *,
                                  const unsigned char *);

bool forward(const char *symbol, int version, const unsigned char *tree, const unsigned char *name,
             const unsigned char *data)
{
    return reinterpret_cast<ResourceFunction>(dlsym(RTLD_NEXT, symbol))(version, tree, name, data);
}

/// The metadata block as it must stand in the file: in CBOR, 0x60 + n begins a text of n bytes
/// (0x78 with the length in the next byte from 24 on), 0xa0 + n a map of n pairs, 0x80 + n an
/// array.
QByteArray expectedBlock()
{
    const auto dependency = [](const QByteArray &prefixedName) {
        return QByteArray("\xa2\x64"
                          "Name")
               + prefixedName
               + "\x67"
                 "Version"
                 "\x65"
                 "7.1.0";
    };
    return QByteArray("QTMETADATA !") + QByteArray("\x00\x05\x0c\x00", 4)
           + "\xa3"
             "\x02\x78\x25"
             "example.ostrand.NerixViewer.IPlugin/1"
             "\x03\x74"
             "CUsageTrackingPlugin"
             "\x04\xaa"
             "\x6d"
             "CompatVersion"
             "\x65"
             "7.1.0"
             "\x69"
             "Copyright"
             "\x70"
             "(C) 2026 Ostrand"
             "\x6c"
             "Dependencies"
             "\x8a"
           + dependency("\x6b"
                        "NerixViewer")
           + dependency("\x6c"
                        "NerixWelcome")
           + dependency("\x67"
                        "AppCore")
           + dependency("\x6a"
                        "CameraPool")
           + dependency("\x6e"
                        "CameraSelector")
           + dependency("\x77"
                        "ParameterCollectionPool")
           + dependency("\x6b"
                        "FeatureTree")
           + dependency("\x68"
                        "Settings")
           + dependency("\x6c"
                        "Localization")
           + dependency("\x64"
                        "Help")
           + "\x6b"
             "Description"
             "\x78\x3a"
             "The UsageTracking plugin for the nerix Viewer application."
             "\x67"
             "License"
             "\x78\x43"
             "MIT License; see the file LICENSE that comes with the Nerix Viewer."
             "\x64"
             "Name"
             "\x6d"
             "UsageTracking"
             "\x68"
             "Required"
             "\xf5"
             "\x63"
             "Url"
             "\x78\x1b"
             "https://www.ostrand.example"
             "\x66"
             "Vendor"
             "\x67"
             "Ostrand"
             "\x67"
             "Version"
             "\x65"
             "7.1.0";
}

QByteArray libraryBytes()
{
    QFile library(QStringLiteral(USAGETRACKING_LIBRARY));
    return library.open(QIODevice::ReadOnly) ? library.readAll() : QByteArray();
}

} // namespace

// The loaded library calls these instead of Qt's own, which they call in turn.
extern bool qRegisterResourceData(int, const unsigned char *, const unsigned char *,
                                  const unsigned char *) __attribute__((visibility("default")));
extern bool qUnregisterResourceData(int, const unsigned char *, const unsigned char *,
                                    const unsigned char *) __attribute__((visibility("default")));

bool qRegisterResourceData(int version, const unsigned char *tree, const unsigned char *name,
                           const unsigned char *data)
{
    registeredVersions.append(version);
    const bool registered =
        forward("_Z21qRegisterResourceDataiPKhS0_S0_", version, tree, name, data);
    QStringList files = QDir(":/usagetracking").entryList() + QDir(":/translation").entryList();
    for (const QString &known : qAsConst(registeredFiles)) {
        files.removeAll(known);
    }
    registeredFiles.append(files);
    return registered;
}

bool qUnregisterResourceData(int version, const unsigned char *tree, const unsigned char *name,
                             const unsigned char *data)
{
    ++unregistered;
    return forward("_Z23qUnregisterResourceDataiPKhS0_S0_", version, tree, name, data);
}

class PluginLibraryTest : public QObject
{
    Q_OBJECT

private:
    QPluginLoader m_loader{QStringLiteral(USAGETRACKING_LIBRARY)};

private Q_SLOTS:
    // Unless told otherwise, the loader keeps a library in memory.
    void initTestCase()
    {
        m_loader.setLoadHints({});
    }

    void metadataBlockStandsInTheFileByteForByte()
    {
        const QByteArray bytes = libraryBytes();
        QVERIFY(!bytes.isEmpty());
        const int begin = bytes.indexOf("QTMETADATA !");
        QVERIFY(begin >= 0);
        const QByteArray expected = expectedBlock();
        QCOMPARE(bytes.mid(begin, expected.size()).toPercentEncoding(" !:;./()"),
                 expected.toPercentEncoding(" !:;./()"));
    }

    void queryMetadataReturnsTheAddressOfTheBlock()
    {
        QLibrary library(QStringLiteral(USAGETRACKING_LIBRARY));
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        using Query = const char *(*)();
        const auto query = reinterpret_cast<Query>(library.resolve("qt_plugin_query_metadata"));
        QVERIFY(query);
        const QByteArray expected = expectedBlock();
        QCOMPARE(QByteArray(query(), expected.size()), expected);
        library.unload();
    }

    void loaderReadsTheMetadata()
    {
        const QJsonObject metadata = m_loader.metaData();
        QCOMPARE(metadata.value("IID").toString(),
                 QStringLiteral("example.ostrand.NerixViewer.IPlugin/1"));
        QCOMPARE(metadata.value("className").toString(), QStringLiteral("CUsageTrackingPlugin"));
        QCOMPARE(metadata.value("debug").toBool(), false);
        const QJsonObject own = metadata.value("MetaData").toObject();
        QCOMPARE(own.keys(),
                 QStringList({"CompatVersion", "Copyright", "Dependencies", "Description",
                              "License", "Name", "Required", "Url", "Vendor", "Version"}));
        QCOMPARE(own.value("Dependencies").toArray().size(), 10);
    }

    void instanceIsOneObjectUntilItIsDeleted()
    {
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        const QPointer<QObject> first = m_loader.instance();
        QVERIFY(first);
        QCOMPARE(m_loader.instance(), first.data());
        delete first;
        const QPointer<QObject> second = m_loader.instance();
        QVERIFY(second);
        QVERIFY(second->inherits("Plugin::UsageTracking::CUsageTrackingPlugin"));
        delete second;
        QVERIFY(m_loader.unload());
    }

    void classNamesUpTheChain()
    {
        const QScopedPointer<QObject> plugin(m_loader.instance());
        QStringList names;
        for (const QMetaObject *meta = plugin->metaObject(); meta; meta = meta->superClass()) {
            names.append(QString::fromLatin1(meta->className()));
        }
        QCOMPARE(names, QStringList({"Plugin::UsageTracking::CUsageTrackingPlugin",
                                     "Core::Plugin::ALocalizedPlugin", "Core::Plugin::IPlugin",
                                     "QObject"}));
    }

    void resourceBlobsComeAndGoWithTheLibrary()
    {
        m_loader.unload();
        registeredVersions.clear();
        unregistered = 0;
        QVERIFY(!QFile::exists(":/usagetracking/resources/shield_blue_16.svg"));
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        QCOMPARE(registeredVersions, QList<int>({2, 2, 2}));
        QVERIFY(QFile::exists(":/usagetracking/resources/shield_blue_16.svg"));
        QVERIFY(m_loader.unload());
        QCOMPARE(unregistered, 3);
        QVERIFY(!QFile::exists(":/usagetracking/resources/shield_blue_16.svg"));
    }

    void resourceBlobsAreRegisteredInOrder()
    {
        m_loader.unload();
        registeredFiles.clear();
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        QCOMPARE(registeredFiles,
                 QStringList({"qml", "resources", "UsageTracking_en.qm", "UsageTracking_ja.qm",
                              "UsageTracking_ko.qm", "UsageTracking_zh.qm"}));
    }

    void resourcesAreStoredAsTheyMust_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("algorithm");
        const int plain = QResource::NoCompression;
        const int zlib = QResource::ZlibCompression;
        QTest::newRow("page") << ":/usagetracking/qml/DataPrivacy.qml" << zlib;
        QTest::newRow("tile") << ":/usagetracking/qml/DataPrivacyCheckbox.qml" << zlib;
        QTest::newRow("grey yes") << ":/usagetracking/qml/images/thumbs-up-grey.png" << plain;
        QTest::newRow("green yes") << ":/usagetracking/qml/images/thumbs-up-green.png" << plain;
        QTest::newRow("grey no") << ":/usagetracking/qml/images/thumbs-down-grey.png" << plain;
        QTest::newRow("red no") << ":/usagetracking/qml/images/thumbs-down-red.png" << plain;
        QTest::newRow("shield") << ":/usagetracking/resources/shield_blue_16.svg" << plain;
        QTest::newRow("ja") << ":/translation/UsageTracking_ja.qm" << plain;
        QTest::newRow("ko") << ":/translation/UsageTracking_ko.qm" << plain;
        QTest::newRow("zh") << ":/translation/UsageTracking_zh.qm" << plain;
        QTest::newRow("en") << ":/translation/UsageTracking_en.qm" << plain;
    }

    void resourcesAreStoredAsTheyMust()
    {
        QFETCH(QString, path);
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        const QResource resource(path);
        QVERIFY(resource.isValid());
        QVERIFY(resource.size() > 0);
        QTEST(int(resource.compressionAlgorithm()), "algorithm");
    }

    void thereAreNoOtherResources()
    {
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        QStringList files;
        for (const char *folder : {":/usagetracking", ":/translation"}) {
            QDirIterator i(folder, QDir::Files, QDirIterator::Subdirectories);
            while (i.hasNext()) {
                files.append(i.next());
            }
        }
        QCOMPARE(files.size(), 11);
    }

    void catalogueHoldsItsMessages_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("messages");
        QTest::newRow("ja") << "ja" << 10;
        QTest::newRow("ko") << "ko" << 10;
        QTest::newRow("zh") << "zh" << 10;
        QTest::newRow("en is empty") << "en" << 0;
    }

    // After a signature of 16 bytes a catalogue is a row of sections: a byte that names it, the
    // length in four, the content. Section 0x42 is the index, with 8 bytes a message; 0x88 are the
    // plural rules.
    void catalogueHoldsItsMessages()
    {
        QFETCH(QString, language);
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        QFile file(QStringLiteral(":/translation/UsageTracking_%1.qm").arg(language));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDataStream in(&file);
        QCOMPARE(in.skipRawData(16), 16);
        QMap<int, int> lengths;
        while (!in.atEnd()) {
            quint8 section = 0;
            quint32 length = 0;
            in >> section >> length;
            lengths.insert(section, int(length));
            in.skipRawData(int(length));
        }
        QTEST(lengths.value(0x42) / 8, "messages");
        QCOMPARE(lengths.contains(0x69), language != QLatin1String("en"));
        QCOMPARE(lengths.contains(0x88), language == QLatin1String("en"));
    }

    void shieldHasOneFillColour()
    {
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        QFile shield(":/usagetracking/resources/shield_blue_16.svg");
        QVERIFY(shield.open(QIODevice::ReadOnly));
        const QByteArray svg = shield.readAll();
        QCOMPARE(svg.count("fill="), 1);
        QVERIFY(svg.contains("fill=\"#00457C\""));
        QVERIFY(svg.contains("width=\"16\" height=\"16\""));
    }

    void cleanupTestCase()
    {
        m_loader.unload();
    }
};

QTEST_GUILESS_MAIN(PluginLibraryTest)
#include "PluginLibraryTest.moc"
