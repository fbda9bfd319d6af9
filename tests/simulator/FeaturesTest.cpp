// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGigEClient.h"
#include "CSimulatorProcess.h"

#include <QScopedPointer>
#include <QTest>

// The camera's features as a program meets them over the control protocol.
class FeaturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void testValueAtStart_data();
    void testValueAtStart();
    void testWrittenValueIsReadAgain_data();
    void testWrittenValueIsReadAgain();
    void testRefusedWriteChangesNothing_data();
    void testRefusedWriteChangesNothing();
    void testRegisterKeepsItsBytes();
    void testGainAndItsRawFormAreOneSetting();
    void testLimitsFollowOtherFeatures();
    void testWriteOnlyFeatureCannotBeRead();
    void testUnavailableFeature();
    void testUnimplementedFeature();
    void testSoftwareTriggerIsAvailableWhenItIsUsed();
    void testCategories_data();
    void testCategories();
    void testPropertiesOfAFeature();
    void testEveryFeatureIsDescribed();
    void testOptionsAreWhatTheCameraSays();
    void testLargeCameraHasThatManyFeatures();
    void testLargeCameraKeepsEveryKindOfGeneratedFeature();

private:
    void open(const QStringList &options);

    QScopedPointer<CSimulatorProcess> m_camera;
    QScopedPointer<CGigEClient> m_client;
};

void FeaturesTest::open(const QStringList &options)
{
    m_client.reset();
    m_camera.reset(new CSimulatorProcess(options));
    QVERIFY2(m_camera->start(), qPrintable(m_camera->errorText()));
    m_client.reset(new CGigEClient(m_camera->address()));
    QVERIFY2(m_client->isOpen(), qPrintable(m_client->error()));
}

void FeaturesTest::init()
{
    open({});
}

void FeaturesTest::cleanup()
{
    m_client.reset();
    QVERIFY(m_camera->stop());
}

void FeaturesTest::testValueAtStart_data()
{
    QTest::addColumn<QString>("value");

    QTest::newRow("DeviceVendorName") << "Ostrand";
    QTest::newRow("DeviceModelName") << "XQZ-2000";
    QTest::newRow("DeviceManufacturerInfo") << "Simulated camera";
    QTest::newRow("DeviceID") << "127000000001";
    QTest::newRow("DeviceUserID") << "";
    QTest::newRow("DeviceTemperature") << "41.5";
    QTest::newRow("SensorWidth") << "2048";
    QTest::newRow("SensorHeight") << "2048";
    QTest::newRow("Width") << "512";
    QTest::newRow("Height") << "512";
    QTest::newRow("OffsetX") << "0";
    QTest::newRow("PixelFormat") << "Mono8";
    QTest::newRow("AcquisitionMode") << "Continuous";
    QTest::newRow("AcquisitionFrameCount") << "10";
    QTest::newRow("AcquisitionFrameRate") << "25";
    QTest::newRow("ExposureTime") << "10000";
    QTest::newRow("TriggerMode") << "Off";
    QTest::newRow("Gain") << "0";
    QTest::newRow("SequencerConfigurationMode") << "Off";
    QTest::newRow("SequenceEnable") << "false";
    QTest::newRow("PayloadSize") << "262144";
    QTest::newRow("GevHeartbeatTimeout") << "3000";
    QTest::newRow("GevCurrentIPAddress") << "2130706433";
    QTest::newRow("QmzBrightness") << "0";
    QTest::newRow("QmzInvert") << "false";
    QTest::newRow("QmzTestImage") << "MovingRamp";
    QTest::newRow("QmzLabel") << "";
    QTest::newRow("QmzFrameCounter") << "0";
}

void FeaturesTest::testValueAtStart()
{
    QFETCH(QString, value);
    QCOMPARE(m_client->value(QTest::currentDataTag()), value);
    QCOMPARE(m_client->error(), QString());
}

void FeaturesTest::testWrittenValueIsReadAgain_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");

    QTest::newRow("integer") << "Width"
                             << "320";
    QTest::newRow("integer at its upper limit") << "Height"
                                                << "2048";
    QTest::newRow("integer at its lower limit") << "QmzBrightness"
                                                << "-128";
    QTest::newRow("part of a register") << "GevSCPSPacketSize"
                                        << "9000";
    QTest::newRow("float") << "ExposureTime"
                           << "2500";
    QTest::newRow("float by way of a formula") << "Gain"
                                               << "3.5";
    QTest::newRow("float by way of a reciprocal") << "AcquisitionFrameRate"
                                                  << "100";
    QTest::newRow("boolean") << "QmzInvert"
                             << "true";
    QTest::newRow("sequence enable") << "SequenceEnable"
                                     << "true";
    QTest::newRow("enumeration") << "PixelFormat"
                                 << "RGB8";
    QTest::newRow("sequencer mode") << "SequencerConfigurationMode"
                                    << "On";
    QTest::newRow("acquisition mode") << "AcquisitionMode"
                                      << "SingleFrame";
    QTest::newRow("string") << "QmzLabel"
                            << "left of the door";
    QTest::newRow("string beyond ASCII")
        << "QmzLabel" << QString::fromUtf8("Gr\xC3\xBCn \xE2\x82\xAC");
    QTest::newRow("user-defined name") << "DeviceUserID"
                                       << "left";
}

