// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureFilter.h"
#include "plugins/featuretree/CFeatureModel.h"

#include <QAbstractItemModelTester>
#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// What the tree of features shows, from what is known of a device; no device is asked.
class FeatureModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testFeaturesStandInTheirCategories();
    void testAnotherTreeIsACategoryOfItsOwn();
    void testValueIsShownWithItsUnitOrAWord_data();
    void testValueIsShownWithItsUnitOrAWord();
    void testWhatCanBeDoneWithAValue_data();
    void testWhatCanBeDoneWithAValue();
    void testToolTipExplainsTheFeature();
    void testDescriptionOfTheDeviceIsNoMarkup();
    void testLockIsShownAndSpoken();
    void testWhatCanOnlyBeReadIsMarkedAndNotLocked();
    void testChangeIsWantedOnceAndNotMade();
    void testSameValueIsNotWanted();
    void testLockedFeatureCannotBeChanged();
    void testExpectedValueStandsUntilTheDeviceConfirmsIt();
    void testExpectedValueStandsInPlaceOfOneThatCannotBeRead();
    void testRefusedValueGivesWayToTheOldOne();
    void testSearchKeepsFeaturesAndTheirParents_data();
    void testSearchKeepsFeaturesAndTheirParents();
};

namespace {

CFeatureDescription feature(const char *name, InterfaceType type, const char *category = "")
{
    CFeatureDescription description;
    description.name = name;
    description.fullName = QStringLiteral("@CameraDevice/") + name;
    description.displayName = name;
    description.type = type;
    description.category = category;
    return description;
}

CFeatureState stateOf(const QString &text, AccessMode mode = AccessReadWrite)
{
    CFeatureState state;
    state.isKnown = true;
    state.mode = mode;
    state.isUserSettable = true;
    state.text = text;
    return state;
}

// The tree as lines, each indented by its depth.
QStringList lines(const QAbstractItemModel &model, const QModelIndex &parent = {}, int depth = 0)
{
    QStringList all;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        all.append(QString(depth, QLatin1Char('-')) + index.data().toString());
        all.append(lines(model, index, depth + 1));
    }
    return all;
}

} // namespace

void FeatureModelTest::testFeaturesStandInTheirCategories()
{
    CFeatureModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setFeatures({feature("Image", InterfaceCategory),
                       feature("Width", InterfaceInteger, "@CameraDevice/Image"),
                       feature("Sensor", InterfaceCategory, "@CameraDevice/Image"),
                       feature("SensorWidth", InterfaceInteger, "@CameraDevice/Sensor"),
                       feature("Alone", InterfaceString)});
    QCOMPARE(lines(model), (QStringList{"Image", "-Width", "-Sensor", "--SensorWidth", "Alone"}));
    QCOMPARE(model.featureNamed("@CameraDevice/SensorWidth"), 3);
    QCOMPARE(model.featureNamed("@CameraDevice/Nothing"), -1);
}

void FeatureModelTest::testAnotherTreeIsACategoryOfItsOwn()
{
    CFeatureModel model;
    CFeatureDescription counter = feature("Total", InterfaceInteger);
    counter.fullName = "@StreamGrabber0/Total";
    model.setFeatures({feature("Width", InterfaceInteger), counter});
    QCOMPARE(lines(model), (QStringList{"Width", "StreamGrabber0", "-Total"}));
}

void FeatureModelTest::testValueIsShownWithItsUnitOrAWord_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<CFeatureState>("state");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *rule, InterfaceType type, const char *unit,
                        const CFeatureState &state, const char *shown) {
        QTest::newRow(rule) << int(type) << QString(unit) << state << QString(shown);
    };
    CFeatureState unreadable = stateOf({});
    unreadable.failure = "broken";
    row("with a unit", InterfaceFloat, "us", stateOf("0.125"), "0.125 us");
    row("without a unit", InterfaceInteger, "", stateOf("-7"), "-7");
    row("an empty text", InterfaceString, "", stateOf(""), "");
    row("a boolean is a check box", InterfaceBoolean, "", stateOf("true"), "");
    row("a command can be executed", InterfaceCommand, "", stateOf({}, AccessWriteOnly), "Execute");
    row("a register is hexadecimal", InterfaceRegister, "", stateOf("0x00ff"), "0x00ff");
    row("written only", InterfaceInteger, "us", stateOf({}, AccessWriteOnly), "can only be set");
    row("not readable now", InterfaceInteger, "us", unreadable, "not readable");
    row("not available", InterfaceInteger, "us", stateOf("5", AccessNotAvailable), "not available");
    row("not asked yet", InterfaceInteger, "us", CFeatureState(), "");
}

