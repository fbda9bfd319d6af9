// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/CId.h>

#include <QHash>
#include <QMap>
#include <QTest>

using Core::CId;

class IdTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testText_data();
    void testText();
    void testComparison_data();
    void testComparison();
    void testIsAKey();
    void testTravelsInAVariant();
};

void IdTest::testText_data()
{
    QTest::addColumn<CId>("id");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isValid");

    QTest::newRow("no id") << CId() << QString() << false;
    QTest::newRow("from an empty text") << CId(QString()) << QString() << false;
    QTest::newRow("from an empty literal") << CId("") << QString() << false;
    QTest::newRow("from a null literal")
        << CId(static_cast<const char *>(nullptr)) << QString() << false;
    QTest::newRow("from a literal")
        << CId("NerixViewer.Menu.Help") << QStringLiteral("NerixViewer.Menu.Help") << true;
    QTest::newRow("from a text") << CId(QStringLiteral("UsageTracking.DataPrivacy"))
                                 << QStringLiteral("UsageTracking.DataPrivacy") << true;
    QTest::newRow("a literal is UTF-8")
        << CId("Men\xc3\xbc") << QStringLiteral(u"Men\u00fc") << true;
}

void IdTest::testText()
{
    QFETCH(CId, id);

    QTEST(id.toString(), "text");
    QTEST(id.isValid(), "isValid");
}

void IdTest::testComparison_data()
{
    QTest::addColumn<CId>("left");
    QTest::addColumn<CId>("right");
    QTest::addColumn<bool>("areEqual");
    QTest::addColumn<bool>("isLess");

    QTest::newRow("same text") << CId("A.B") << CId(QStringLiteral("A.B")) << true << false;
    QTest::newRow("other case") << CId("A.B") << CId("A.b") << false << true;
    QTest::newRow("part of the other") << CId("A") << CId("A.B") << false << true;
    QTest::newRow("later in the alphabet") << CId("B") << CId("A") << false << false;
    QTest::newRow("invalid ids are the same") << CId() << CId("") << true << false;
    QTest::newRow("invalid and valid") << CId() << CId("A") << false << true;
}

void IdTest::testComparison()
{
    QFETCH(CId, left);
    QFETCH(CId, right);
    QFETCH(bool, areEqual);

    QCOMPARE(left == right, areEqual);
    QCOMPARE(left != right, !areEqual);
    QTEST(left < right, "isLess");
    QCOMPARE(qHash(left) == qHash(right), areEqual);
}

void IdTest::testIsAKey()
{
    QHash<CId, int> hash{{CId("A"), 1}, {CId("B"), 2}};
    hash.insert(CId("A"), 3);
    QCOMPARE(hash.size(), 2);
    QCOMPARE(hash.value(CId("A")), 3);

    const QMap<CId, int> map{{CId("B"), 2}, {CId("A"), 1}};
    QCOMPARE(map.firstKey().toString(), QStringLiteral("A"));
}

void IdTest::testTravelsInAVariant()
{
    const QVariant variant = QVariant::fromValue(CId("A.B"));

    QCOMPARE(variant.value<CId>().toString(), QStringLiteral("A.B"));
}

QTEST_GUILESS_MAIN(IdTest)
#include "IdTest.moc"
