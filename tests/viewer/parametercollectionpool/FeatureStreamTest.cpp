// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "plugins/parametercollectionpool/FeatureStream.h"

#include "COpenCamera.h"

#include <atomic>
#include <thread>
#include <vector>

#include <QTest>

using namespace ParameterCollection;
using namespace ParameterCollectionPool;

// The values of a tree as text, and what is read of it again.
class FeatureStreamTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstLineCountsAndEachFeatureIsALine();
    void controlCharactersAreEscapedAndComeBack();
    void controlCharactersInANameAreEscapedToo();
    void damagedStreamIsRefused_data();
    void damagedStreamIsRefused();
    void cameraStreamHoldsEveryReadableFeatureInTreeOrder();
    void counterStreamHoldsTheCounters();
    void unknownTreeIsRefused();
    void streamOf840FeaturesIsWhole();
    void threadsThatReadAtOnceGetRightValues();
};

namespace {

const QString cameraTree = QStringLiteral("@CameraDevice");

} // namespace

void FeatureStreamTest::firstLineCountsAndEachFeatureIsALine()
{
    QCOMPARE(FeatureStream::format({{QStringLiteral("Width"), QStringLiteral("512")},
                                    {QStringLiteral("Label"), QString()}},
                                   3),
             QStringLiteral("# nerix feature stream 1: 2 features, 3 not readable\n"
                            "Width\t512\n"
                            "Label\t\n"));
    QCOMPARE(FeatureStream::format({}, 0),
             QStringLiteral("# nerix feature stream 1: 0 features, 0 not readable\n"));
}

void FeatureStreamTest::controlCharactersAreEscapedAndComeBack()
{
    const QVector<FeatureStream::Line> lines{
        {QStringLiteral("Label"), QStringLiteral("a\tb\nc\rd\\e\\n")}};
    const QString stream = FeatureStream::format(lines, 0);
    QCOMPARE(stream, QStringLiteral("# nerix feature stream 1: 1 features, 0 not readable\n"
                                    "Label\ta\\tb\\nc\\rd\\\\e\\\\n\n"));
    QCOMPARE(FeatureStream::parse(stream), lines);
}

void FeatureStreamTest::controlCharactersInANameAreEscapedToo()
{
    const QVector<FeatureStream::Line> lines{{QStringLiteral("La\nbel\t\\"), QStringLiteral("a")},
                                             {QStringLiteral("Width"), QStringLiteral("512")}};
    const QString stream = FeatureStream::format(lines, 0);
    QCOMPARE(stream, QStringLiteral("# nerix feature stream 1: 2 features, 0 not readable\n"
                                    "La\\nbel\\t\\\\\ta\n"
                                    "Width\t512\n"));
    QCOMPARE(FeatureStream::parse(stream), lines);
}

void FeatureStreamTest::damagedStreamIsRefused_data()
{
    QTest::addColumn<QString>("stream");
    QTest::addColumn<QString>("message");
    const QString noStream =
        QStringLiteral("this is no feature stream of version 1: its first line "
                       "must begin with \"# nerix feature stream 1:\"");
    const QString notWhole =
        QStringLiteral("the feature stream is not whole: its first line promises %1 features; save "
                       "the features again");
    const QString damaged =
        QStringLiteral("line %1 of the feature stream is damaged: it must be a name, a tab and a "
                       "value; save the features again");
    const QString first = QStringLiteral("# nerix feature stream 1: 1 features, 0 not readable\n");
    QTest::newRow("empty") << QString() << noStream;
    QTest::newRow("another format") << QStringLiteral("Width=512\n") << noStream;
    QTest::newRow("another version")
        << QStringLiteral("# nerix feature stream 2: 0 features, 0 not readable\n") << noStream;
    QTest::newRow("cut off") << first << notWhole.arg(1);
    QTest::newRow("no line end") << first + QStringLiteral("Width\t512") << notWhole.arg(1);
    QTest::newRow("a line too many")
        << first + QStringLiteral("Width\t512\nHeight\t512\n") << notWhole.arg(1);
    QTest::newRow("no tab") << first + QStringLiteral("Width 512\n") << damaged.arg(2);
    QTest::newRow("no name") << first + QStringLiteral("\t512\n") << damaged.arg(2);
    QTest::newRow("unknown escape") << first + QStringLiteral("L\t\\x\n") << damaged.arg(2);
    QTest::newRow("escape at the end") << first + QStringLiteral("L\ta\\\n") << damaged.arg(2);
}

void FeatureStreamTest::damagedStreamIsRefused()
{
    QFETCH(QString, stream);
    try {
        FeatureStream::parse(stream);
        QFAIL("it was taken");
    } catch (const CParameterException &exception) {
        QTEST(exception.message(), "message");
    }
}

void FeatureStreamTest::cameraStreamHoldsEveryReadableFeatureInTreeOrder()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    const QString stream = camera.parameters().featureStream(cameraTree);
    QStringList expected;
    for (const auto &parameter : camera.parameters().parameters()) {
        if (parameter->isReadable()
            && parameter->fullName().startsWith(QLatin1String("@CameraDevice/"))) {
            expected.append(parameter->name());
        }
    }
    QStringList names;
    for (const auto &line : FeatureStream::parse(stream)) {
        names.append(line.first);
    }
    QCOMPARE(names, expected);
    // Written only, not available, not implemented.
    QCOMPARE(
        stream.section(u'\n', 0, 0),
        QStringLiteral("# nerix feature stream 1: %1 features, 3 not readable").arg(names.size()));
    QVERIFY(stream.contains(QLatin1String("\nDeviceModelName\tXQZ-2000\n")));
    QVERIFY(stream.contains(QLatin1String("\nSequenceEnable\tfalse\n")));
}

void FeatureStreamTest::counterStreamHoldsTheCounters()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    QCOMPARE(camera.parameters().featureStream(QStringLiteral("@StreamGrabber0")),
             QStringLiteral("# nerix feature stream 1: 7 features, 0 not readable\n"
                            "Statistic_Total_Buffer_Count\t0\n"
                            "Statistic_Failed_Buffer_Count\t0\n"
                            "Statistic_Total_Packet_Count\t0\n"
                            "Statistic_Resend_Request_Count\t0\n"
                            "Statistic_Resend_Packet_Count\t0\n"
                            "Statistic_Failed_Packet_Count\t0\n"
                            "Statistic_Missed_Frame_Count\t0\n"));
}

void FeatureStreamTest::unknownTreeIsRefused()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    QVERIFY_EXCEPTION_THROWN(camera.parameters().featureStream(QStringLiteral("@Nowhere")),
                             CParameterException);
}

void FeatureStreamTest::streamOf840FeaturesIsWhole()
{
    COpenCamera camera({QStringLiteral("--features"), QStringLiteral("840")});
    QVERIFY(camera.isOpen());
    const auto lines = FeatureStream::parse(camera.parameters().featureStream(cameraTree));
    QVERIFY2(lines.size() > 800, qPrintable(QString::number(lines.size())));
}

void FeatureStreamTest::threadsThatReadAtOnceGetRightValues()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    const QString stream = camera.parameters().featureStream(cameraTree);
    std::atomic<int> wrong{0};
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back([&] {
            for (int round = 0; round < 20; ++round) {
                wrong += camera.parameters().featureStream(cameraTree) == stream ? 0 : 1;
                wrong += camera.feature("DeviceModelName")->toolTip().isEmpty() ? 1 : 0;
            }
        });
    }
    for (std::thread &reader : readers) {
        reader.join();
    }
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(FeatureStreamTest)
#include "FeatureStreamTest.moc"