void FeatureModelTest::testValueIsShownWithItsUnitOrAWord()
{
    QFETCH(int, type);
    QFETCH(QString, unit);
    QFETCH(CFeatureState, state);
    CFeatureModel model;
    CFeatureDescription description = feature("X", InterfaceType(type));
    description.unit = unit;
    model.setFeatures({description});
    model.setState(0, state);
    QTEST(model.indexOf(0, CFeatureModel::ValueColumn).data().toString(), "shown");
}

void FeatureModelTest::testWhatCanBeDoneWithAValue_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isEditable");
    QTest::addColumn<bool>("isCheckable");
    QTest::newRow("an integer is edited")
        << int(InterfaceInteger) << int(AccessReadWrite) << true << false;
    QTest::newRow("a text that is only written is edited")
        << int(InterfaceString) << int(AccessWriteOnly) << true << false;
    QTest::newRow("a switch is checked")
        << int(InterfaceBoolean) << int(AccessReadWrite) << false << true;
    QTest::newRow("a command is neither")
        << int(InterfaceCommand) << int(AccessWriteOnly) << false << false;
    QTest::newRow("a register is only shown")
        << int(InterfaceRegister) << int(AccessReadWrite) << false << false;
    QTest::newRow("locked") << int(InterfaceInteger) << int(AccessReadOnly) << false << false;
    QTest::newRow("a locked switch")
        << int(InterfaceBoolean) << int(AccessReadOnly) << false << false;
    QTest::newRow("not available")
        << int(InterfaceInteger) << int(AccessNotAvailable) << false << false;
    QTest::newRow("a category") << int(InterfaceCategory) << int(AccessReadWrite) << false << false;
}

void FeatureModelTest::testWhatCanBeDoneWithAValue()
{
    QFETCH(int, type);
    QFETCH(int, mode);
    CFeatureModel model;
    model.setFeatures({feature("X", InterfaceType(type))});
    model.setState(0, stateOf("1", AccessMode(mode)));
    const Qt::ItemFlags flags = model.indexOf(0, CFeatureModel::ValueColumn).flags();
    QTEST(flags.testFlag(Qt::ItemIsEditable), "isEditable");
    QTEST(flags.testFlag(Qt::ItemIsUserCheckable), "isCheckable");
    QVERIFY(!model.indexOf(0, CFeatureModel::NameColumn).flags().testFlag(Qt::ItemIsEditable));
}

void FeatureModelTest::testToolTipExplainsTheFeature()
{
    CFeatureModel model;
    CFeatureDescription width = feature("Width", InterfaceInteger);
    width.displayName = "Image Width";
    width.toolTip = "Width of the image.";
    width.unit = "px";
    model.setFeatures({width});
    CFeatureState state = stateOf("640");
    state.integerLimits = CIntegerLimits{16, 2048, 4};
    model.setState(0, state);
    QCOMPARE(model.indexOf(0, CFeatureModel::NameColumn).data(Qt::ToolTipRole).toString(),
             QString("<b>Image Width</b><br>Width of the image."
                     "<br>Allowed: 16 to 2048 px in steps of 4<br>Name: Width"));
}

void FeatureModelTest::testDescriptionOfTheDeviceIsNoMarkup()
{
    CFeatureModel model;
    CFeatureDescription odd = feature("X", InterfaceInteger);
    odd.toolTip = "a<b";
    model.setFeatures({odd});
    QCOMPARE(model.indexOf(0, CFeatureModel::NameColumn).data(Qt::ToolTipRole).toString(),
             QString("<b>X</b><br>a&lt;b<br>Name: X"));
}