void FeaturesTest::testWrittenValueIsReadAgain()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    QVERIFY2(m_client->setValue(feature, value), qPrintable(m_client->error()));
    QCOMPARE(m_client->value(feature), value);
    // Another program sees it, too: it is in the camera and not in this program's memory.
    m_client.reset();
    m_client.reset(new CGigEClient(m_camera->address()));
    QCOMPARE(m_client->value(feature), value);
}

void FeaturesTest::testRefusedWriteChangesNothing_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");

    QTest::newRow("integer above its limit") << "Width"
                                             << "99999";
    QTest::newRow("integer below its limit") << "QmzBrightness"
                                             << "-129";
    QTest::newRow("float above its limit") << "Gain"
                                           << "24.5";
    QTest::newRow("float below its limit") << "ExposureTime"
                                           << "9";
    QTest::newRow("no number") << "Width"
                               << "wide";
    QTest::newRow("no entry of the enumeration") << "PixelFormat"
                                                 << "Mono9";
    QTest::newRow("read-only text") << "DeviceModelName"
                                    << "other";
    QTest::newRow("read-only number") << "SensorWidth"
                                      << "17";
}

void FeaturesTest::testRefusedWriteChangesNothing()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    const QString before = m_client->value(feature);
    QVERIFY(!m_client->setValue(feature, value));
    QVERIFY(!m_client->error().isEmpty());
    QCOMPARE(m_client->value(feature), before);
}

void FeaturesTest::testRegisterKeepsItsBytes()
{
    QCOMPARE(m_client->bytes("QmzUserData"), QByteArray(64, '\0'));
    QByteArray bytes(64, '\0');
    for (int i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(255 - i);
    }
    QVERIFY2(m_client->setBytes("QmzUserData", bytes), qPrintable(m_client->error()));
    QCOMPARE(m_client->bytes("QmzUserData"), bytes);
}

void FeaturesTest::testGainAndItsRawFormAreOneSetting()
{
    QVERIFY(m_client->setValue("GainRaw", "120"));
    QCOMPARE(m_client->value("Gain"), QString("12"));
    QVERIFY(m_client->setValue("Gain", "0.5"));
    QCOMPARE(m_client->value("GainRaw"), QString("5"));
}

void FeaturesTest::testLimitsFollowOtherFeatures()
{
    QVERIFY(m_client->setValue("OffsetX", "1536"));
    QVERIFY(!m_client->setValue("Width", "516"));
    QVERIFY(!m_client->setValue("OffsetX", "1540"));
    QVERIFY(m_client->setValue("Width", "256"));
    QVERIFY(m_client->setValue("OffsetX", "1792"));
    QCOMPARE(m_client->value("PayloadSize"), QString("131072"));
    QVERIFY(m_client->setValue("PixelFormat", "Mono16"));
    QCOMPARE(m_client->value("PayloadSize"), QString("262144"));
}

void FeaturesTest::testWriteOnlyFeatureCannotBeRead()
{
    QVERIFY(m_client->setValue("QmzUnlockCode", "4711"));
    QVERIFY(m_client->value("QmzUnlockCode").isNull());
    QVERIFY(!m_client->error().isEmpty());
}

void FeaturesTest::testUnavailableFeature()
{
    QVERIFY(m_client->isImplemented("QmzCoolerTarget"));
    QVERIFY(!m_client->isAvailable("QmzCoolerTarget"));
    QVERIFY(m_client->isAvailable("QmzBrightness"));
}

void FeaturesTest::testUnimplementedFeature()
{
    QVERIFY(!m_client->isImplemented("QmzFilterWheelPosition"));
    QVERIFY(m_client->isImplemented("QmzBrightness"));
}

void FeaturesTest::testSoftwareTriggerIsAvailableWhenItIsUsed()
{
    QVERIFY(!m_client->isAvailable("TriggerSoftware"));
    QVERIFY(m_client->setValue("TriggerMode", "On"));
    QVERIFY(!m_client->isAvailable("TriggerSoftware"));
    QVERIFY(m_client->setValue("TriggerSource", "Software"));
    QVERIFY(m_client->isAvailable("TriggerSoftware"));
}

