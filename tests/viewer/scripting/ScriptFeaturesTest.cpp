// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CScriptRun.h"
#include "FakeParameterCollection.h"
#include "FakeServices.h"
#include "plugins/featuretree/CFeatureSelectionService.h"
#include "support/CFakeCameraControl.h"
#include "support/Texts.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

class ScriptFeaturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testListTellsEveryParameterInOrder();
    void testGetReadsTheValueAsText();
    void testFullNameReachesAnotherTree();
    void testSetAnnouncesTheValueInAnotherThread();
    void testSelectMakesTheFeatureCurrent();
    void testStreamIsTheWholeTree();
    void testFeaturesAreSavedAndLoadedWithAReport();
    void testFileOfAnotherKindThrows();
    void testFailureSaysWhatToDo_data();
    void testFailureSaysWhatToDo();

private:
    QScopedPointer<CScriptRun> m_run;
    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<FakeParameterService> m_parameterService;
    QSharedPointer<FeatureTree::CFeatureSelectionService> m_selection;
    QSharedPointer<FakeParameterCollection> m_parameters;
    QSharedPointer<FakeInteger> m_gain;
    CFakeCameraControl::CameraInfoPtr m_camera;
};

void ScriptFeaturesTest::init()
{
    m_run.reset(new CScriptRun);
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_parameterService = QSharedPointer<FakeParameterService>::create();
    m_selection = QSharedPointer<FeatureTree::CFeatureSelectionService>::create();
    m_run->addService(m_control);
    m_run->addService(m_parameterService);
    m_run->addService(m_selection);
    m_camera = m_control->plugIn("A-1");
    m_control->plugIn("closed");
    m_parameters = QSharedPointer<FakeParameterCollection>::create();
    m_gain = m_parameters->add<FakeInteger>("@CameraDevice/Gain");
    m_gain->stateText = "7";
    m_parameters->add<FakeInteger>("@StreamGrabber0/Statistic_Total_Buffer_Count")->stateText =
        "123";
    m_parameterService->collections.insert(m_camera.data(), m_parameters);
}

void ScriptFeaturesTest::cleanup()
{
    m_run.reset();
}

void ScriptFeaturesTest::testListTellsEveryParameterInOrder()
{
    m_gain->stateUnavailable = true;
    QCOMPARE(m_run->run("features.list('A-1').forEach(function (f) {\n"
                        "    print(f.name, f.fullName, f.type, f.isUnavailable, "
                        "f.isUserSettable);\n"
                        "});"),
             QString());
    QCOMPARE(m_run->printed(),
             texts({"Gain @CameraDevice/Gain 2 true true",
                    "Statistic_Total_Buffer_Count "
                    "@StreamGrabber0/Statistic_Total_Buffer_Count 2 false true"}));
}

void ScriptFeaturesTest::testGetReadsTheValueAsText()
{
    QCOMPARE(m_run->run("print(features.get('A-1', 'Gain'));"), QString());
    QCOMPARE(m_run->printed(), texts({"7"}));
}

void ScriptFeaturesTest::testFullNameReachesAnotherTree()
{
    QCOMPARE(
        m_run->run("print(features.get('A-1', '@StreamGrabber0/Statistic_Total_Buffer_Count'));"),
        QString());
    QCOMPARE(m_run->printed(), texts({"123"}));
}

void ScriptFeaturesTest::testSetAnnouncesTheValueInAnotherThread()
{
    QStringList announced;
    QThread *thread = nullptr;
    connect(
        m_gain.data(), &ParameterCollection::IParameter::parameterValueAboutToBeSet, this,
        [&](const QString &value) {
            announced.append(value);
            thread = QThread::currentThread();
        },
        Qt::DirectConnection);
    QCOMPARE(m_run->run("features.set('A-1', 'Gain', 9); features.set('A-1', 'Gain', '10');"),
             QString());
    QCOMPARE(announced, texts({"9", "10"}));
    QVERIFY(thread != QThread::currentThread());
    QCOMPARE(m_gain->stateText, QStringLiteral("10"));
}

void ScriptFeaturesTest::testSelectMakesTheFeatureCurrent()
{
    QSignalSpy changed(m_selection.data(), &FeatureTree::IFeatureTreeStatusService::currentChanged);
    QCOMPARE(m_run->run("features.select('A-1', 'Gain');"), QString());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_selection->current().data(), m_gain.data());
}

void ScriptFeaturesTest::testStreamIsTheWholeTree()
{
    m_parameters->stream = "Gain\t7\n";
    QCOMPARE(m_run->run("print(features.stream('A-1').length);"), QString());
    QCOMPARE(m_run->printed(), texts({"7"}));
    QCOMPARE(m_parameters->streamsRead, QList<QString>({"@CameraDevice"}));
}

void ScriptFeaturesTest::testFeaturesAreSavedAndLoadedWithAReport()
{
    const QTemporaryDir folder;
    m_parameters->add<FakeInteger>("@CameraDevice/Broken")->throwing.insert("setValueText");
    m_parameters->add<FakeInteger>("@CameraDevice/DeviceUserID")->stateText = "7";
    m_parameters->add<FakeInteger>("@CameraDevice/GevSCDA")->stateText = "7";
    m_parameters->stream = "# nerix feature stream 1: 4 features, 0 not readable\n"
                           "Gain\t8\nBroken\t1\nGevSCDA\t9\nDeviceUserID\t9\n";
    const QString file = folder.filePath("a.features");
    QCOMPARE(m_run->run(QStringLiteral("features.save('A-1', '%1');"
                                       "var report = features.load('A-1', '%1');"
                                       "print(report.set, report.unchanged, report.readOnly,"
                                       "      JSON.stringify(report.refused), report.leftAlone);")
                            .arg(file)
                            .toUtf8()),
             QString());
    QCOMPARE(m_run->printed(),
             QStringList{"1 0 0 [{\"name\":\"Broken\",\"reason\":\"setValueText failed\"}] "
                         "DeviceUserID,GevSCDA"});
    QCOMPARE(m_gain->stateText, QStringLiteral("8"));
}

void ScriptFeaturesTest::testFileOfAnotherKindThrows()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    QCOMPARE(m_run->run("features.load('A-1', '" + file.fileName().toUtf8() + "');"),
             "test.js:1: file " + file.fileName()
                 + " holds no features: this is no feature stream of version 1: its first line "
                   "must begin with \"# nerix feature stream 1:\"");
}

void ScriptFeaturesTest::testFailureSaysWhatToDo_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("failure");
    QTest::newRow("no such camera")
        << QByteArray("features.get('X', 'Gain')")
        << "test.js:1: there is no camera \"X\" (connected: A-1, closed)";
    QTest::newRow("a camera that is not open")
        << QByteArray("features.get('closed', 'Gain')")
        << "test.js:1: camera \"closed\" has no features to show: open it first";
    QTest::newRow("no such feature")
        << QByteArray("features.set('A-1', 'Gian', '1')")
        << "test.js:1: camera \"A-1\" has no feature \"Gian\": see features.list";
    QTest::newRow("a value that cannot be read")
        << QByteArray("features.get('A-1', 'Broken')") << "test.js:1: valueText failed";
}

void ScriptFeaturesTest::testFailureSaysWhatToDo()
{
    QFETCH(QByteArray, script);
    m_parameters->add<FakeInteger>("@CameraDevice/Broken")->throwing.insert("valueText");
    QTEST(m_run->run(script), "failure");
}

QTEST_GUILESS_MAIN(ScriptFeaturesTest)
#include "ScriptFeaturesTest.moc"
