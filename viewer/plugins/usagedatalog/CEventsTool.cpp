// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/CEventsTool.h"

#include <sys/prctl.h>

#include <csignal>
#include <memory>
#include <utility>

#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace Plugin {
namespace UsageDataLog {

namespace {

// One that follows the events would outlive a viewer that crashed.
class CTiedProcess : public QProcess
{
public:
    using QProcess::QProcess;

    ~CTiedProcess() override
    {
        kill();
        waitForFinished();
    }

protected:
    void setupChildProcess() override
    {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    }
};

CEventsTool::Result resultOf(QProcess &process, const QString &program)
{
    CEventsTool::Result result;
    if (process.error() == QProcess::FailedToStart) {
        result.error =
            CEventsTool::tr("%1 cannot be started: install the viewer again").arg(program);
        return result;
    }
    result.succeeded = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    result.output = process.readAllStandardOutput();
    result.error =
        QString::fromUtf8(process.readAllStandardError()).trimmed().section(QLatin1Char('\n'), -1);
    return result;
}

bool moveInto(const QString &from, const QString &to)
{
    return (!QFile::exists(to) || QFile::remove(to)) && QFile::rename(from, to);
}

} // namespace

CEventsTool::CEventsTool(QString program, QString directory, QObject *parent)
    : QObject(parent)
    , m_program(std::move(program))
    , m_directory(std::move(directory))
{}

CEventsTool::~CEventsTool()
{
    const auto processes = findChildren<QProcess *>();
    for (QProcess *process : processes) {
        process->disconnect();
        delete process;
    }
}

void CEventsTool::run(const QStringList &options, Answer answer)
{
    start(make(options), std::move(answer));
}

void CEventsTool::runInto(const QString &file, const QStringList &options, Answer answer)
{
    const QString partial = file + QStringLiteral(".part");
    QFile probe(partial);
    if (!probe.open(QIODevice::WriteOnly)) {
        Result result;
        result.error = tr("%1 cannot be written: %2").arg(file, probe.errorString());
        answer(result);
        return;
    }
    probe.close();
    QProcess *process = make(options);
    process->setStandardOutputFile(partial);
    start(process, [file, partial, answer = std::move(answer)](Result result) {
        if (result.succeeded && !moveInto(partial, file)) {
            result.succeeded = false;
            result.error = tr("%1 cannot be replaced: choose another name").arg(file);
        }
        QFile::remove(partial);
        answer(result);
    });
}

void CEventsTool::listen(const QStringList &options, QObject *owner, LinesListener listener)
{
    QProcess *process = make(options);
    connect(owner, &QObject::destroyed, process, &QObject::deleteLater);
    connect(process, &QProcess::readyReadStandardOutput, owner,
            [process, listener = std::move(listener)] {
                QByteArray lines;
                while (process->canReadLine()) {
                    lines += process->readLine();
                }
                if (!lines.isEmpty()) {
                    listener(lines);
                }
            });
    process->start();
}

QProcess *CEventsTool::make(const QStringList &options)
{
    auto *process = new CTiedProcess(this);
    process->setProgram(m_program);
    process->setArguments(options + QStringList(m_directory));
    return process;
}

void CEventsTool::start(QProcess *process, Answer answer)
{
    const auto finish = [this, process, answer = std::move(answer)] {
        process->disconnect();
        process->deleteLater();
        answer(resultOf(*process, m_program));
    };
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, finish);
    connect(process, &QProcess::errorOccurred, this, [finish](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            finish();
        }
    });
    process->start();
}

} // namespace UsageDataLog
} // namespace Plugin
