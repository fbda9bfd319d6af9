// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CPanelRig.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// What becomes of a number as people write it: it is taken as it is meant, or refused as a whole.
class NumberTypingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testNumberIsTakenAsItIsMeant_data();
    void testNumberIsTakenAsItIsMeant();
    void testTextThatIsNoNumberStaysInTheEditor_data();
    void testTextThatIsNoNumberStaysInTheEditor();
    void testPastedTextIsNotChanged();
    void testRefusedTextCanBeMended();
    void testLeavingTheEditorSetsNothingAndSaysWhy();

private:
    QString typed() const;

    QScopedPointer<CPanelRig> m_rig;
    QSharedPointer<CLiveInteger> m_brightness;
    QSharedPointer<CLiveFloat> m_exposure;
    QSharedPointer<CLiveText> m_label;
};

void NumberTypingTest::init()
{
    m_rig.reset(new CPanelRig);
    CFeatureRig &features = m_rig->features;
    features.addCategory("Control", "Control");
    m_brightness = features.add<CLiveInteger>("Brightness", InterfaceInteger, "0");
    m_brightness->change([](CLiveState &state) {
        state.minimum = -128;
        state.maximum = 127;
    });
    m_exposure = features.add<CLiveFloat>("Exposure", InterfaceFloat, "5000");
    m_exposure->change([](CLiveState &state) {
        state.displayName = "Exposure Time";
        state.unit = "us";
        state.floatMinimum = 10;
        state.floatMaximum = 1e6;
    });
    m_label = features.add<CLiveText>("Label", InterfaceString, "left");
}

void NumberTypingTest::cleanup()
{
    m_rig.reset();
}

QString NumberTypingTest::typed() const
{
    return m_rig->editor() ? m_rig->editor()->property("text").toString() : QString();
}

void NumberTypingTest::testNumberIsTakenAsItIsMeant_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("set");
    const auto row = [](const char *rule, const char *name, const char *typed, const char *set) {
        QTest::newRow(rule) << QByteArray(name) << QByteArray(typed) << QString(set);
    };
    row("a point", "Exposure", "12000.5", "12000.5");
    row("one comma is a point", "Exposure", "12000,5", "12000.5");
    row("a comma after a sign", "Exposure", "-0,25", "-0.25");
    row("three digits after a zero", "Exposure", "0,125", "0.125");
    row("three digits after too many for a group", "Exposure", "12000,125", "12000.125");
    row("a comma before a power of ten", "Exposure", "1,5e3", "1.5e3");
    row("blanks around it", "Exposure", " 20,5 ", "20.5");
    row("a negative whole number", "Brightness", "-5", "-5");
    row("a hexadecimal whole number", "Brightness", "0x1F", "0x1F");
}

void NumberTypingTest::testNumberIsTakenAsItIsMeant()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, typed);
    QFETCH(QString, set);
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->edit(name.constData(), typed.constData(), Qt::Key_Return));
    QTRY_COMPARE(m_exposure->sets() + m_brightness->sets(), QStringList{set});
}

void NumberTypingTest::testTextThatIsNoNumberStaysInTheEditor_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("reason");
    const auto whole = [](const char *rule, const char *typed, Qt::Key end = Qt::Key_Return) {
        QTest::newRow(rule) << QByteArray("Brightness") << QByteArray(typed) << int(end)
                            << QStringLiteral("Brightness: \"%1\" is no whole number; give one "
                                              "without points, commas and spaces (-128 to 127)")
                                   .arg(QString::fromUtf8(typed));
    };
    const auto number = [](const char *rule, const char *typed, Qt::Key end = Qt::Key_Return) {
        QTest::newRow(rule) << QByteArray("Exposure") << QByteArray(typed) << int(end)
                            << QStringLiteral("Exposure Time: \"%1\" cannot be read as a number; "
                                              "give one with a point for decimals and no other "
                                              "separators (10 to 1000000 us)")
                                   .arg(QString::fromUtf8(typed));
    };
    whole("a fraction", "-5.5");
    whole("a fraction with a comma", "-5,5", Qt::Key_Enter);
    whole("a blank between groups", "1 000", Qt::Key_Tab);
    whole("a letter in between", "1a2");
    whole("no hexadecimal digit", "0x1g");
    whole("nothing at all", "", Qt::Key_Backtab);
    number("a comma between groups", "1,000.5");
    number("points between groups", "1.000.000");
    number("a point between groups and a comma", "1.000,5");
    number("two commas", "1,000,5");
    number("a thousand or one", "1,000");
    number("a thousand or one with a power of ten", "12,345e2");
    number("a blank between groups", "1 000", Qt::Key_Tab);
    number("an apostrophe between groups", "1'000");
    number("a unit", "20 ms");
    number("a word", "long");
}

