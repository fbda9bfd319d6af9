// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "policy/CUsagePolicy.h"

#include <QTest>

using Policy::CUsagePolicy;
using Kind = CUsagePolicy::Kind;

class UsagePolicyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testWhatTheLibraryTells_data();
    void testWhatTheLibraryTells();
    void testEnvironmentIsAsked();
};

void UsagePolicyTest::testWhatTheLibraryTells_data()
{
    QTest::addColumn<int>("sum");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isOff");
    QTest::newRow("nothing is forbidden") << 0 << int(Kind::Allowed) << false;
    QTest::newRow("delivery is forbidden") << 2 << int(Kind::OnThisComputer) << false;
    QTest::newRow("storing is forbidden") << 1 + 2 << int(Kind::OffByAdministrator) << true;
    QTest::newRow("by the environment") << 1 + 2 + 4 << int(Kind::OffByEnvironment) << true;
    QTest::newRow("by a file that makes no sense")
        << 1 + 2 + 8 << int(Kind::OffByUnreadableFile) << true;
    QTest::newRow("by such a file and the environment")
        << 1 + 2 + 4 + 8 << int(Kind::OffByUnreadableFile) << true;
}

void UsagePolicyTest::testWhatTheLibraryTells()
{
    QFETCH(int, sum);
    const CUsagePolicy policy = CUsagePolicy::fromLibrary(sum);
    QTEST(int(policy.kind()), "kind");
    QTEST(policy.isOff(), "isOff");
    QCOMPARE(policy.text().isEmpty(), sum == 0);
}

void UsagePolicyTest::testEnvironmentIsAsked()
{
    qputenv("DO_NOT_TRACK", "1");
    QVERIFY(CUsagePolicy::read().isOff());
    qunsetenv("DO_NOT_TRACK");
}

QTEST_GUILESS_MAIN(UsagePolicyTest)
#include "UsagePolicyTest.moc"
