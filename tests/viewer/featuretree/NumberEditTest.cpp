// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFloatEdit.h"
#include "plugins/featuretree/CIntegerEdit.h"

#include <QLineEdit>
#include <QTest>

using namespace FeatureTree;

// The editors for numbers, by key clicks.
class NumberEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testIntegerStepsStayOnAllowedValues_data();
    void testIntegerStepsStayOnAllowedValues();
    void testFloatStepsChangeTheSecondDigit_data();
    void testFloatStepsChangeTheSecondDigit();
    void testWhatIsTypedStaysAsItIs_data();
    void testWhatIsTypedStaysAsItIs();
    void testTextThatCannotBeTakenIsMarked();
    void testEnterLeavesTheTextAsItIs();
};

namespace {

constexpr qint64 smallest = std::numeric_limits<qint64>::min();
constexpr qint64 largest = std::numeric_limits<qint64>::max();

} // namespace

Q_DECLARE_METATYPE(FeatureTree::CIntegerLimits)
Q_DECLARE_METATYPE(FeatureTree::CFloatLimits)

void NumberEditTest::testIntegerStepsStayOnAllowedValues_data()
{
    QTest::addColumn<CIntegerLimits>("limits");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *rule, const CIntegerLimits &limits, const char *text, int key,
                        const char *result) {
        QTest::newRow(rule) << limits << QString(text) << key << QString(result);
    };
    const CIntegerLimits width{16, 2048, 4};
    const CIntegerLimits everything{smallest, largest, 1};
    row("up", width, "640", Qt::Key_Up, "644");
    row("down", width, "640", Qt::Key_Down, "636");
    row("ten up", width, "640", Qt::Key_PageUp, "680");
    row("no further than the maximum", width, "2044", Qt::Key_PageUp, "2048");
    row("no further than the minimum", width, "20", Qt::Key_PageDown, "16");
    row("up from between two values", width, "641", Qt::Key_Up, "644");
    row("down from between two values", width, "641", Qt::Key_Down, "640");
    row("down from above all", width, "9999", Qt::Key_Down, "2044");
    row("last value before a maximum off the steps", {0, 10, 4}, "8", Qt::Key_Up, "8");
    row("hexadecimal", width, "0x280", Qt::Key_Up, "644");
    row("from no number", width, "", Qt::Key_Up, "20");
    row("negative", {-10, 10, 5}, "-5", Qt::Key_Down, "-10");
    row("past zero", {-10, 10, 5}, "-5", Qt::Key_PageUp, "10");
    row("largest of 64 bits", everything, "9223372036854775806", Qt::Key_PageUp,
        "9223372036854775807");
    row("smallest of 64 bits", everything, "-9223372036854775807", Qt::Key_PageDown,
        "-9223372036854775808");
    row("beyond 32 bits", everything, "4294967296", Qt::Key_Up, "4294967297");
    row("an increment of zero is one", {0, 10, 0}, "3", Qt::Key_Up, "4");
}

void NumberEditTest::testIntegerStepsStayOnAllowedValues()
{
    QFETCH(CIntegerLimits, limits);
    QFETCH(QString, text);
    QFETCH(int, key);
    CIntegerEdit edit;
    edit.setLimits(limits);
    edit.setText(text);
    QTest::keyClick(&edit, Qt::Key(key));
    QTEST(edit.text(), "result");
}

