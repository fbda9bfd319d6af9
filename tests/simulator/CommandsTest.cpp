// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "ICamera.h"

#include <stdexcept>

#include <QStringList>
#include <QTest>

namespace {

// Writes down what is done to it.
class CRecordingCamera : public Simulator::ICamera
{
public:
    bool isPluggedIn() const override
    {
        return m_isPluggedIn;
    }

    void plugIn() override
    {
        if (m_isAddressTaken) {
            throw std::runtime_error("address 127.0.0.1 is taken: try again");
        }
        m_isPluggedIn = true;
        m_calls.append(QStringLiteral("plugIn"));
    }

    void unplug() override
    {
        m_isPluggedIn = false;
        m_calls.append(QStringLiteral("unplug"));
    }

    void setLoss(double ratio) override
    {
        m_calls.append(QStringLiteral("setLoss %1").arg(ratio));
    }

    bool m_isPluggedIn = true;
    bool m_isAddressTaken = false;
    QStringList m_calls;
};

} // namespace

// The lines of standard input and their answers.
class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testAnswers_data();
    void testAnswers();
    void testReturnTellsThatTheAddressIsTaken();
};

void CommandsTest::testAnswers_data()
{
    QTest::addColumn<bool>("isPluggedIn");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<bool>("quit");

    const auto row = [](const char *name, bool isPluggedIn, const char *line, const char *answer,
                        const QStringList &calls = {}, bool quit = false) {
        QTest::newRow(name) << isPluggedIn << QByteArray(line) << QByteArray(answer) << calls
                            << quit;
    };
    const char *loss = "error: loss needs a ratio from 0 to 1, such as: loss 0.05";
    const char *unknown = "error: unknown command \"%1\": the commands are loss RATIO, vanish,"
                          " return, quit";
    const QByteArray fly = QByteArray(unknown).replace("%1", "fly");
    const QByteArray none = QByteArray(unknown).replace("%1", "");
    const QByteArray vanish = QByteArray(unknown).replace("%1", "vanish");

    row("loss is set", true, "loss 0.05", "loss 0.05", {QStringLiteral("setLoss 0.05")});
    row("loss is set while away", false, "loss 1", "loss 1", {QStringLiteral("setLoss 1")});
    row("blanks do not matter", true, "  loss \t 0.5 \r", "loss 0.5",
        {QStringLiteral("setLoss 0.5")});
    row("loss without a ratio", true, "loss", loss);
    row("loss of more than all", true, "loss 2", loss);
    row("loss with two ratios", true, "loss 0 1", loss);
    row("vanish", true, "vanish", "vanished", {QStringLiteral("unplug")});
    row("vanish twice", false, "vanish",
        "error: the camera has vanished already: bring it back with return");
    row("return", false, "return", "returned", {QStringLiteral("plugIn")});
    row("return while there", true, "return", "error: the camera is there: make it vanish first");
    row("quit", true, "quit", "bye", {}, true);
    row("quit while away", false, "quit", "bye", {}, true);
    row("an unknown command", true, "fly", fly.constData());
    row("an empty line", true, "", none.constData());
    row("a word too many", true, "vanish now", vanish.constData());
    row("capitals", true, "QUIT", QByteArray(unknown).replace("%1", "QUIT").constData());
}

void CommandsTest::testAnswers()
{
    QFETCH(bool, isPluggedIn);
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, answer);
    QFETCH(QStringList, calls);
    QFETCH(bool, quit);

    CRecordingCamera camera;
    camera.m_isPluggedIn = isPluggedIn;
    const Simulator::Answer result = Simulator::execute(line.toStdString(), camera);
    QCOMPARE(QByteArray::fromStdString(result.text), answer);
    QCOMPARE(result.quit, quit);
    QCOMPARE(camera.m_calls, calls);
}

void CommandsTest::testReturnTellsThatTheAddressIsTaken()
{
    CRecordingCamera camera;
    camera.m_isPluggedIn = false;
    camera.m_isAddressTaken = true;
    QCOMPARE(Simulator::execute("return", camera).text,
             std::string("error: address 127.0.0.1 is taken: try again"));
    QVERIFY(!camera.isPluggedIn());
}

QTEST_APPLESS_MAIN(CommandsTest)

#include "CommandsTest.moc"
