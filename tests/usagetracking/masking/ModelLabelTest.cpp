// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "internal/ModelLabel.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <QObject>
#include <QString>
#include <QTest>

using Plugin::UsageTracking::Internal::modelLabel;

namespace {

class NamedCamera : public Core::CameraPoolComponents::ICameraInfo
{
public:
    NamedCamera(const QString &vendor, const QString &model)
        : m_vendor(vendor)
        , m_model(model)
    {}

    QString identity() const override
    {
        return QStringLiteral("the identity is no part of the label");
    }

    QString displayName() const override
    {
        return QStringLiteral("the display name is no part of the label");
    }

    QString modelName() const override
    {
        return m_model;
    }

    QString vendorName() const override
    {
        return m_vendor;
    }

private:
    QString m_vendor;
    QString m_model;
};

void addRow(const char *rule, const QString &vendor, const QString &model, const QString &label)
{
    QTest::newRow(rule) << vendor << model << label;
}

void addModel(const char *rule, const QString &model, const QString &label)
{
    addRow(rule, QStringLiteral("Vendor"), model, label);
}

} // namespace

class ModelLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testMasking_data();
    void testMasking();
    void testSeries_data();
    void testSeries();
    void testFilling_data();
    void testFilling();

private:
    void compareLabel();
};

void ModelLabelTest::testMasking_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("label");

    addModel("lower-case letters and digits are never changed", QStringLiteral("ab1234-50c"),
             QStringLiteral("Vendor ab1234-50c"));
    addModel("three capitals are masked", QStringLiteral("XQZ-2000"),
             QStringLiteral("Vendor ***-2000"));
    addModel("three capitals are masked anywhere in the name", QStringLiteral("a2-XQZ"),
             QStringLiteral("Vendor a2-***"));
    addModel("a run of seven is masked by threes from the left", QStringLiteral("ABCDEFG7"),
             QStringLiteral("Vendor ******G7"));
    addModel("a run of five keeps its last two", QStringLiteral("QWERT1"),
             QStringLiteral("Vendor ***RT1"));
    addModel("a run of six leaves nothing", QStringLiteral("QWERTA"),
             QStringLiteral("Vendor ******"));
    addModel("each run is masked", QStringLiteral("ABC-DEF-12"),
             QStringLiteral("Vendor ***-***-12"));
    addModel("two capitals are kept", QStringLiteral("AB-12-CD"),
             QStringLiteral("Vendor AB-12-CD"));
    addModel("a lower-case letter breaks a run", QStringLiteral("ABcDE"),
             QStringLiteral("Vendor ABcDE"));
    addModel("a digit breaks a run", QStringLiteral("AB1CD"), QStringLiteral("Vendor AB1CD"));
    addModel("A and Z count as capitals", QStringLiteral("AZA"), QStringLiteral("Vendor ***"));
    addModel("the neighbours of A and Z do not", QStringLiteral("@A[B@Z["),
             QStringLiteral("Vendor @A[B@Z["));
    addModel("capitals outside ASCII are kept", QStringLiteral("\u00c4\u00d6\u00dc-\u0394\u03a3"),
             QStringLiteral("Vendor \u00c4\u00d6\u00dc-\u0394\u03a3"));
    addModel("a capital outside ASCII breaks a run", QStringLiteral("AB\u00c4CD"),
             QStringLiteral("Vendor AB\u00c4CD"));
    addModel("an empty name leaves maker and blank", QString(), QStringLiteral("Vendor "));
}

void ModelLabelTest::testMasking()
{
    compareLabel();
}

void ModelLabelTest::testSeries_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("label");

    addModel("KUV protects the whole name", QStringLiteral("KUV-XQZ-7"),
             QStringLiteral("Vendor KUV-XQZ-7"));
    addModel("TOG protects the whole name", QStringLiteral("TOG-XQZ-7"),
             QStringLiteral("Vendor TOG-XQZ-7"));
    addModel("ZAW protects the whole name", QStringLiteral("ZAW-XQZ-7"),
             QStringLiteral("Vendor ZAW-XQZ-7"));
    addModel("YEL protects the whole name", QStringLiteral("YEL-XQZ-7"),
             QStringLiteral("Vendor YEL-XQZ-7"));
    addModel("a code at the end protects what is in front of it", QStringLiteral("XQZ-7TOG"),
             QStringLiteral("Vendor XQZ-7TOG"));
    addModel("a code inside a longer run protects", QStringLiteral("XKUVX"),
             QStringLiteral("Vendor XKUVX"));
    addModel("a code across two masks protects", QStringLiteral("ABTOGC"),
             QStringLiteral("Vendor ABTOGC"));
    addModel("a lower-case code does not protect", QStringLiteral("tog-XQZ-7"),
             QStringLiteral("Vendor tog-***-7"));
    addModel("a mixed-case code does not protect", QStringLiteral("Tog-XQZ-7"),
             QStringLiteral("Vendor Tog-***-7"));
    addModel("a code with a gap does not protect", QStringLiteral("TO-G-XQZ"),
             QStringLiteral("Vendor TO-G-***"));
    addModel("other codes do not protect", QStringLiteral("KUW-XQZ"),
             QStringLiteral("Vendor ***-***"));
    addRow("a code in the maker's name does not protect", QStringLiteral("TOG"),
           QStringLiteral("XQZ-7"), QStringLiteral("TOG ***-7"));
}

void ModelLabelTest::testSeries()
{
    compareLabel();
}

void ModelLabelTest::testFilling_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("label");

    addRow("the maker's name is never masked", QStringLiteral("ACME"), QStringLiteral("c-1"),
           QStringLiteral("ACME c-1"));
    addRow("an empty maker leaves the blank", QString(), QStringLiteral("c-1"),
           QStringLiteral(" c-1"));
    addRow("both empty leave the blank", QString(), QString(), QStringLiteral(" "));
    addRow("a place mark in the maker's name is kept", QStringLiteral("%2%1"),
           QStringLiteral("c-1"), QStringLiteral("%2%1 c-1"));
    addRow("a place mark in the model name is kept", QStringLiteral("Vendor"),
           QStringLiteral("%1-%2"), QStringLiteral("Vendor %1-%2"));
    addRow("blanks are kept", QStringLiteral(" a "), QStringLiteral(" b "),
           QStringLiteral(" a   b "));
}

void ModelLabelTest::testFilling()
{
    compareLabel();
}

void ModelLabelTest::compareLabel()
{
    QFETCH(QString, vendor);
    QFETCH(QString, model);
    QFETCH(QString, label);

    const auto camera = QSharedPointer<NamedCamera>::create(vendor, model);

    QCOMPARE(modelLabel(camera), label);
}

QTEST_GUILESS_MAIN(ModelLabelTest)

#include "ModelLabelTest.moc"
