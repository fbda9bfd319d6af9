// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "COpenCamera.h"

#include <ParameterCollection/IFloatParameter.h>

#include <QTest>

using namespace ParameterCollection;

// What the parameters of a simulated camera tell about themselves.
class ParametersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void theSameCollectionIsHandedOutUntilTheCameraIsOpenedAnew();
    void cameraThatWasNeverOpenHasNoParameters();
    void theSameNameGivesTheSameObject();
    void whatDoesNotExistIsNullAndThrows();
    void whatIsOfAnotherKindIsNull();
    void everyFeatureIsListedOnceInTreeOrderWithItsCategoryFirst();
    void featureTellsWhatItIs_data();
    void featureTellsWhatItIs();
    void typedParametersTellValueAndLimits();
    void sevenOfTheEightCountersExistAndAreZeroBeforeAGrab();

private:
    std::unique_ptr<COpenCamera> m_camera;
};

void ParametersTest::initTestCase()
{
    m_camera = std::make_unique<COpenCamera>();
    QVERIFY2(m_camera->isOpen(), qPrintable(m_camera->simulator().errorText()));
}

void ParametersTest::cleanupTestCase()
{
    m_camera.reset();
}

void ParametersTest::theSameCollectionIsHandedOutUntilTheCameraIsOpenedAnew()
{
    COpenCamera camera({QStringLiteral("--address"), QStringLiteral("127.0.0.3")},
                       QStringLiteral("B2"));
    QVERIFY(camera.isOpen());
    const auto first = camera.service().parameterCollection(camera.info());
    QVERIFY(camera.rig().close(camera.info()));
    QCOMPARE(camera.service().parameterCollection(camera.info()), first);
    QVERIFY(camera.rig().open(camera.info()));
    QVERIFY(camera.service().parameterCollection(camera.info()) != first);
}

void ParametersTest::cameraThatWasNeverOpenHasNoParameters()
{
    CPoolRig rig;
    QVERIFY(rig.search());
    ParameterCollectionPool::CParameterService service(rig.pool().devices());
    QVERIFY(!service.parameterCollection(rig.camera(QStringLiteral("A1"))));
    QVERIFY(!service.parameterCollection({}));
}

void ParametersTest::theSameNameGivesTheSameObject()
{
    const auto first = m_camera->feature("Width");
    QCOMPARE(m_camera->feature("Width"), first);
    QVERIFY(m_camera->parameters().parameters().contains(first));
    QCOMPARE(m_camera->parameters()
                 .integerParameter(QStringLiteral("@CameraDevice/Width"))
                 .staticCast<IParameter>(),
             first);
}

void ParametersTest::whatDoesNotExistIsNullAndThrows()
{
    const auto none = m_camera->feature("NoSuchFeature");
    QVERIFY(none->isNull());
    QVERIFY(!none->isUnavailable());
    QVERIFY(!none->isReadable());
    QVERIFY(!none->isUserSettable());
    QCOMPARE(none->name(), QStringLiteral("NoSuchFeature"));
    QVERIFY_EXCEPTION_THROWN(none->valueText(), CParameterException);
    QVERIFY_EXCEPTION_THROWN(none->setValueText(QStringLiteral("1")), CParameterException);
}

void ParametersTest::whatIsOfAnotherKindIsNull()
{
    IParameterCollection &all = m_camera->parameters();
    QVERIFY(all.booleanParameter(QStringLiteral("@CameraDevice/Width"))->isNull());
    QVERIFY(all.integerParameter(QStringLiteral("@CameraDevice/PixelFormat"))->isNull());
    QVERIFY(all.enumerationParameter(QStringLiteral("@CameraDevice/Width"))->isNull());
    QVERIFY(all.parameter(QStringLiteral("Width"))->isNull());
}

void ParametersTest::everyFeatureIsListedOnceInTreeOrderWithItsCategoryFirst()
{
    QStringList names;
    for (const auto &parameter : m_camera->parameters().parameters()) {
        QVERIFY2(!names.contains(parameter->fullName()), qPrintable(parameter->fullName()));
        QVERIFY2(parameter->category().isEmpty() || names.contains(parameter->category()),
                 qPrintable(parameter->fullName()));
        names.append(parameter->fullName());
    }
    QCOMPARE(names.mid(0, 4),
             (QStringList{QStringLiteral("@CameraDevice/DeviceControl"),
                          QStringLiteral("@CameraDevice/DeviceVendorName"),
                          QStringLiteral("@CameraDevice/DeviceModelName"),
                          QStringLiteral("@CameraDevice/DeviceManufacturerInfo")}));
    QVERIFY(names.indexOf(QStringLiteral("@CameraDevice/Width"))
            < names.indexOf(QStringLiteral("@CameraDevice/ExposureTime")));
    QCOMPARE(names.last(), QStringLiteral("@StreamGrabber0/Statistic_Missed_Frame_Count"));
}

