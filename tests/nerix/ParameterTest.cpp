// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <FakeParameterCollection.h>

#include <limits>

#include <QTest>

using namespace ParameterCollection;

/// What the parameter interfaces answer where an implementation says nothing.
class ParameterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testAccessMode_data();
    void testAccessMode();
    void testWhatIsShownOfAParameterOfWhichNoMoreIsKnown();
    void testIntegerWithoutLimits();
    void testEnumerationWithoutEntries();
    void testExceptionMessage_data();
    void testExceptionMessage();
};

void ParameterTest::testAccessMode_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isUnavailable");
    QTest::addColumn<bool>("isReadable");
    QTest::addColumn<bool>("isUserSettable");
    QTest::addColumn<int>("expected");

    const QString gain = QStringLiteral("@CameraDevice/Gain");
    QTest::newRow("readable and settable") << gain << false << true << true << int(AccessReadWrite);
    QTest::newRow("readable only") << gain << false << true << false << int(AccessReadOnly);
    QTest::newRow("settable only") << gain << false << false << true << int(AccessWriteOnly);
    QTest::newRow("neither") << gain << false << false << false << int(AccessNotAvailable);
    QTest::newRow("unavailable") << gain << true << true << true << int(AccessNotAvailable);
    QTest::newRow("no parameter at all")
        << QString() << true << true << true << int(AccessNotImplemented);
}

void ParameterTest::testAccessMode()
{
    QFETCH(QString, name);
    QFETCH(bool, isUnavailable);
    QFETCH(bool, isReadable);
    QFETCH(bool, isUserSettable);
    FakeParameter parameter(name);
    parameter.stateUnavailable = isUnavailable;
    parameter.stateReadable = isReadable;
    parameter.stateUserSettable = isUserSettable;

    QTEST(int(parameter.accessMode()), "expected");
}

void ParameterTest::testWhatIsShownOfAParameterOfWhichNoMoreIsKnown()
{
    const FakeParameter parameter(QStringLiteral("@CameraDevice/Gain"));

    QCOMPARE(parameter.displayName(), QStringLiteral("Gain"));
    QCOMPARE(parameter.toolTip(), QString());
    QCOMPARE(parameter.unit(), QString());
    QCOMPARE(parameter.visibility(), VisibilityBeginner);
    QCOMPARE(parameter.category(), QString());
}

void ParameterTest::testIntegerWithoutLimits()
{
    const FakeInteger parameter(QStringLiteral("@CameraDevice/Width"));

    QCOMPARE(parameter.minimum(), std::numeric_limits<qint64>::min());
    QCOMPARE(parameter.maximum(), std::numeric_limits<qint64>::max());
    QCOMPARE(parameter.increment(), qint64(1));
}

void ParameterTest::testEnumerationWithoutEntries()
{
    QCOMPARE(FakeEnumeration(QStringLiteral("@CameraDevice/PixelFormat")).entries(), QStringList());
}

void ParameterTest::testExceptionMessage_data()
{
    QTest::addColumn<QString>("message");

    QTest::newRow("a text") << "Gain: 12 is above the limit 10";
    QTest::newRow("a text beyond ASCII") << QStringLiteral(u"Verst\u00e4rkung: \u589e\u76ca");
    QTest::newRow("no text") << "";
}

void ParameterTest::testExceptionMessage()
{
    QFETCH(QString, message);
    try {
        throw CParameterException(message);
    } catch (const std::runtime_error &error) {
        QCOMPARE(QString::fromUtf8(error.what()), message);
        const auto *exception = dynamic_cast<const CParameterException *>(&error);
        QVERIFY(exception);
        QCOMPARE(exception->message(), message);
    }
}

QTEST_GUILESS_MAIN(ParameterTest)
#include "ParameterTest.moc"
