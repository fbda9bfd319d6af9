// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

// A large camera whose sequencer is enabled: opening must leave its parameters alone.
class SequencerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testOpenedCarriesTheMarkerAndClosedTheWholeStream_data();
    void testOpenedCarriesTheMarkerAndClosedTheWholeStream();
};

namespace {

QStringList featureStreams(const QStringList &events, const char *name)
{
    QStringList streams;
    for (const QString &event : events) {
        const QJsonObject record =
            QJsonDocument::fromJson(event.section('\t', 2).toUtf8()).object();
        if (record["EventName"].toString() == QLatin1String(name)) {
            streams.append(record["FeatureStreamStats"].toString());
        }
    }
    return streams;
}

} // namespace

void SequencerTest::testOpenedCarriesTheMarkerAndClosedTheWholeStream_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");
    QTest::newRow("the sequencer is being configured") << "SequencerConfigurationMode"
                                                       << "On";
    QTest::newRow("the sequencer runs") << "SequenceEnable"
                                        << "true";
}

void SequencerTest::testOpenedCarriesTheMarkerAndClosedTheWholeStream()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    CSimulatorProcess camera({"--features", "840"});
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    // In a run of its own, so that it is certain to come before the opening in question.
    QCOMPARE(viewer.run(QStringLiteral("var camera = cameras.waitFor(1, 60000)[0];\n"
                                       "cameras.open(camera);\n"
                                       "features.set(camera, '%1', '%2');\n")
                            .arg(feature, value)),
             0);
    QCOMPARE(viewer.run("cameras.open(cameras.waitFor(1, 60000)[0]);\n"), 0);
    const QStringList opened = featureStreams(viewer.storedEvents("Camera"), "Opened");
    const QStringList closed = featureStreams(viewer.storedEvents("Camera"), "Closed");
    QCOMPARE(opened.size(), 2);
    QCOMPARE(opened.last(), QStringLiteral("[...cut]"));
    QCOMPARE(closed.size(), 2);
    QVERIFY(closed.last().count('\n') > 800);
    QVERIFY(closed.last().contains(QStringLiteral("\n%1\t%2\n").arg(feature, value)));
    QVERIFY(!closed.last().contains("[...cut]"));
}

QTEST_GUILESS_MAIN(SequencerTest)
#include "SequencerTest.moc"
