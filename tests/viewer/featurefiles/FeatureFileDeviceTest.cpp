// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "../parametercollectionpool/COpenCamera.h"
#include "CFeatureFolder.h"
#include "plugins/featurefiles/CFeatureFile.h"

#include <ParameterCollection/CParameterException.h>

#include <QTest>

using namespace FeatureFiles;

// Files of features with a simulated camera.
class FeatureFileDeviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void testSavedFeaturesComeBack();
    void testWhatIsRefusedIsNamedWithTheReason();
    void testOffsetIsSetOnceTheWidthAllowsIt();
    void testLockedFeatureIsRefusedAndTheRestIsSet();
    void testFeaturesOfAnotherCameraComeBackWithoutARefusal();
    void testNameComesBackToItsCameraAndGoesToNoOther();
    void testCameraThatVanishesIsToldForEachFeature();
    void testSavingACameraThatVanishedLeavesTheFileAndSaysWhy();

private:
    QString value(const char *name) const
    {
        return m_camera->feature(name)->valueText();
    }
    void set(const char *name, const char *text)
    {
        m_camera->feature(name)->setValueText(QString::fromUtf8(text));
    }
    CLoadReport load(const QStringList &lines)
    {
        return CFeatureFile(m_folder.write("in", lines)).load(m_camera->parameters());
    }

    CFeatureFolder m_folder;
    std::unique_ptr<COpenCamera> m_camera;
};

void FeatureFileDeviceTest::initTestCase()
{
    m_camera = std::make_unique<COpenCamera>();
    QVERIFY(m_camera->isOpen());
}

void FeatureFileDeviceTest::cleanupTestCase()
{
    m_camera.reset();
}

void FeatureFileDeviceTest::testSavedFeaturesComeBack()
{
    set("Width", "640");
    set("QmzLabel", "a\tb\\c");
    set("PixelFormat", "Mono16");
    CFeatureFile(m_folder.path("out")).save(m_camera->parameters());
    const QByteArray saved = m_folder.read("out");
    QVERIFY(saved.contains("\nWidth\t640\n"));
    set("Width", "320");
    set("QmzLabel", "");
    set("PixelFormat", "Mono8");
    set("ExposureTime", "77");
    const CLoadReport report = CFeatureFile(m_folder.path("out")).load(m_camera->parameters());
    QCOMPARE(refusedIn(report).join("\n"), QString());
    QCOMPARE(report.set, 4);
    CFeatureFile(m_folder.path("again")).save(m_camera->parameters());
    QCOMPARE(m_folder.read("again"), saved);
}

void FeatureFileDeviceTest::testWhatIsRefusedIsNamedWithTheReason()
{
    const CLoadReport report =
        load({"DeviceModelName\tother", "NoSuchFeature\t1", "Width\t99999", "Height\t100"});
    QCOMPARE(
        refusedIn(report),
        (QStringList{"NoSuchFeature: there is no such parameter",
                     "Width: 99999 is out of range: give a number from 16 to 2048 in steps of 4"}));
    QCOMPARE(report.readOnly, 1);
    QCOMPARE(value("Height"), QString("100"));
}

void FeatureFileDeviceTest::testOffsetIsSetOnceTheWidthAllowsIt()
{
    set("OffsetX", "0");
    set("Width", "2048");
    const CLoadReport report = load({"OffsetX\t1024", "Width\t512"});
    QCOMPARE(refusedIn(report).join("\n"), QString());
    QCOMPARE(value("OffsetX"), QString("1024"));
    set("OffsetX", "0");
}

void FeatureFileDeviceTest::testLockedFeatureIsRefusedAndTheRestIsSet()
{
    set("AcquisitionStart", "Execute");
    const CLoadReport report = load({"Width\t256", "ExposureTime\t1234"});
    set("AcquisitionStop", "Execute");
    QCOMPARE(refusedIn(report), QStringList{"Width: it is locked now: stop the grab, then set it"});
    QCOMPARE(report.set, 1);
    QCOMPARE(value("ExposureTime"), QString("1234"));
}

// The same model has the same features; what tells cameras apart can only be read.
void FeatureFileDeviceTest::testFeaturesOfAnotherCameraComeBackWithoutARefusal()
{
    set("Width", "400");
    CFeatureFile(m_folder.path("out")).save(m_camera->parameters());
    QByteArray text = m_folder.read("out");
    text.replace("DeviceID\tA1", "DeviceID\tB2");
    QVERIFY(text.contains("DeviceID\tB2"));
    const QString path = m_folder.writeRaw("other", text);
    set("Width", "500");
    const CLoadReport report = CFeatureFile(path).load(m_camera->parameters());
    QCOMPARE(refusedIn(report).join("\n"), QString());
    QCOMPARE(report.set, 1);
}

void FeatureFileDeviceTest::testNameComesBackToItsCameraAndGoesToNoOther()
{
    set("DeviceUserID", "Line3");
    CFeatureFile(m_folder.path("out")).save(m_camera->parameters());
    COpenCamera other({"--address", "127.0.0.2"}, "B2");
    QVERIFY(other.isOpen());
    other.feature("DeviceUserID")->setValueText("Line4");
    other.feature("Width")->setValueText("1024");
    const CLoadReport report = CFeatureFile(m_folder.path("out")).load(other.parameters());
    QCOMPARE(report.leftAlone, QStringList{"DeviceUserID"});
    QCOMPARE(other.feature("DeviceUserID")->valueText(), QString("Line4"));
    QCOMPARE(other.feature("Width")->valueText(), value("Width"));

    set("DeviceUserID", "");
    QCOMPARE(CFeatureFile(m_folder.path("out")).load(m_camera->parameters()).set, 1);
    QCOMPARE(value("DeviceUserID"), QString("Line3"));
    set("DeviceUserID", "");
}

void FeatureFileDeviceTest::testCameraThatVanishesIsToldForEachFeature()
{
    COpenCamera lost({"--address", "127.0.0.2"}, "B2");
    QVERIFY(lost.isOpen());
    QCOMPARE(lost.simulator().command("vanish"), QString("vanished"));
    const QString path = m_folder.write("in", {"Width\t256", "Height\t256", "DeviceModelName\tx"});
    const CLoadReport report = CFeatureFile(path).load(lost.parameters());
    QCOMPARE(report.set + report.unchanged + report.readOnly, 0);
    QCOMPARE(report.refused.size(), 3);
    QVERIFY2(!report.refused.last().reason.isEmpty(), "no reason");
}

void FeatureFileDeviceTest::testSavingACameraThatVanishedLeavesTheFileAndSaysWhy()
{
    COpenCamera lost({"--address", "127.0.0.2"}, "B2");
    QVERIFY(lost.isOpen());
    const QString path = m_folder.write("kept", {"Width\t256"});
    const QByteArray before = m_folder.read("kept");
    lost.simulator().kill();
    try {
        CFeatureFile(path).save(lost.parameters());
        QFAIL("the camera is gone");
    } catch (const ParameterCollection::CParameterException &exception) {
        QCOMPARE(
            exception.message(),
            QString("Ostrand-XQZ-2000-B2 is gone: check its cable and power, then open it again"));
    }
    QCOMPARE(m_folder.read("kept"), before);
}

QTEST_GUILESS_MAIN(FeatureFileDeviceTest)
#include "FeatureFileDeviceTest.moc"