void NumberTypingTest::testTextThatIsNoNumberStaysInTheEditor()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, typed);
    QFETCH(int, end);
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo(name.constData()));
    QSignalSpy wanted(&m_rig->panel().controller().model(), &CFeatureModel::changeWanted);
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QVERIFY(m_rig->editor());
    QTest::keyClick(m_rig->editor(), Qt::Key_Delete);
    QTest::keyClicks(m_rig->editor(), typed);
    QTest::keyClick(m_rig->editor(), Qt::Key(end));
    QTRY_VERIFY(!m_rig->problem().isNull());
    QTEST(m_rig->problem(), "reason");
    QCOMPARE(m_rig->features.messages->texts, QStringList{"A-1: " + m_rig->problem()});
    QCOMPARE(this->typed(), QString::fromUtf8(typed));
    QVERIFY(m_rig->editor()->hasFocus());
    const auto *line = m_rig->editor()->findChild<QLineEdit *>();
    QCOMPARE(line->palette().color(QPalette::Text), QColor(190, 0, 0)); // on a light ground
    QCOMPARE(wanted.size(), 0);
}

void NumberTypingTest::testPastedTextIsNotChanged()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Exposure"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QGuiApplication::clipboard()->setText("1,000.5");
    m_rig->editor()->findChild<QLineEdit *>()->paste();
    QCOMPARE(typed(), QString("1,000.5"));
    QGuiApplication::clipboard()->setText("12000,5");
    m_rig->editor()->findChild<QLineEdit *>()->selectAll();
    m_rig->editor()->findChild<QLineEdit *>()->paste();
    QTest::keyClick(m_rig->editor(), Qt::Key_Return);
    QTRY_COMPARE(m_exposure->sets(), QStringList{"12000.5"});
}

void NumberTypingTest::testRefusedTextCanBeMended()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Brightness"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QTest::keyClicks(m_rig->editor(), "5.");
    QTest::keyClick(m_rig->editor(), Qt::Key_Return);
    QTRY_VERIFY(!m_rig->problem().isNull());
    QTest::keyClick(m_rig->editor(), Qt::Key_Up); // no step from what is no number
    QCOMPARE(typed(), QString("5."));
    QTest::keyClick(m_rig->editor(), Qt::Key_Backspace);
    QTest::keyClick(m_rig->editor(), Qt::Key_Return);
    QTRY_COMPARE(m_brightness->sets(), QStringList{"5"});
    QTRY_COMPARE(m_rig->problem(), QString());
}

void NumberTypingTest::testLeavingTheEditorSetsNothingAndSaysWhy()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Brightness"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QTest::keyClicks(m_rig->editor(), "1 000");
    const QRect label = m_rig->view().visualRect(m_rig->row("Label"));
    QTest::mouseClick(m_rig->view().viewport(), Qt::LeftButton, {}, label.center());
    QTRY_VERIFY(!m_rig->editor());
    QTRY_VERIFY2(m_rig->problem().startsWith("Brightness: \"1 000\" is no whole number"),
                 qPrintable(m_rig->problem()));
    QCOMPARE(m_rig->view().currentIndex().data().toString(), QString("Label"));
    QCOMPARE(m_rig->value("Brightness"), QString("0"));
    QCOMPARE(m_brightness->sets(), QStringList());
}

QTEST_MAIN(NumberTypingTest)
#include "NumberTypingTest.moc"
