// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CFeatureFolder.h"
#include "plugins/featurefiles/CFeatureFile.h"

#include <FakeParameterCollection.h>

#include <QTest>

using namespace FeatureFiles;
using namespace ParameterCollection;

// What belongs to one camera alone, loaded into that camera and into another one.
class OwnFeaturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testWhatBelongsToOneCameraAloneGoesOnlyToThatCamera_data();
    void testWhatBelongsToOneCameraAloneGoesOnlyToThatCamera();
    void testAddressOfAnotherCameraIsLeftAlone();
    void testSameNameIsUnchangedAndAMissingOneIsRefused();

private:
    QSharedPointer<FakeInteger> add(const char *name, const char *value);
    CLoadReport load(const QStringList &lines) const;

    CFeatureFolder m_folder;
    FakeParameterCollection m_parameters;
    QStringList m_sets; // "name=value" of every value that was set, in order
};

void OwnFeaturesTest::init()
{
    m_parameters.all.clear();
    m_sets.clear();
}

QSharedPointer<FakeInteger> OwnFeaturesTest::add(const char *name, const char *value)
{
    const auto parameter =
        m_parameters.add<FakeInteger>(("@CameraDevice/" + QByteArray(name)).constData());
    parameter->stateText = value;
    connect(
        parameter.data(), &IParameter::parameterValueAboutToBeSet, this,
        [this, name = QString(name)](const QString &text) { m_sets.append(name + '=' + text); });
    return parameter;
}

CLoadReport OwnFeaturesTest::load(const QStringList &lines) const
{
    return CFeatureFile(m_folder.write("in", lines)).load(m_parameters);
}

void OwnFeaturesTest::testWhatBelongsToOneCameraAloneGoesOnlyToThatCamera_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<bool>("isSet");
    QTest::newRow("the same camera")
        << QStringList{"DeviceVendorName\tOstrand", "DeviceModelName\tXQZ-2000", "DeviceID\tA1"}
        << true;
    QTest::newRow("another serial number")
        << QStringList{"DeviceVendorName\tOstrand", "DeviceModelName\tXQZ-2000", "DeviceID\tB2"}
        << false;
    QTest::newRow("another model")
        << QStringList{"DeviceVendorName\tOstrand", "DeviceModelName\tXQZ-9", "DeviceID\tA1"}
        << false;
    QTest::newRow("another maker")
        << QStringList{"DeviceVendorName\tOther", "DeviceModelName\tXQZ-2000", "DeviceID\tA1"}
        << false;
    QTest::newRow("no serial number")
        << QStringList{"DeviceVendorName\tOstrand", "DeviceModelName\tXQZ-2000"} << false;
    QTest::newRow("an empty serial number") << QStringList{"DeviceID\t"} << false;
    QTest::newRow("nothing that tells") << QStringList() << false;
    QTest::newRow("a serial number that the camera does not have")
        << QStringList{"DeviceSerialNumber\tA1"} << false;
}

void OwnFeaturesTest::testWhatBelongsToOneCameraAloneGoesOnlyToThatCamera()
{
    QFETCH(QStringList, lines);
    QFETCH(bool, isSet);
    add("DeviceVendorName", "Ostrand")->stateUserSettable = false;
    add("DeviceModelName", "XQZ-2000")->stateUserSettable = false;
    add("DeviceID", "A1")->stateUserSettable = false;
    add("DeviceUserID", "old")->stateType = InterfaceString;
    add("Gain", "1");
    const CLoadReport report = load(lines + QStringList{"DeviceUserID\tLine3", "Gain\t2"});
    QCOMPARE(m_sets, isSet ? QStringList({"DeviceUserID=Line3", "Gain=2"}) : QStringList{"Gain=2"});
    QCOMPARE(report.leftAlone, isSet ? QStringList() : QStringList{"DeviceUserID"});
    QCOMPARE(report.set, isSet ? 2 : 1);
}

void OwnFeaturesTest::testAddressOfAnotherCameraIsLeftAlone()
{
    const QStringList own{"DeviceUserID",
                          "GevPersistentIPAddress",
                          "GevPersistentSubnetMask",
                          "GevPersistentDefaultGateway",
                          "GevCurrentIPConfigurationPersistentIP",
                          "GevCurrentIPConfigurationDHCP"};
    QStringList lines{"GevSCPSPacketSize\t2"};
    add("GevSCPSPacketSize", "1");
    for (const QString &name : own) {
        add(name.toLatin1().constData(), "1");
        lines.append(name + "\t2");
    }
    const CLoadReport report = load(lines);
    QCOMPARE(report.leftAlone, own);
    QCOMPARE(m_sets, QStringList{"GevSCPSPacketSize=2"});
    QCOMPARE(report.summary(), QString("1 set, 0 unchanged, 0 read-only, 0 not set"));
    QCOMPARE(report.leftAloneHint(),
             QString("left alone: DeviceUserID, GevPersistentIPAddress, GevPersistentSubnetMask, "
                     "GevPersistentDefaultGateway, GevCurrentIPConfigurationPersistentIP, "
                     "GevCurrentIPConfigurationDHCP; the file is not from this camera, so set them "
                     "by hand"));
}

void OwnFeaturesTest::testSameNameIsUnchangedAndAMissingOneIsRefused()
{
    add("DeviceUserID", "Line3")->stateType = InterfaceString;
    const CLoadReport report = load({"DeviceUserID\tLine3", "GevPersistentIPAddress\t5"});
    QCOMPARE(report.leftAlone, QStringList());
    QCOMPARE(report.leftAloneHint(), QString());
    QCOMPARE(report.unchanged, 1);
    QCOMPARE(refusedIn(report), QStringList{"GevPersistentIPAddress: setValueText failed"});
}

QTEST_GUILESS_MAIN(OwnFeaturesTest)
#include "OwnFeaturesTest.moc"
