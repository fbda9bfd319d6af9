// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/AppCoreComponents/CContext.h>

#include <QTest>

using Core::CId;
using Core::AppCoreComponents::CContext;

class ContextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEmptyContextAppliesNowhere();
    void testContextOfOneId();
    void testIdsKeepTheirOrder();
    void testRepeatedAndInvalidIdsAreIgnored();
};

void ContextTest::testEmptyContextAppliesNowhere()
{
    const CContext context;

    QVERIFY(context.ids().isEmpty());
    QVERIFY(!context.contains(CId("AppCore.Global.Context")));
    QVERIFY(!context.contains(CId()));
}

void ContextTest::testContextOfOneId()
{
    const CContext context(CId("AppCore.Global.Context"));

    QVERIFY(context.contains(CId("AppCore.Global.Context")));
    QVERIFY(!context.contains(CId("AppCore.Global")));
    QCOMPARE(context.ids(), QList<CId>{CId("AppCore.Global.Context")});
}

void ContextTest::testIdsKeepTheirOrder()
{
    CContext context(CId("B"));
    context.add(CId("C"));
    context.add(CId("A"));

    QCOMPARE(context.ids(), (QList<CId>{CId("B"), CId("C"), CId("A")}));
}

void ContextTest::testRepeatedAndInvalidIdsAreIgnored()
{
    CContext context{CId()};
    QVERIFY(context.ids().isEmpty());
    context.add(CId("A"));
    context.add(CId());
    context.add(CId("A"));

    QCOMPARE(context.ids(), QList<CId>{CId("A")});
}

QTEST_GUILESS_MAIN(ContextTest)
#include "ContextTest.moc"
