// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "COpenCamera.h"
#include "plugins/camerapool/CDeviceAccess.h"

#include <QTest>

using namespace ParameterCollection;

// Values that have no text which could be set again, in the memory of a simulated camera.
class UnreadableValueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void valueWithoutATextIsRefusedWithWhatHelps_data();
    void valueWithoutATextIsRefusedWithWhatHelps();
    void valueWithoutATextIsLeftOutOfTheStreamAndCounted();
    void textThatIsOnlyUnusualIsRead();

private:
    void poke(int address, const QByteArray &bytes);

    std::unique_ptr<COpenCamera> m_camera;
};

namespace {

// Where the simulated camera keeps its values.
constexpr int testImage = 0xA028;
constexpr int coolerFitted = 0xA040;
constexpr int coolerTarget = 0xA044;
constexpr int label = 0xA100;
constexpr int temperature = 0xA000;

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

} // namespace

void UnreadableValueTest::initTestCase()
{
    m_camera = std::make_unique<COpenCamera>();
    QVERIFY(m_camera->isOpen());
    poke(coolerFitted, hex("00000001"));
}

void UnreadableValueTest::cleanupTestCase()
{
    m_camera.reset();
}

// Past the description and its checks.
void UnreadableValueTest::poke(int address, const QByteArray &bytes)
{
    const auto device = m_camera->rig().pool().devices()->device(m_camera->info());
    device->call([address, bytes](const CameraPool::CDeviceAccess &access) {
        CameraPool::CGError error;
        arv_device_write_memory(access.device(), guint64(address), guint32(bytes.size()),
                                const_cast<char *>(bytes.constData()), error.out());
        access.check(error, QStringLiteral("poke"));
    });
}

void UnreadableValueTest::valueWithoutATextIsRefusedWithWhatHelps_data()
{
    QTest::addColumn<int>("address");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("remedy"); // null: nobody can set it
    const auto row = [](const char *rule, int address, const QByteArray &bytes, const char *name,
                        const char *message, const char *remedy) {
        QTest::newRow(rule) << address << bytes << QByteArray(name)
                            << "@CameraDevice/" + QString::fromLatin1(name) + ": "
                                   + QString::fromLatin1(message)
                            << QString::fromLatin1(remedy);
    };
    row("a number without an entry", testImage, hex("00000007"), "QmzTestImage",
        "its value 7 is no entry: set it to one of MovingRamp, StillRamp, Grey", "Grey");
    row("no number", coolerTarget, hex("7fc00000"), "QmzCoolerTarget",
        "its value nan is no number: set it to one", "-5");
    row("an infinite number", coolerTarget, hex("7f800000"), "QmzCoolerTarget",
        "its value inf is no number: set it to one", "-5");
    row("a number below all others", coolerTarget, hex("ff800000"), "QmzCoolerTarget",
        "its value -inf is no number: set it to one", "-5");
    row("no number where only the camera writes", temperature, hex("7fc00000"), "DeviceTemperature",
        "its value nan is no number: only the camera can change it, so read it again later",
        nullptr);
    row("a text in another encoding", label, QByteArray("M\xfcller\0\0", 8), "QmzLabel",
        "its text \"M\\xfcller\" is not valid UTF-8: set it anew", "left");
    row("a text that ends within a character", label, QByteArray("\nMe\xc3\0\0\0\0", 8), "QmzLabel",
        "its text \"\\x0aMe\\xc3\" is not valid UTF-8: set it anew", "left");
}

void UnreadableValueTest::valueWithoutATextIsRefusedWithWhatHelps()
{
    QFETCH(int, address);
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, name);
    QFETCH(QString, remedy);
    const auto parameter = m_camera->feature(name.constData());
    poke(address, bytes);
    try {
        QFAIL(qPrintable("it was read as " + parameter->valueText()));
    } catch (const CParameterException &exception) {
        QTEST(exception.message(), "message");
    }
    QCOMPARE(parameter->isUserSettable(), !remedy.isNull());
    if (remedy.isNull()) {
        poke(address, hex("42260000"));
        QCOMPARE(parameter->valueText(), QStringLiteral("41.5"));
    } else {
        parameter->setValueText(remedy);
        QCOMPARE(parameter->valueText(), remedy);
    }
}

void UnreadableValueTest::valueWithoutATextIsLeftOutOfTheStreamAndCounted()
{
    const auto lines = [this] {
        return m_camera->parameters().featureStream(QStringLiteral("@CameraDevice")).split(u'\n');
    };
    m_camera->feature("QmzTestImage")->setValueText(QStringLiteral("Grey"));
    const QStringList before = lines();
    QCOMPARE(before.first(),
             QStringLiteral("# nerix feature stream 1: 37 features, 2 not readable"));
    QVERIFY(before.contains(QStringLiteral("QmzTestImage\tGrey")));
    poke(testImage, hex("00000007"));
    poke(label, QByteArray("M\xfcller\0\0", 8));
    poke(temperature, hex("7fc00000"));
    const QStringList after = lines();
    QCOMPARE(after.first(),
             QStringLiteral("# nerix feature stream 1: 34 features, 5 not readable"));
    QCOMPARE(after.size(), before.size() - 3);
    for (const QString &line : after) {
        QVERIFY2(!line.startsWith(QLatin1String("QmzTestImage"))
                     && !line.startsWith(QLatin1String("QmzLabel"))
                     && !line.startsWith(QLatin1String("DeviceTemperature")),
                 qPrintable(line));
    }
    m_camera->feature("QmzTestImage")->setValueText(QStringLiteral("Grey"));
    m_camera->feature("QmzLabel")->setValueText(QString());
    poke(temperature, hex("42260000"));
}

void UnreadableValueTest::textThatIsOnlyUnusualIsRead()
{
    const auto text = m_camera->feature("QmzLabel");
    for (const char *bytes : {"", "M\xc3\xbcller", "\xef\xbf\xbd", "\xf0\x9f\x93\xb7 \t\n"}) {
        poke(label, QByteArray(bytes).leftJustified(16, '\0'));
        QCOMPARE(text->valueText(), QString::fromUtf8(bytes));
    }
    text->setValueText(QString());
}

QTEST_GUILESS_MAIN(UnreadableValueTest)
#include "UnreadableValueTest.moc"
