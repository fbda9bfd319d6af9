// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCommandInput.h"

#include <unistd.h>

#include <QStringList>
#include <QTest>

// Lines out of a descriptor, however the bytes arrive.
class CommandInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void testLines_data();
    void testLines();
    void testEndOfInputIsSilent();

private:
    void send(const QByteArray &bytes);

    int m_pipe[2] = {-1, -1};
};

void CommandInputTest::init()
{
    QCOMPARE(pipe(m_pipe), 0);
}

void CommandInputTest::cleanup()
{
    close(m_pipe[0]);
}

void CommandInputTest::send(const QByteArray &bytes)
{
    QCOMPARE(write(m_pipe[1], bytes.constData(), static_cast<size_t>(bytes.size())),
             static_cast<ssize_t>(bytes.size()));
}

void CommandInputTest::testLines_data()
{
    QTest::addColumn<QList<QByteArray>>("pieces");
    QTest::addColumn<QStringList>("lines");

    const auto lines = [](const char *text) {
        return QString::fromLatin1(text).split(QLatin1Char('|'));
    };
    QTest::newRow("a line") << QList<QByteArray>{"quit\n"} << lines("quit");
    QTest::newRow("two lines at once")
        << QList<QByteArray>{"vanish\nreturn\n"} << lines("vanish|return");
    QTest::newRow("a line in pieces") << QList<QByteArray>{"van", "is", "h\n"} << lines("vanish");
    QTest::newRow("an empty line") << QList<QByteArray>{"\n"} << QStringList{QString()};
    QTest::newRow("a last line without an end")
        << QList<QByteArray>{"vanish\nqu", "it"} << lines("vanish|quit");
    QTest::newRow("a line longer than a read") << QList<QByteArray>{QByteArray(9000, 'x') + '\n'}
                                               << QStringList{QString(9000, QLatin1Char('x'))};
    QTest::newRow("nothing") << QList<QByteArray>{} << QStringList{};
}

void CommandInputTest::testLines()
{
    QFETCH(QList<QByteArray>, pieces);
    QFETCH(QStringList, lines);

    QStringList received;
    const Simulator::CCommandInput input(
        m_pipe[0], [&](const std::string &line) { received.append(QString::fromStdString(line)); });
    for (const QByteArray &piece : qAsConst(pieces)) {
        send(piece);
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
    }
    close(m_pipe[1]);
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
    QCOMPARE(received, lines);
}

void CommandInputTest::testEndOfInputIsSilent()
{
    int count = 0;
    const Simulator::CCommandInput input(m_pipe[0], [&](const std::string &) { ++count; });
    close(m_pipe[1]);
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
    // An ended input must not keep the loop busy.
    QVERIFY(!g_main_context_pending(nullptr));
    QCOMPARE(count, 0);
}

QTEST_APPLESS_MAIN(CommandInputTest)

#include "CommandInputTest.moc"
