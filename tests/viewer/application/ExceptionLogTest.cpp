// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CExceptionLog.h"

#include <QTest>

using Application::CExceptionLog;

class ExceptionLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testNamesTheClassAndTheText();
    void testSameKindIsLoggedOnce();
    void testOtherClassOrTextIsAnotherKind();
    void testChangingTextsAreLimited();
};

namespace {

void expect(const char *className, const char *what)
{
    const QString line = QStringLiteral("an exception left a slot of %1 (%2); the viewer goes on, "
                                        "further ones like it are not told")
                             .arg(QString::fromUtf8(className), QString::fromUtf8(what));
    QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
}

} // namespace

void ExceptionLogTest::testNamesTheClassAndTheText()
{
    CExceptionLog log;
    expect("Receiver", "no device");
    QVERIFY(log.report("Receiver", "no device"));
}

void ExceptionLogTest::testSameKindIsLoggedOnce()
{
    CExceptionLog log;
    expect("Receiver", "no device");
    QVERIFY(log.report("Receiver", "no device"));
    QVERIFY(!log.report("Receiver", "no device"));
}

void ExceptionLogTest::testOtherClassOrTextIsAnotherKind()
{
    CExceptionLog log;
    expect("Receiver", "a");
    expect("Receiver", "b");
    expect("Other", "a");
    QVERIFY(log.report("Receiver", "a"));
    QVERIFY(log.report("Receiver", "b"));
    QVERIFY(log.report("Other", "a"));
}

void ExceptionLogTest::testChangingTextsAreLimited()
{
    CExceptionLog log;
    for (int number = 0; number < 1000; ++number) {
        const QByteArray text = QByteArray::number(number);
        expect("Receiver", text.constData());
        QVERIFY(log.report("Receiver", text.constData()));
    }
    QVERIFY(!log.report("Receiver", "1000"));
}

QTEST_APPLESS_MAIN(ExceptionLogTest)

#include "ExceptionLogTest.moc"