void NumberEditTest::testFloatStepsChangeTheSecondDigit_data()
{
    QTest::addColumn<CFloatLimits>("limits");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *rule, const CFloatLimits &limits, const char *text, int key,
                        const char *result) {
        QTest::newRow(rule) << limits << QString(text) << key << QString(result);
    };
    const CFloatLimits exposure{10, 1e7};
    row("thousands", exposure, "5000", Qt::Key_Up, "5100");
    row("down", exposure, "5000", Qt::Key_Down, "4900");
    row("ten", exposure, "5000", Qt::Key_PageUp, "6000");
    row("a tenth has no error", {0, 10}, "0.3", Qt::Key_PageDown, "0.2");
    row("three tenths", {0, 10}, "0.29", Qt::Key_Up, "0.3");
    row("from zero", {-1, 1}, "0", Qt::Key_Up, "0.1");
    row("negative", {-10, 10}, "-2", Qt::Key_Down, "-2.1");
    row("after a comma", {0, 10}, "0,29", Qt::Key_Up, "0.3");
    row("not from what is no number", exposure, "1,000", Qt::Key_Up, "1,000");
    row("no further than the minimum", exposure, "10", Qt::Key_PageDown, "10");
    row("no further than the maximum", {0, 5000.5}, "5000", Qt::Key_Up, "5000.5");
    row("from no number", exposure, "", Qt::Key_Up, "11");
}

void NumberEditTest::testFloatStepsChangeTheSecondDigit()
{
    QFETCH(CFloatLimits, limits);
    QFETCH(QString, text);
    QFETCH(int, key);
    CFloatEdit edit;
    edit.setLimits(limits);
    edit.setText(text);
    QTest::keyClick(&edit, Qt::Key(key));
    QTEST(edit.text(), "result");
}

void NumberEditTest::testWhatIsTypedStaysAsItIs_data()
{
    QTest::addColumn<bool>("isFloat");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("number");
    const auto row = [](const char *rule, bool isFloat, const char *keys, const QString &number) {
        QTest::newRow(rule) << isFloat << QString(keys) << number;
    };
    row("whole number", false, "-12", "-12");
    row("hexadecimal", false, "0xFf", "0xFf");
    row("letters in a whole number", false, "1a2", {});
    row("a fraction in a whole number", false, "-5.5", {});
    row("a comma in a whole number", false, "1,000", {});
    row("fraction", true, "1.25", "1.25");
    row("power of ten", true, "1e-3", "1e-3");
    row("a comma for the point", true, "12000,5", "12000.5");
    row("a comma between groups", true, "1,000.5", {});
    row("two points", true, "1.2.3", {});
    row("infinity", true, "inf", {});
}

void NumberEditTest::testWhatIsTypedStaysAsItIs()
{
    QFETCH(bool, isFloat);
    QFETCH(QString, keys);
    QFETCH(QString, number);
    CIntegerEdit integer;
    CFloatEdit fraction;
    CNumberEdit &edit = isFloat ? static_cast<CNumberEdit &>(fraction) : integer;
    QTest::keyClicks(&edit, keys);
    QCOMPARE(edit.text(), keys);
    QCOMPARE(edit.number(), number);
    QCOMPARE(edit.number().isNull(), number.isNull());
}

void NumberEditTest::testTextThatCannotBeTakenIsMarked()
{
    CIntegerEdit edit;
    edit.setLimits(CIntegerLimits{0, 100, 10});
    const auto *line = edit.findChild<QLineEdit *>();
    const QColor plain = edit.palette().color(QPalette::Text);
    for (const char *text : {"0", "50", "100", "0x64"}) {
        edit.setText(text);
        QCOMPARE(line->palette().color(QPalette::Text), plain);
    }
    for (const char *text : {"", "-10", "55", "110", "99999999999999999999"}) {
        edit.setText(text);
        QVERIFY2(line->palette().color(QPalette::Text) != plain, text);
    }
    edit.setText("110");
    edit.setLimits(CIntegerLimits{0, 200, 10}); // allowed meanwhile
    QCOMPARE(line->palette().color(QPalette::Text), plain);
}

// It is for the device to refuse it, in its own words.
void NumberEditTest::testEnterLeavesTheTextAsItIs()
{
    CIntegerEdit edit;
    edit.setLimits(CIntegerLimits{0, 100, 10});
    edit.setText("12345");
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(edit.text(), QString("12345"));
}

QTEST_MAIN(NumberEditTest)
#include "NumberEditTest.moc"
