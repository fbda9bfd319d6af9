// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "COpenCamera.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace ParameterCollection;

// Setting parameters of a simulated camera by text.
class SetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void valueIsTakenAndTold_data();
    void valueIsTakenAndTold();
    void wrongValueIsRefusedWithTheLimitsAndNotTold_data();
    void wrongValueIsRefusedWithTheLimitsAndNotTold();
    void newValueIsToldBeforeTheDeviceTakesIt();
    void deviceIsNotLockedWhileTheNewValueIsTold();
    void sameValueTwiceIsToldTwice();
    void lockedParameterIsRefusedAndCanBeSetAfterTheGrab();
    void setValueIsSeenByASecondLookUp();

private:
    std::unique_ptr<COpenCamera> m_camera;
};

void SetTest::initTestCase()
{
    m_camera = std::make_unique<COpenCamera>();
    QVERIFY(m_camera->isOpen());
}

void SetTest::cleanupTestCase()
{
    m_camera.reset();
}

void SetTest::valueIsTakenAndTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *rule, const char *name, const QString &text,
                        const QString &value) {
        QTest::newRow(rule) << QString::fromLatin1(name) << text << value;
    };
    row("integer", "Width", QStringLiteral("640"), QStringLiteral("640"));
    row("integer at its maximum", "Width", QStringLiteral("2048"), QStringLiteral("2048"));
    row("integer at its minimum", "Width", QStringLiteral("16"), QStringLiteral("16"));
    row("integer in hexadecimal", "Width", QStringLiteral("0x200"), QStringLiteral("512"));
    row("negative integer", "QmzBrightness", QStringLiteral("-12"), QStringLiteral("-12"));
    row("float", "ExposureTime", QStringLiteral("2500"), QStringLiteral("2500"));
    row("float with superfluous zeros", "ExposureTime", QStringLiteral("10000.00"),
        QStringLiteral("10000"));
    row("boolean", "QmzInvert", QStringLiteral("true"), QStringLiteral("true"));
    row("boolean as number", "QmzInvert", QStringLiteral("0"), QStringLiteral("false"));
    row("enumeration", "PixelFormat", QStringLiteral("Mono16"), QStringLiteral("Mono16"));
    row("enumeration back", "PixelFormat", QStringLiteral("Mono8"), QStringLiteral("Mono8"));
    row("string", "QmzLabel", QStringLiteral("left of the belt"),
        QStringLiteral("left of the belt"));
    row("string outside ASCII", "QmzLabel",
        QString::fromUtf8("Stra\xc3\x9f"
                          "e"),
        QString::fromUtf8("Stra\xc3\x9f"
                          "e"));
    row("empty string", "QmzLabel", QString(), QString());
    row("register", "QmzUserData", QStringLiteral("0x") + QString(128, u'A'),
        QStringLiteral("0x") + QString(128, u'a'));
}

void SetTest::valueIsTakenAndTold()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, value);
    const auto parameter = m_camera->feature(name.toLatin1().constData());
    QSignalSpy told(parameter.data(), &IParameter::parameterValueAboutToBeSet);
    parameter->setValueText(text);
    QCOMPARE(parameter->valueText(), value);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toString(), value);
}

void SetTest::wrongValueIsRefusedWithTheLimitsAndNotTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *rule, const char *name, const QString &text,
                        const char *message) {
        QTest::newRow(rule) << QString::fromLatin1(name) << text << QString::fromUtf8(message);
    };
    row("integer too large", "Width", QStringLiteral("99999"),
        "@CameraDevice/Width: 99999 is out of range: give a number from 16 to 2048 in steps of 4");
    row("integer too small", "Width", QStringLiteral("12"),
        "@CameraDevice/Width: 12 is out of range: give a number from 16 to 2048 in steps of 4");
    row("integer between two steps", "Width", QStringLiteral("17"),
        "@CameraDevice/Width: 17 is no multiple of 4: give one from 16 to 2048, such as 16 or 20");
    row("integer of the wrong type", "Width", QStringLiteral("wide"),
        "@CameraDevice/Width: \"wide\" is no whole number: give one from 16 to 2048 in steps of 4");
    row("integer without steps", "QmzBrightness", QStringLiteral("128"),
        "@CameraDevice/QmzBrightness: 128 is out of range: give a number from -128 to 127");
    row("float too large", "ExposureTime", QStringLiteral("1e99"),
        "@CameraDevice/ExposureTime: 1e+99 is out of range: give a number from 10 to 10000000");
    row("float of the wrong type", "ExposureTime", QStringLiteral("long"),
        "@CameraDevice/ExposureTime: \"long\" is no number: give one from 10 to 10000000");
    row("boolean of the wrong type", "QmzInvert", QStringLiteral("yes"),
        "@CameraDevice/QmzInvert: \"yes\" is no switch: give true or false");
    row("entry that does not exist", "PixelFormat", QStringLiteral("Mono10"),
        "@CameraDevice/PixelFormat: \"Mono10\" is no entry: give one of Mono8, Mono16, RGB8");
    row("string too long", "QmzLabel", QString(65, u'x'),
        "@CameraDevice/QmzLabel: a text of 65 bytes is too long: give one of at most 64 bytes");
    row("register of another size", "QmzUserData", QStringLiteral("0x00"),
        "@CameraDevice/QmzUserData: these are not 64 bytes: give 0x and 128 hexadecimal digits");
    row("read-only", "DeviceModelName", QStringLiteral("other"),
        "@CameraDevice/DeviceModelName: it can only be read");
    row("not available", "QmzCoolerTarget", QStringLiteral("1"),
        "@CameraDevice/QmzCoolerTarget: the camera does not offer it now");
    row("category", "DeviceControl", QStringLiteral("1"),
        "@CameraDevice/DeviceControl: it can only be read");
    row("command that is no order", "QmzFrameCounterReset", QStringLiteral("5"),
        "@CameraDevice/QmzFrameCounterReset: \"5\" is no order for a command: give Execute");
}