void FeatureModelTest::testLockIsShownAndSpoken()
{
    CFeatureModel model;
    model.setFeatures({feature("Invert", InterfaceBoolean)});
    const QModelIndex value = model.indexOf(0, CFeatureModel::ValueColumn);
    model.setState(0, stateOf("true"));
    QVERIFY(value.data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(value.data(Qt::AccessibleTextRole).toString(), QString("on"));
    model.setState(0, stateOf("true", AccessReadOnly));
    QVERIFY(!value.data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(value.data(Qt::AccessibleTextRole).toString(), QString("on, locked"));
    QVERIFY(value.data(Qt::ToolTipRole).toString().contains("It is locked now."));
}

void FeatureModelTest::testWhatCanOnlyBeReadIsMarkedAndNotLocked()
{
    CFeatureModel model;
    model.setFeatures({feature("Version", InterfaceString), feature("Control", InterfaceCategory)});
    CFeatureState readOnly = stateOf("7.1", AccessReadOnly);
    readOnly.isUserSettable = false;
    const QModelIndex name = model.indexOf(0, CFeatureModel::NameColumn);
    const QModelIndex value = model.indexOf(0, CFeatureModel::ValueColumn);
    model.setState(0, stateOf("7.1"));
    QVERIFY(!value.data(Qt::ForegroundRole).isValid());
    QVERIFY(!value.data(Qt::ToolTipRole).toString().contains("only"));

    model.setState(0, readOnly);
    const QColor marked = value.data(Qt::ForegroundRole).value<QColor>();
    QVERIFY(marked.isValid() && marked != QGuiApplication::palette().color(QPalette::Text));
    QVERIFY(!name.data(Qt::ForegroundRole).isValid());
    QCOMPARE(value.data(Qt::AccessibleTextRole).toString(), QString("7.1, read-only"));
    QCOMPARE(value.data(Qt::ToolTipRole).toString(),
             QString("<b>Version</b><br>It can only be read.<br>Name: Version"));
    QVERIFY(value.data(Qt::DecorationRole).value<QIcon>().isNull()); // unlike what is locked

    model.setState(1, readOnly);
    const QModelIndex category = model.indexOf(1, CFeatureModel::NameColumn);
    QCOMPARE(category.data(Qt::ToolTipRole).toString(), QString("<b>Control</b><br>Name: Control"));
}

void FeatureModelTest::testChangeIsWantedOnceAndNotMade()
{
    CFeatureModel model;
    model.setFeatures({feature("X", InterfaceInteger), feature("On", InterfaceBoolean),
                       feature("Do", InterfaceCommand)});
    for (int i = 0; i < 3; ++i) {
        model.setState(i, stateOf("false"));
    }
    QSignalSpy wanted(&model, &CFeatureModel::changeWanted);
    QVERIFY(model.setData(model.indexOf(0, CFeatureModel::ValueColumn), "7", Qt::EditRole));
    QVERIFY(model.setData(model.indexOf(1, CFeatureModel::ValueColumn), Qt::Checked,
                          Qt::CheckStateRole));
    QVERIFY(model.setData(model.indexOf(2, CFeatureModel::ValueColumn), "Execute", Qt::EditRole));
    QCOMPARE(wanted.size(), 3);
    QCOMPARE(wanted.at(0), (QVariantList{0, QString("7")}));
    QCOMPARE(wanted.at(1), (QVariantList{1, QString("true")}));
    QCOMPARE(wanted.at(2), (QVariantList{2, QString("Execute")}));
    QCOMPARE(model.indexOf(0, CFeatureModel::ValueColumn).data().toString(), QString("false"));
}

void FeatureModelTest::testSameValueIsNotWanted()
{
    CFeatureModel model;
    model.setFeatures({feature("X", InterfaceString)});
    model.setState(0, stateOf("same"));
    QSignalSpy wanted(&model, &CFeatureModel::changeWanted);
    QVERIFY(model.setData(model.indexOf(0, CFeatureModel::ValueColumn), "same", Qt::EditRole));
    QCOMPARE(wanted.size(), 0);
}

void FeatureModelTest::testLockedFeatureCannotBeChanged()
{
    CFeatureModel model;
    model.setFeatures({feature("X", InterfaceString)});
    model.setState(0, stateOf("old", AccessReadOnly));
    QSignalSpy wanted(&model, &CFeatureModel::changeWanted);
    QVERIFY(!model.setData(model.indexOf(0, CFeatureModel::ValueColumn), "new", Qt::EditRole));
    QCOMPARE(wanted.size(), 0);
}

void FeatureModelTest::testExpectedValueStandsUntilTheDeviceConfirmsIt()
{
    CFeatureModel model;
    model.setFeatures({feature("X", InterfaceInteger)});
    const QModelIndex value = model.indexOf(0, CFeatureModel::ValueColumn);
    model.setState(0, stateOf("1"));
    model.expect(0, "2");
    QCOMPARE(value.data().toString(), QString("2"));
    QVERIFY(value.data(Qt::FontRole).value<QFont>().italic());
    model.setState(0, stateOf("1")); // read before it was set
    QCOMPARE(value.data().toString(), QString("2"));
    model.confirm(0);
    model.setState(0, stateOf("3")); // the device made it 3
    QCOMPARE(value.data().toString(), QString("3"));
    QVERIFY(!value.data(Qt::FontRole).value<QFont>().italic());
}

void FeatureModelTest::testExpectedValueStandsInPlaceOfOneThatCannotBeRead()
{
    CFeatureModel model;
    model.setFeatures({feature("X", InterfaceFloat)});
    CFeatureState unreadable = stateOf({});
    unreadable.failure = "broken";
    model.setState(0, unreadable);
    model.expect(0, "2");
    QCOMPARE(model.indexOf(0, CFeatureModel::ValueColumn).data().toString(), QString("2"));
    model.refuse(0);
    QCOMPARE(model.indexOf(0, CFeatureModel::ValueColumn).data().toString(),
             QString("not readable"));
}

void FeatureModelTest::testRefusedValueGivesWayToTheOldOne()
{
    CFeatureModel model;
    model.setFeatures({feature("X", InterfaceInteger)});
    model.setState(0, stateOf("1"));
    model.expect(0, "2");
    model.refuse(0);
    QCOMPARE(model.indexOf(0, CFeatureModel::ValueColumn).data().toString(), QString("1"));
}

void FeatureModelTest::testSearchKeepsFeaturesAndTheirParents_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("level");
    QTest::addColumn<QStringList>("shown");
    const QStringList expert{"Image", "-Image Width", "-Sensor", "--Sensor Width", "Gain"};
    const QStringList beginner{"Image", "-Image Width", "Gain"};
    QTest::newRow("a beginner sees what is meant for beginners") << "" << 0 << beginner;
    QTest::newRow("an expert sees that as well") << " " << 1 << expert;
    QTest::newRow("nobody sees the invisible") << "" << 2 << expert;
    QTest::newRow("by display name, with the parents")
        << "width" << 1 << QStringList{"Image", "-Image Width", "-Sensor", "--Sensor Width"};
    QTest::newRow("by GenICam name") << "GainRaw" << 0 << QStringList{"Gain"};
    QTest::newRow("each of several words")
        << "width SENSOR" << 1 << QStringList{"Image", "-Sensor", "--Sensor Width"};
    QTest::newRow("a category is not looked for") << "image sen" << 2 << QStringList{};
    QTest::newRow("only at the level") << "sensor" << 0 << QStringList{};
}

void FeatureModelTest::testSearchKeepsFeaturesAndTheirParents()
{
    QFETCH(QString, words);
    QFETCH(int, level);
    QVector<CFeatureDescription> features{
        feature("Image", InterfaceCategory),
        feature("Width", InterfaceInteger, "@CameraDevice/Image"),
        feature("Sensor", InterfaceCategory, "@CameraDevice/Image"),
        feature("SensorWidth", InterfaceInteger, "@CameraDevice/Sensor"),
        feature("GainRaw", InterfaceInteger),
        feature("Hidden", InterfaceInteger)};
    features[1].displayName = "Image Width";
    features[3].displayName = "Sensor Width";
    features[3].visibility = VisibilityExpert;
    features[4].displayName = "Gain";
    features[5].visibility = VisibilityInvisible;
    CFeatureModel model;
    model.setFeatures(features);
    CFeatureFilter filter;
    filter.setSourceModel(&model);
    filter.setLevel(Visibility(level));
    filter.setWords(words);
    QTEST(lines(filter), "shown");
}

QTEST_MAIN(FeatureModelTest)
#include "FeatureModelTest.moc"