void FeaturesTest::testCategories_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("path");

    QTest::newRow("one level") << "AcquisitionMode"
                               << "AcquisitionControl";
    QTest::newRow("two levels") << "TriggerMode"
                                << "AcquisitionControl/QmzTriggerControl";
    QTest::newRow("three levels") << "QmzBrightness"
                                  << "QmzVendorControl/QmzImageProcessing/QmzTone";
}

void FeaturesTest::testCategories()
{
    QFETCH(QString, feature);
    QFETCH(QString, path);
    QCOMPARE(m_client->path(feature), path);
}

void FeaturesTest::testPropertiesOfAFeature()
{
    ArvGcFeatureNode *node = m_client->node("ExposureTime");
    QCOMPARE(arv_gc_feature_node_get_display_name(node), "Exposure Time");
    QCOMPARE(arv_gc_feature_node_get_tooltip(node), "Exposure time.");
    QCOMPARE(arv_gc_feature_node_get_description(node),
             "Duration of the exposure of an image in microseconds. Brightens the image.");
    QCOMPARE(arv_gc_feature_node_get_visibility(node), ARV_GC_VISIBILITY_BEGINNER);
    QCOMPARE(arv_gc_float_get_unit(ARV_GC_FLOAT(node)), "us");
    QCOMPARE(arv_gc_float_get_min(ARV_GC_FLOAT(node), nullptr), 10.0);
    QCOMPARE(arv_gc_float_get_max(ARV_GC_FLOAT(node), nullptr), 10000000.0);
    QCOMPARE(arv_gc_feature_node_get_visibility(m_client->node("GainRaw")),
             ARV_GC_VISIBILITY_EXPERT);
    QCOMPARE(arv_gc_feature_node_get_visibility(m_client->node("QmzUserData")),
             ARV_GC_VISIBILITY_GURU);
    QCOMPARE(arv_gc_integer_get_inc(ARV_GC_INTEGER(m_client->node("Width")), nullptr), 4);
}

void FeaturesTest::testEveryFeatureIsDescribed()
{
    open({"--features", "63"});
    for (const QString &feature : m_client->features()) {
        ArvGcFeatureNode *node = m_client->node(feature);
        QVERIFY2(arv_gc_feature_node_get_tooltip(node), qPrintable(feature));
        QVERIFY2(arv_gc_feature_node_get_description(node), qPrintable(feature));
    }
}

void FeaturesTest::testOptionsAreWhatTheCameraSays()
{
    open({"--serial", "A-7", "--vendor", "Some Maker", "--model", "TOG-1", "--user-name", "left"});
    QCOMPARE(m_client->value("DeviceID"), QString("A-7"));
    QCOMPARE(m_client->value("DeviceVendorName"), QString("Some Maker"));
    QCOMPARE(m_client->value("DeviceModelName"), QString("TOG-1"));
    QCOMPARE(m_client->value("DeviceUserID"), QString("left"));
}

void FeaturesTest::testLargeCameraHasThatManyFeatures()
{
    open({"--features", "840"});
    QCOMPARE(m_client->features().size(), 840);
    QCOMPARE(m_client->path("QmzBank040Scale4"), QString("QmzVendorControl/QmzBank040"));
    int readable = 0;
    for (const QString &feature : m_client->features()) {
        readable += m_client->value(feature).isNull() ? 0 : 1;
    }
    // All but four commands, the bytes and the write-only code.
    QCOMPARE(readable, 834);
}

void FeaturesTest::testLargeCameraKeepsEveryKindOfGeneratedFeature()
{
    open({"--features", "840"});
    const QList<QPair<QString, QString>> settings{{"QmzBank001Offset1", "-1000"},
                                                  {"QmzBank001Scale1", "99.5"},
                                                  {"QmzBank001Enable1", "true"},
                                                  {"QmzBank001Level1", "High"},
                                                  {"QmzBank001Label1", "sixteen letters."},
                                                  {"QmzBank040Offset4", "1000"}};
    for (const auto &setting : settings) {
        QVERIFY2(m_client->setValue(setting.first, setting.second), qPrintable(setting.first));
    }
    for (const auto &setting : settings) {
        QCOMPARE(m_client->value(setting.first), setting.second);
    }
    QCOMPARE(m_client->value("QmzBank001Offset2"), QString("0"));
    QVERIFY(!m_client->setValue("QmzBank001Offset1", "1001"));
}

QTEST_GUILESS_MAIN(FeaturesTest)

#include "FeaturesTest.moc"