void ParametersTest::featureTellsWhatItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("access");
    QTest::addColumn<bool>("isUserSettable");
    QTest::addColumn<int>("visibility");
    QTest::addColumn<QString>("value"); // null: cannot be read

    const auto row = [](const char *rule, const char *name, int type, int access, bool settable,
                        int visibility, const char *value) {
        QTest::newRow(rule) << QString::fromLatin1(name) << type << access << settable << visibility
                            << QString::fromLatin1(value);
    };
    row("an integer", "Width", 2, 4, true, 0, "512");
    row("a signed integer", "QmzBrightness", 2, 4, true, 0, "0");
    row("an integer that can only be read", "SensorWidth", 2, 3, false, 1, "2048");
    row("an integer that can only be written", "QmzUnlockCode", 2, 2, true, 2, nullptr);
    row("an integer that is computed", "PayloadSize", 2, 3, false, 1, "262144");
    row("a boolean", "QmzInvert", 3, 4, true, 0, "false");
    row("a command has no value", "TriggerSoftware", 4, 1, true, 0, nullptr);
    row("a command that can be given", "QmzFrameCounterReset", 4, 2, true, 1, nullptr);
    row("a float", "ExposureTime", 5, 4, true, 0, "10000");
    row("a float with a fraction", "DeviceTemperature", 5, 3, false, 1, "41.5");
    row("a string", "DeviceModelName", 6, 3, false, 0, "XQZ-2000");
    row("a string that can be set", "QmzLabel", 6, 4, true, 0, "");
    row("a category has no value", "DeviceControl", 8, 1, false, 0, nullptr);
    row("an enumeration", "PixelFormat", 9, 4, true, 0, "Mono8");
    row("a feature that is not available", "QmzCoolerTarget", 5, 1, true, 1, nullptr);
    row("a feature that is not implemented", "QmzFilterWheelPosition", 2, 1, true, 1, nullptr);
}

void ParametersTest::featureTellsWhatItIs()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    const auto parameter = m_camera->feature(name.toLatin1().constData());
    QVERIFY(!parameter->isNull());
    QCOMPARE(parameter->name(), name);
    QCOMPARE(parameter->fullName(), QStringLiteral("@CameraDevice/") + name);
    QTEST(int(parameter->interfaceType()), "type");
    QTEST(int(parameter->accessMode()), "access");
    QTEST(parameter->isUserSettable(), "isUserSettable");
    QTEST(int(parameter->visibility()), "visibility");
    QCOMPARE(parameter->isReadable(), !value.isNull());
    if (value.isNull()) {
        QVERIFY_EXCEPTION_THROWN(parameter->valueText(), CParameterException);
    } else {
        QCOMPARE(parameter->valueText(), value);
    }
}

void ParametersTest::typedParametersTellValueAndLimits()
{
    IParameterCollection &all = m_camera->parameters();
    const auto width = all.integerParameter(QStringLiteral("@CameraDevice/Width"));
    QCOMPARE(width->value(), 512);
    QCOMPARE(width->minimum(), 16);
    QCOMPARE(width->maximum(), 2048);
    QCOMPARE(width->increment(), 4);
    QCOMPARE(width->unit(), QStringLiteral("px"));
    QCOMPARE(width->toolTip(), QStringLiteral("Width of the image."));
    QCOMPARE(width->displayName(), QStringLiteral("Width"));
    QCOMPARE(width->category(), QStringLiteral("@CameraDevice/ImageFormatControl"));

    const auto exposure =
        qSharedPointerDynamicCast<IFloatParameter>(m_camera->feature("ExposureTime"));
    QVERIFY(exposure);
    QCOMPARE(exposure->value(), 10000.0);
    QCOMPARE(exposure->displayName(), QStringLiteral("Exposure Time"));
    QCOMPARE(exposure->maximum(), 1e7);

    QVERIFY(!all.booleanParameter(QStringLiteral("@CameraDevice/SequenceEnable"))->value());
    const auto format = all.enumerationParameter(QStringLiteral("@CameraDevice/PixelFormat"));
    QCOMPARE(format->intValue(), 17301505);
    QCOMPARE(format->entries(), (QStringList{QStringLiteral("Mono8"), QStringLiteral("Mono16"),
                                             QStringLiteral("RGB8")}));
    QCOMPARE(all.integerParameter(QStringLiteral("@CameraDevice/QmzFrameCounter"))->maximum(),
             std::numeric_limits<qint64>::max());
}

void ParametersTest::sevenOfTheEightCountersExistAndAreZeroBeforeAGrab()
{
    IParameterCollection &all = m_camera->parameters();
    for (const char *name : {"Total_Buffer", "Failed_Buffer", "Total_Packet", "Resend_Request",
                             "Resend_Packet", "Failed_Packet", "Missed_Frame"}) {
        const auto counter = all.integerParameter(
            QStringLiteral("@StreamGrabber0/Statistic_%1_Count").arg(QLatin1String(name)));
        QVERIFY2(!counter->isNull(), name);
        QVERIFY(counter->isReadable());
        QVERIFY(!counter->isUserSettable());
        QCOMPARE(int(counter->interfaceType()), 2);
        QCOMPARE(counter->value(), 0);
    }
    QVERIFY(
        all.integerParameter(QStringLiteral("@StreamGrabber0/Statistic_Resynchronization_Count"))
            ->isNull());
}

QTEST_GUILESS_MAIN(ParametersTest)
#include "ParametersTest.moc"
