// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CSimulatorProcess.h"

#include <sys/prctl.h>

#include <csignal>
#include <utility>

#include <QEventLoop>
#include <QTimer>

namespace {

constexpr int WaitLimit = 30000; // ms

// A camera that outlived a killed test would disturb the next one.
class CTiedProcess : public QProcess
{
public:
    using QProcess::QProcess;

protected:
    void setupChildProcess() override
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
    }
};

// Runs the event loop until the given signals' connections quit it, or the limit is reached.
class CWait
{
public:
    template <typename Sender, typename Signal>
    void endOn(Sender *sender, Signal signal)
    {
        QObject::connect(sender, signal, &m_loop, &QEventLoop::quit);
    }

    void run()
    {
        QTimer::singleShot(WaitLimit, &m_loop, &QEventLoop::quit);
        m_loop.exec();
    }

private:
    QEventLoop m_loop;
};

QString wordAfter(const QString &line, const QString &mark)
{
    const int at = line.lastIndexOf(mark);
    return at < 0 ? QString() : line.mid(at + mark.size()).section(QLatin1Char(','), 0, 0);
}

} // namespace

CSimulatorProcess::CSimulatorProcess(QStringList options, QObject *parent)
    : QObject(parent)
    , m_options(std::move(options))
    , m_process(new CTiedProcess(this))
{
    connect(m_process, &QProcess::readyReadStandardOutput, this, &CSimulatorProcess::onOutput);
    connect(m_process, &QProcess::readyReadStandardError, this,
            [this] { m_errorText += QString::fromLocal8Bit(m_process->readAllStandardError()); });
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &CSimulatorProcess::ended);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            m_errorText = m_process->errorString();
            Q_EMIT ended();
        }
    });
}

CSimulatorProcess::~CSimulatorProcess()
{
    m_process->disconnect(this);
    m_process->kill();
    m_process->waitForFinished();
}

bool CSimulatorProcess::start()
{
    m_readyLine.clear();
    m_errorText.clear();
    CWait wait;
    wait.endOn(this, &CSimulatorProcess::ready);
    wait.endOn(this, &CSimulatorProcess::ended);
    QTimer::singleShot(0, m_process, [this] {
        m_process->start(QStringLiteral(NERIX_CAMERA_SIMULATOR), m_options);
    });
    wait.run();
    return isRunning() && !m_readyLine.isNull();
}

bool CSimulatorProcess::isRunning() const
{
    return m_process->state() == QProcess::Running;
}

qint64 CSimulatorProcess::processId() const
{
    return m_process->processId();
}

QString CSimulatorProcess::readyLine() const
{
    return m_readyLine;
}

QString CSimulatorProcess::address() const
{
    return wordAfter(m_readyLine, QStringLiteral(" at "));
}

QString CSimulatorProcess::serial() const
{
    return wordAfter(m_readyLine, QStringLiteral(", serial "));
}

QString CSimulatorProcess::errorText() const
{
    return m_errorText;
}

int CSimulatorProcess::exitStatus() const
{
    const bool ended = m_process->state() == QProcess::NotRunning
                       && m_process->exitStatus() == QProcess::NormalExit;
    return ended ? m_process->exitCode() : -1;
}

QString CSimulatorProcess::command(const QString &line)
{
    if (!isRunning()) {
        return QString();
    }
    QString answer;
    CWait wait;
    wait.endOn(this, &CSimulatorProcess::answered);
    wait.endOn(this, &CSimulatorProcess::ended);
    const auto connection = connect(this, &CSimulatorProcess::answered,
                                    [&answer](const QString &text) { answer = text; });
    m_process->write(line.toUtf8() + '\n');
    wait.run();
    disconnect(connection);
    return answer;
}

bool CSimulatorProcess::stop()
{
    if (!isRunning()) {
        return exitStatus() == 0;
    }
    CWait wait;
    wait.endOn(this, &CSimulatorProcess::ended);
    m_process->write("quit\n");
    wait.run();
    return exitStatus() == 0;
}

void CSimulatorProcess::closeInput()
{
    m_process->closeWriteChannel();
}

void CSimulatorProcess::terminate()
{
    if (isRunning()) {
        CWait wait;
        wait.endOn(this, &CSimulatorProcess::ended);
        m_process->terminate();
        wait.run();
    }
}

void CSimulatorProcess::kill()
{
    if (isRunning()) {
        CWait wait;
        wait.endOn(this, &CSimulatorProcess::ended);
        m_process->kill();
        wait.run();
    }
}

void CSimulatorProcess::onOutput()
{
    while (m_process->canReadLine()) {
        onLine(QString::fromUtf8(m_process->readLine()).chopped(1));
    }
}

void CSimulatorProcess::onLine(const QString &line)
{
    if (m_readyLine.isNull() && line.startsWith(QStringLiteral("ready: "))) {
        m_readyLine = line;
        Q_EMIT ready();
    } else {
        Q_EMIT answered(line);
    }
}
