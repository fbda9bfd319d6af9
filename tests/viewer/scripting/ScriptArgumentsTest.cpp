// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CScriptRun.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "scripting/ScriptFunctions.h"
#include "support/CFakeCameraControl.h"
#include "support/CSettingsSandbox.h"
#include "support/Texts.h"

#include <QTest>

// A mistake in a call is one line with the names of the function and of its argument.
class ScriptArgumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testWrongLimitIsRefused_data();
    void testWrongLimitIsRefused();
    void testWrongArgumentIsRefused_data();
    void testWrongArgumentIsRefused();
    void testWrongCallIsRefused_data();
    void testWrongCallIsRefused();
    void testRightArgumentsPass_data();
    void testRightArgumentsPass();
    void testNothingIsDoneWithAWrongArgument();
    void testObjectOfTheViewerIsAnOrdinaryObject();
    void testFunctionsAreThoseOfTheHeader();

private:
    void addRows(const QList<QPair<const char *, const char *>> &rows);
    void runRow();

    QScopedPointer<CSettingsSandbox> m_sandbox;
    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<Plugin::NerixWelcome::CNerixWelcomeController> m_welcome;
};

class CExample : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void first();
    Q_INVOKABLE void second(const QString &text, int number = 3, bool flag = true);

public Q_SLOTS:
    void noFunctionOfTheScript();
};

void CExample::first() {}
void CExample::second(const QString &, int, bool) {}
void CExample::noFunctionOfTheScript() {}

void ScriptArgumentsTest::init()
{
    m_sandbox.reset(new CSettingsSandbox);
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_control->plugIn("A-1");
    m_welcome = QSharedPointer<Plugin::NerixWelcome::CNerixWelcomeController>::create();
}

void ScriptArgumentsTest::addRows(const QList<QPair<const char *, const char *>> &rows)
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("failure");
    for (const auto &row : rows) {
        QTest::newRow(row.first) << QByteArray(row.first) << QString::fromUtf8(row.second);
    }
}

void ScriptArgumentsTest::runRow()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, failure);
    CScriptRun run;
    run.addService(m_control);
    run.addService(m_welcome);
    QCOMPARE(run.run(script), failure.isEmpty() ? QString() : "test.js:1: " + failure);
}

void ScriptArgumentsTest::testWrongLimitIsRefused_data()
{
    addRows({
        {"sleep(-1)", "sleep: ms is -1: give milliseconds from 0 to 2147483647"},
        {"sleep(3000000000)", "sleep: ms is 3000000000: give milliseconds from 0 to 2147483647"},
        {"sleep('x')", "sleep: ms is \"x\": give milliseconds from 0 to 2147483647"},
        {"sleep(NaN)", "sleep: ms is NaN: give milliseconds from 0 to 2147483647"},
        {"sleep(Infinity)", "sleep: ms is Infinity: give milliseconds from 0 to 2147483647"},
        {"waitUntil(function () {}, -1)",
         "waitUntil: ms is -1: give milliseconds from 0 to 2147483647"},
        {"waitUntil(function () {}, 'it rains')",
         "waitUntil: ms is \"it rains\": give milliseconds from 0 to 2147483647"},
        {"cameras.waitFor(2, -1)",
         "cameras.waitFor: ms is -1: give milliseconds from 0 to 2147483647"},
        {"cameras.waitFor(1, 'x')",
         "cameras.waitFor: ms is \"x\": give milliseconds from 0 to 2147483647"},
        {"cameras.waitForGone('A-1', null)",
         "cameras.waitForGone: ms is null: give milliseconds from 0 to 2147483647"},
        {"cameras.open('A-1', -1)",
         "cameras.open: ms is -1: give milliseconds from 0 to 2147483647"},
        {"cameras.close('A-1', [5])",
         "cameras.close: ms is a list: give milliseconds from 0 to 2147483647"},
        {"grab.single('A-1', -1)", "grab.single: ms is -1: give milliseconds from 0 to 2147483647"},
        {"grab.waitFor('A-1', 1, 2147483648)",
         "grab.waitFor: ms is 2147483648: give milliseconds from 0 to 2147483647"},
    });
}

void ScriptArgumentsTest::testWrongLimitIsRefused()
{
    runRow();
}

