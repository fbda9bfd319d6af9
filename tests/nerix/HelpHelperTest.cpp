// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <CHelpHelper.h>

#include <QTest>
#include <QVector>

class HelpHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void testNumbers_data();
    void testNumbers();
    void testNobodyShowsHelp();
    void testHandlerDecides_data();
    void testHandlerDecides();
    void testHandlerIsWithdrawn();
    void testHandlerThatReplacesItself();
};

void HelpHelperTest::cleanup()
{
    CHelpHelper::setHandler(nullptr);
}

void HelpHelperTest::testNumbers_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("number");

    QTest::newRow("contents") << int(CHelpHelper::HelpContents) << 0;
    QTest::newRow("cameras") << int(CHelpHelper::HelpCameras) << 1;
    QTest::newRow("features") << int(CHelpHelper::HelpFeatures) << 2;
    QTest::newRow("grabbing") << int(CHelpHelper::HelpGrabbing) << 3;
    QTest::newRow("licences") << int(CHelpHelper::HelpLicenses) << 4;
    QTest::newRow("privacy statement") << int(CHelpHelper::HelpPrivacyStatement) << 5;
}

void HelpHelperTest::testNumbers()
{
    QFETCH(int, type);

    QTEST(type, "number");
}

void HelpHelperTest::testNobodyShowsHelp()
{
    QVERIFY(!CHelpHelper::showHelp(CHelpHelper::HelpPrivacyStatement));
}

void HelpHelperTest::testHandlerDecides_data()
{
    QTest::addColumn<bool>("isShown");

    QTest::newRow("shown") << true;
    QTest::newRow("not shown") << false;
}

void HelpHelperTest::testHandlerDecides()
{
    QFETCH(bool, isShown);
    QVector<int> asked;
    CHelpHelper::setHandler([&](CHelpHelper::HelpType type) {
        asked += type;
        return isShown;
    });

    QCOMPARE(CHelpHelper::showHelp(CHelpHelper::HelpPrivacyStatement), isShown);
    QCOMPARE(asked, QVector<int>{5});
}

void HelpHelperTest::testHandlerIsWithdrawn()
{
    CHelpHelper::setHandler([](CHelpHelper::HelpType) { return true; });
    CHelpHelper::setHandler(nullptr);

    QVERIFY(!CHelpHelper::showHelp(CHelpHelper::HelpContents));
}

void HelpHelperTest::testHandlerThatReplacesItself()
{
    const QString inside = QStringLiteral("a text that the function holds");
    QString seen;
    CHelpHelper::setHandler([&seen, inside](CHelpHelper::HelpType) {
        CHelpHelper::setHandler(nullptr);
        seen = inside;
        return true;
    });

    QVERIFY(CHelpHelper::showHelp(CHelpHelper::HelpContents));
    QCOMPARE(seen, QStringLiteral("a text that the function holds"));
}

QTEST_GUILESS_MAIN(HelpHelperTest)
#include "HelpHelperTest.moc"