void SetTest::wrongValueIsRefusedWithTheLimitsAndNotTold()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, message);
    const auto parameter = m_camera->feature(name.toLatin1().constData());
    const QString before = parameter->isReadable() ? parameter->valueText() : QString();
    QSignalSpy told(parameter.data(), &IParameter::parameterValueAboutToBeSet);
    try {
        parameter->setValueText(text);
        QFAIL("it was taken");
    } catch (const CParameterException &exception) {
        QCOMPARE(exception.message(), message);
    }
    QVERIFY(told.isEmpty());
    QCOMPARE(parameter->isReadable() ? parameter->valueText() : QString(), before);
}

void SetTest::newValueIsToldBeforeTheDeviceTakesIt()
{
    const auto parameter = m_camera->feature("AcquisitionFrameCount");
    parameter->setValueText(QStringLiteral("5"));
    QString during;
    connect(parameter.data(), &IParameter::parameterValueAboutToBeSet, this,
            [&] { during = parameter->valueText(); });
    parameter->setValueText(QStringLiteral("6"));
    QCOMPARE(during, QStringLiteral("5"));
    QCOMPARE(parameter->valueText(), QStringLiteral("6"));
}

// A receiver in another thread may be waited for, and may read the device meanwhile.
void SetTest::deviceIsNotLockedWhileTheNewValueIsTold()
{
    const auto parameter = m_camera->feature("GainRaw");
    QThread otherThread;
    QObject receiver;
    receiver.moveToThread(&otherThread);
    otherThread.start();
    QString read;
    connect(
        parameter.data(), &IParameter::parameterValueAboutToBeSet, &receiver,
        [&] { read = m_camera->feature("DeviceModelName")->valueText(); },
        Qt::BlockingQueuedConnection);
    parameter->setValueText(QStringLiteral("1"));
    otherThread.quit();
    otherThread.wait();
    QCOMPARE(read, QStringLiteral("XQZ-2000"));
}

void SetTest::sameValueTwiceIsToldTwice()
{
    const auto parameter = m_camera->feature("QmzBrightness");
    QSignalSpy told(parameter.data(), &IParameter::parameterValueAboutToBeSet);
    parameter->setValueText(QStringLiteral("3"));
    parameter->setValueText(QStringLiteral("3"));
    QCOMPARE(told.size(), 2);
}

void SetTest::lockedParameterIsRefusedAndCanBeSetAfterTheGrab()
{
    const auto width = m_camera->feature("Width");
    const auto start = m_camera->feature("AcquisitionStart");
    const auto stop = m_camera->feature("AcquisitionStop");
    start->setValueText(QStringLiteral("Execute"));
    QCOMPARE(int(width->accessMode()), 3);
    QVERIFY(width->isUserSettable());
    try {
        width->setValueText(QStringLiteral("640"));
        QFAIL("it was taken");
    } catch (const CParameterException &exception) {
        QCOMPARE(
            exception.message(),
            QStringLiteral("@CameraDevice/Width: it is locked now: stop the grab, then set it"));
    }
    stop->setValueText(QStringLiteral("Execute"));
    QCOMPARE(int(width->accessMode()), 4);
    width->setValueText(QStringLiteral("640"));
    QCOMPARE(width->valueText(), QStringLiteral("640"));
}

void SetTest::setValueIsSeenByASecondLookUp()
{
    m_camera->feature("Height")->setValueText(QStringLiteral("480"));
    QCOMPARE(
        m_camera->parameters().integerParameter(QStringLiteral("@CameraDevice/Height"))->value(),
        480);
}

QTEST_GUILESS_MAIN(SetTest)
#include "SetTest.moc"