void ScriptArgumentsTest::testWrongArgumentIsRefused_data()
{
    addRows({
        {"cameras.waitFor(NaN, 100)", "cameras.waitFor: numberOrPattern is NaN: give a whole "
                                      "number from 0 to 2147483647, or a pattern"},
        {"cameras.waitFor(-1, 100)", "cameras.waitFor: numberOrPattern is -1: give a whole number "
                                     "from 0 to 2147483647, or a pattern"},
        {"cameras.waitFor(1.5, 100)", "cameras.waitFor: numberOrPattern is 1.5: give a whole "
                                      "number from 0 to 2147483647, or a pattern"},
        {"cameras.waitFor({}, 100)", "cameras.waitFor: numberOrPattern is an object: give a whole "
                                     "number from 0 to 2147483647, or a pattern"},
        {"grab.waitFor('A-1', -1)",
         "grab.waitFor: images is -1: give a whole number from 0 to 2147483647"},
        {"grab.waitFor('A-1', 'a', 300)",
         "grab.waitFor: images is \"a\": give a whole number from 0 to 2147483647"},
        {"windows.resize('Main', -5, 10)",
         "windows.resize: width is -5: give a whole number from 0 to 2147483647"},
        {"cameras.open({})",
         "cameras.open: camera is an object: give a camera object, an identity or a display name"},
        {"cameras.open(null)",
         "cameras.open: camera is null: give a camera object, an identity or a display name"},
        {"cameras.select(5)", "cameras.select: cameraOrNull is 5: give a camera object, an "
                              "identity or a display name, or null"},
        {"welcome.setShowAtStartup('no')",
         "welcome.setShowAtStartup: show is \"no\": give true or false"},
        {"menu.trigger(function () {})", "menu.trigger: id is a function: give a text"},
        {"settings.get(null)", "settings.get: key is null: give a text"},
        {"waitUntil(true, 10)", "waitUntil: condition is true: give a function"},
    });
}

void ScriptArgumentsTest::testWrongArgumentIsRefused()
{
    runRow();
}

void ScriptArgumentsTest::testWrongCallIsRefused_data()
{
    addRows({
        {"cameras.open()",
         "cameras.open: camera is missing: give a camera object, an identity or a display name"},
        {"features.set('A-1', 'Gain')", "features.set: value is missing: give a text"},
        {"features.set(undefined, 'Gain', '1')", "features.set: camera is missing: give a camera "
                                                 "object, an identity or a display name"},
        {"sleep()", "sleep: ms is missing: give milliseconds from 0 to 2147483647"},
        {"waitUntil()", "waitUntil: condition is missing: give a function"},
        {"fail()", "fail: text is missing: give a text"},
        {"cameras.list('A-1')", "cameras.list: too many arguments: give none"},
        {"cameras.close('A-1', 10, 20)", "cameras.close: too many arguments: give only camera, ms"},
        {"cameras.opn('x')",
         "TypeError: Property 'opn' of object cameras (which has close, list, open, select, "
         "selected, takeEvents, waitFor, waitForGone) is not a function"},
        {"settings.set('a', 1)", "TypeError: Property 'set' of object settings (which has "
                                 "fileName, get) is not a function"},
        {"waitUntil(function () { return false; }, 10)",
         "not within 10 ms: the condition of waitUntil (its third argument names it here)"},
    });
}

void ScriptArgumentsTest::testWrongCallIsRefused()
{
    runRow();
}

void ScriptArgumentsTest::testRightArgumentsPass_data()
{
    addRows({
        {"sleep(0)", ""},
        {"sleep(1000 / 300)", ""},
        {"cameras.waitFor(1, 2147483647)", ""},
        {"cameras.waitFor(1, 0)", ""},
        {"cameras.waitFor(1, undefined)", ""},
        {"cameras.waitFor('A*')", ""},
        {"cameras.open(cameras.list()[0], 60000)", ""},
        {"waitUntil(function () { return true; }, undefined, 'what')", ""},
        {"settings.get(5)", ""},
        {"welcome.setShowAtStartup(false)", ""},
    });
}

void ScriptArgumentsTest::testRightArgumentsPass()
{
    runRow();
}

void ScriptArgumentsTest::testNothingIsDoneWithAWrongArgument()
{
    m_welcome->setShowAtStartup(false);
    CScriptRun run;
    run.addService(m_welcome);
    QCOMPARE(run.run("try { welcome.setShowAtStartup('no'); } catch (error) { print('refused'); }"),
             QString());
    QCOMPARE(run.printed(), texts({"refused"}));
    QVERIFY(!m_welcome->showAtStartup());
}

void ScriptArgumentsTest::testObjectOfTheViewerIsAnOrdinaryObject()
{
    CScriptRun run;
    QCOMPARE(run.run("print(settings); print(typeof settings.get, settings.other);\n"
                     "for (var name in settings) print(name);\n"
                     "settings.own = 5; print(settings.own, 'own' in settings);"),
             QString());
    QCOMPARE(run.printed(), texts({"settings (which has fileName, get)", "function undefined",
                                   "get", "fileName", "5 true"}));
}

void ScriptArgumentsTest::testFunctionsAreThoseOfTheHeader()
{
    const QVariantList functions = Scripting::functionsOf(CExample::staticMetaObject);
    const auto parameter = [](const char *name, const char *type) {
        return QVariantMap{{"name", name}, {"type", type}};
    };
    const QVariantList none;
    const QVariantList three = {parameter("text", "QString"), parameter("number", "int"),
                                parameter("flag", "bool")};
    QCOMPARE(
        functions,
        QVariantList({QVariantMap{{"name", "first"}, {"required", 0}, {"parameters", none}},
                      QVariantMap{{"name", "second"}, {"required", 1}, {"parameters", three}}}));
}

QTEST_MAIN(ScriptArgumentsTest)

#include "ScriptArgumentsTest.moc"
