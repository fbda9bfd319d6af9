// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "TestMetaData.h"

#include <pluginsystem/CPluginSpec.h>

#include <QLoggingCategory>
#include <QTest>

using namespace PluginSystem;

class PluginSpecTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEachStateIsReachedFromItsPredecessorOnly();
    void testErrorKeepsTheStateInWhichItStopped();
    void testErrorsAreLines();
    void testErrorIsLoggedByImportance_data();
    void testErrorIsLoggedByImportance();
    void testEveryStateChangeIsADebugLine();
    void testNameIsThePathUntilTheMetaDataIsKnown();
    void testRemedy();
};

namespace {

const QVector<PluginState> allStates{
    PluginState::Found,   PluginState::Read,           PluginState::Resolved,
    PluginState::Loaded,  PluginState::PreInitialized, PluginState::Initialized,
    PluginState::Running, PluginState::Uninitialized,  PluginState::Deleted};

CPluginSpec specIn(int state)
{
    CPluginSpec spec;
    spec.setMetaData(testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0")));
    for (int step = 1; step <= state; ++step) {
        spec.advance(allStates.at(step));
    }
    return spec;
}

} // namespace

void PluginSpecTest::testEachStateIsReachedFromItsPredecessorOnly()
{
    for (int from = 0; from < allStates.size(); ++from) {
        for (int to = 0; to < allStates.size(); ++to) {
            CPluginSpec spec = specIn(from);
            QCOMPARE(spec.state(), allStates.at(from));
            QCOMPARE(spec.advance(allStates.at(to)), to == from + 1);
            QCOMPARE(spec.state(), allStates.at(to == from + 1 ? to : from));
        }
    }
}

void PluginSpecTest::testErrorKeepsTheStateInWhichItStopped()
{
    CPluginSpec spec = specIn(2);
    QVERIFY(!spec.hasError());

    QTest::ignoreMessage(QtWarningMsg, "Alpha is broken: mend it");
    spec.fail(QStringLiteral("Alpha is broken: mend it"));

    QVERIFY(spec.hasError());
    QVERIFY(!spec.advance(PluginState::Loaded));
    QCOMPARE(spec.state(), PluginState::Resolved);
    QCOMPARE(spec.error(), QStringLiteral("Alpha is broken: mend it"));
}

void PluginSpecTest::testErrorsAreLines()
{
    CPluginSpec spec = specIn(1);
    QTest::ignoreMessage(QtWarningMsg, "one");
    QTest::ignoreMessage(QtWarningMsg, "two");
    spec.fail(QStringLiteral("one"));
    spec.fail(QStringLiteral("two"));

    QCOMPARE(spec.error(), QStringLiteral("one\ntwo"));
}

void PluginSpecTest::testErrorIsLoggedByImportance_data()
{
    QTest::addColumn<bool>("required");
    QTest::addColumn<int>("type");

    QTest::newRow("required: critical") << true << int(QtCriticalMsg);
    QTest::newRow("not required: warning") << false << int(QtWarningMsg);
}

void PluginSpecTest::testErrorIsLoggedByImportance()
{
    QFETCH(bool, required);
    QFETCH(int, type);
    PluginMetaData metaData = testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0"));
    metaData.required = required;
    CPluginSpec spec;
    spec.setMetaData(metaData);

    QTest::ignoreMessage(QtMsgType(type), "Alpha is broken: mend it");
    spec.fail(QStringLiteral("Alpha is broken: mend it"));
}

void PluginSpecTest::testEveryStateChangeIsADebugLine()
{
    QLoggingCategory::setFilterRules(QStringLiteral("nerix.pluginsystem.debug=true"));
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Found -> Read");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Read -> Resolved");
    QTest::ignoreMessage(QtWarningMsg, "Alpha is broken: mend it");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": stopped in Resolved");

    specIn(2).fail(QStringLiteral("Alpha is broken: mend it"));

    QLoggingCategory::setFilterRules(QString());
}

void PluginSpecTest::testNameIsThePathUntilTheMetaDataIsKnown()
{
    CPluginSpec spec(QStringLiteral("/opt/plugins/libAlpha.so"));
    QCOMPARE(spec.name(), QStringLiteral("/opt/plugins/libAlpha.so"));
    QVERIFY(!spec.isBuiltIn());

    spec.setMetaData(testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0")));
    QCOMPARE(spec.name(), QStringLiteral("Alpha"));
    QCOMPARE(spec.libraryPath(), QStringLiteral("/opt/plugins/libAlpha.so"));
}

void PluginSpecTest::testRemedy()
{
    QCOMPARE(CPluginSpec().remedy(), QStringLiteral("reinstall the viewer"));
    QCOMPARE(CPluginSpec(QStringLiteral("/opt/plugins/libAlpha.so")).remedy(),
             QStringLiteral("update or remove \"/opt/plugins/libAlpha.so\""));
}

QTEST_GUILESS_MAIN(PluginSpecTest)
#include "PluginSpecTest.moc"
