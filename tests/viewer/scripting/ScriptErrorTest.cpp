// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CScriptRun.h"
#include "support/Texts.h"

#include <new>

#include <QTest>
#include <QTimer>

class ScriptErrorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testScriptThatEndsHasNotFailed_data();
    void testScriptThatEndsHasNotFailed();
    void testFailureNamesFileLineAndReason_data();
    void testFailureNamesFileLineAndReason();
    void testPrintJoinsItsArguments();
    void testConsoleLogPrints();
    void testQuitEndsTheScriptAtOnce();
    void testQuitFromOutsideEndsAWait();
    void testInterruptIsAFailure();
    void testScriptThatTakesAllMemoryEndsInALine_data();
    void testScriptThatTakesAllMemoryEndsInALine();
    void testExceptionOfTheEngineIsAFailure();
};

void ScriptErrorTest::testScriptThatEndsHasNotFailed_data()
{
    QTest::addColumn<QByteArray>("script");
    const auto row = [](const char *name, const char *script) {
        QTest::newRow(name) << QByteArray(script);
    };
    row("an empty script", "");
    row("a comment without a line end", "// that is all");
    row("a last value that is an Error", "new Error('not thrown')");
    row("an exception that is caught", "try { fail('reason'); } catch (error) {}");
    row("strict mode", "\"use strict\";\nvar x = 1;");
}

void ScriptErrorTest::testScriptThatEndsHasNotFailed()
{
    QFETCH(QByteArray, script);
    CScriptRun run;
    QCOMPARE(run.run(script), QString());
}

void ScriptErrorTest::testFailureNamesFileLineAndReason_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("failure");
    const auto row = [](const char *name, const char *script, const char *failure) {
        QTest::newRow(name) << QByteArray(script) << QString::fromUtf8(failure);
    };
    row("a syntax error", "var a = 1;\nvar b = ;\n",
        "test.js:2: SyntaxError: Expected token `numeric literal'");
    row("an exception of the engine", "\n\nnothing.x();",
        "test.js:3: ReferenceError: nothing is not defined");
    row("an Error", "\nthrow new Error('reason');", "test.js:2: reason");
    row("another kind of error", "\nthrow new TypeError('reason');",
        "test.js:2: TypeError: reason");
    row("fail()", "\n\nfail('reason');", "test.js:3: reason");
    row("fail() in a function, by the line of fail()", "function f() {\n  fail('reason');\n}\nf();",
        "test.js:2: reason");
    row("what is no Error", "throw 'text';", "test.js: text (throw an Error to learn the line)");
    row("a function of the viewer", "\nmenu.trigger('x');",
        "test.js:2: plug-in AppCore is not running: plugins.list() says why");
    row("a function of the viewer with too few arguments", "\nmenu.trigger();",
        "test.js:2: menu.trigger: id is missing: give a text");
    row("a wait that times out", "\nwaitUntil(function () { return false; }, 10, 'it rains');",
        "test.js:2: not within 10 ms: it rains");
    row("a wait for no function", "\nwaitUntil(true, 10);",
        "test.js:2: waitUntil: condition is true: give a function");
    row("a condition that throws, by its own line",
        "waitUntil(function () {\n  return nothing.x;\n}, 10);",
        "test.js:2: ReferenceError: nothing is not defined");
}

void ScriptErrorTest::testFailureNamesFileLineAndReason()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, failure);
    CScriptRun run;
    QCOMPARE(run.run(script), failure);
}

void ScriptErrorTest::testPrintJoinsItsArguments()
{
    CScriptRun run;
    QCOMPARE(run.run("print('a', 1, true, null); print();"), QString());
    QCOMPARE(run.printed(), texts({"a 1 true null", ""}));
}

void ScriptErrorTest::testConsoleLogPrints()
{
    CScriptRun run;
    QCOMPARE(run.run("console.log('a', 1);"), QString());
    QCOMPARE(run.printed(), texts({"a 1"}));
}

void ScriptErrorTest::testQuitEndsTheScriptAtOnce()
{
    CScriptRun run;
    QCOMPARE(run.run("print('a'); try { quit(); } catch (error) {} print('b'); fail('c');"),
             QString());
    QCOMPARE(run.printed(), texts({"a"}));
}

void ScriptErrorTest::testQuitFromOutsideEndsAWait()
{
    CScriptRun run;
    QTimer::singleShot(0, &run.runner(), &Scripting::CScriptRunner::quit);
    QCOMPARE(run.run("sleep(600000); print('b');"), QString());
    QCOMPARE(run.printed(), QStringList());
    QVERIFY(!run.runner().isRunning());
}

void ScriptErrorTest::testInterruptIsAFailure()
{
    CScriptRun run;
    QTimer::singleShot(0, &run.runner(), &Scripting::CScriptRunner::interrupt);
    QCOMPARE(run.run("sleep(600000);"), QStringLiteral("test.js: ended by a signal"));
}

void ScriptErrorTest::testScriptThatTakesAllMemoryEndsInALine_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("arrays") << QByteArray(
        "var a = [];\nwhile (true) { a.push(new Array(1000).fill(7)); }");
    QTest::newRow("chains") << QByteArray("var a = [];\nfor (;;) { a = [a]; }");
    QTest::newRow("properties") << QByteArray(
        "var o = {};\nfor (var i = 0;; ++i) { o['k' + i] = i; }");
    QTest::newRow("texts") << QByteArray(
        "var a = [];\nfor (var i = 0;; ++i) { a.push('text'.repeat(100000) + i); }");
}

void ScriptErrorTest::testScriptThatTakesAllMemoryEndsInALine()
{
    QFETCH(QByteArray, script);
    CScriptRun run;
    bool isTold = false;
    run.runner().setMemoryLimit(64 << 20);
    run.runner().setOverrunHandler([&isTold] { isTold = true; });
    QCOMPARE(run.run(script), QString("test.js: the script has taken more than 64 MiB of memory: "
                                      "let it keep less"));
    QVERIFY(isTold);
    QVERIFY(!run.runner().isRunning());
}

void ScriptErrorTest::testExceptionOfTheEngineIsAFailure()
{
    CScriptRun run;
    run.runner().setPrinter([](const QString &) { throw std::bad_alloc(); });
    QCOMPARE(
        run.run("print('line');"),
        QString("test.js: the engine gave up (std::bad_alloc): let the script take less memory"));
    QVERIFY(!run.runner().isRunning());
}

QTEST_MAIN(ScriptErrorTest)

#include "ScriptErrorTest.moc"
