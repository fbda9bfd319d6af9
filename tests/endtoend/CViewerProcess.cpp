// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerProcess.h"

#include <sys/prctl.h>

#include <csignal>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

constexpr int WaitLimit = 120000; // ms

// A viewer that outlived a killed test would hold its camera.
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

void write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(fileName));
    }
}

QStringList lines(const QByteArray &text)
{
    return QString::fromUtf8(text).split('\n', Qt::SkipEmptyParts);
}

} // namespace

CViewerProcess::CViewerProcess()
    : m_environment(QProcessEnvironment::systemEnvironment())
    , m_program(NERIX_VIEWER)
    , m_process(new CTiedProcess(this))
{
    for (const char *folder : {"config", "data", "cache", "runtime"}) {
        QDir(m_folder.path()).mkdir(folder);
        m_environment.insert(QString("XDG_%1_HOME").arg(QString(folder).toUpper()), path(folder));
    }
    QFile::setPermissions(path("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_environment.insert("XDG_RUNTIME_DIR", path("runtime"));
    m_process->setWorkingDirectory(m_folder.path());
#ifdef NERIX_TSAN_PRELOAD
    m_environment.insert("LD_PRELOAD", NERIX_TSAN_PRELOAD);
    // What GLib keeps for later is handed from thread to thread unseen.
    m_environment.insert("G_SLICE", "always-malloc");
    if (!m_environment.contains("TSAN_OPTIONS")) {
        m_environment.insert("TSAN_OPTIONS", "history_size=7");
    }
#endif
    connect(m_process, &QProcess::readyReadStandardOutput, this, &CViewerProcess::onOutput);
}

CViewerProcess::~CViewerProcess()
{
    m_process->disconnect(this);
    m_process->kill();
    m_process->waitForFinished();
}

QString CViewerProcess::path(const QString &name) const
{
    return m_folder.filePath(name);
}

void CViewerProcess::storeConsent(bool selected, bool enabled)
{
    const auto text = [](bool value) { return QByteArray(value ? "true" : "false"); };
    QDir(path("config")).mkpath("Ostrand");
    write(path("config/Ostrand/nerix-viewer.ini"), "[UsageTracking]\nOptInEnabled=" + text(enabled)
                                                       + "\nOptInSelected=" + text(selected)
                                                       + "\n");
}

void CViewerProcess::setEnvironment(const QString &name, const QString &value)
{
    m_environment.insert(name, value);
}

void CViewerProcess::setOptions(const QStringList &options)
{
    m_options = options;
}

void CViewerProcess::setProgram(const QString &program)
{
    m_program = program;
}

int CViewerProcess::run(const QString &script)
{
    start(script);
    return finish();
}

void CViewerProcess::start(const QString &script)
{
    write(path("test.js"), script.toUtf8());
    m_printed.clear();
    m_process->setProcessEnvironment(m_environment);
    m_process->setStandardErrorFile(path("log"));
    m_process->start(m_program, QStringList({"--script", path("test.js")}) + m_options);
    if (!m_process->waitForStarted()) {
        qFatal("%s does not start", qPrintable(m_program));
    }
}

bool CViewerProcess::waitForLine(const QString &line)
{
    const bool hasHappened = QTest::qWaitFor(
        [&] { return m_printed.contains(line) || m_process->state() == QProcess::NotRunning; },
        WaitLimit);
    return hasHappened && m_printed.contains(line);
}

int CViewerProcess::finish()
{
    const bool hasEnded =
        QTest::qWaitFor([this] { return m_process->state() == QProcess::NotRunning; }, WaitLimit);
    if (!hasEnded) {
        m_process->kill();
    }
    return hasEnded && m_process->exitStatus() == QProcess::NormalExit ? m_process->exitCode() : -1;
}

void CViewerProcess::terminate()
{
    m_process->terminate();
}

void CViewerProcess::send(int number)
{
    ::kill(pid_t(m_process->processId()), number);
}

void CViewerProcess::closeOutput()
{
    m_process->closeReadChannel(QProcess::StandardOutput);
}

bool CViewerProcess::endsWithin(int milliseconds)
{
    return QTest::qWaitFor([this] { return m_process->state() == QProcess::NotRunning; },
                           milliseconds);
}

bool CViewerProcess::waitForLog(const QString &text, int milliseconds)
{
    return QTest::qWaitFor([&] { return !logged().filter(text).isEmpty(); }, milliseconds);
}

qint64 CViewerProcess::processId() const
{
    return m_process->processId();
}

QStringList CViewerProcess::printed() const
{
    return m_printed;
}

QStringList CViewerProcess::logged() const
{
    QFile file(path("log"));
    return file.open(QIODevice::ReadOnly) ? lines(file.readAll()) : QStringList();
}

QByteArray CViewerProcess::settings() const
{
    QFile file(path("config/Ostrand/nerix-viewer.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList CViewerProcess::storedEvents() const
{
    if (!QFile::exists(libraryFolder() + "/usage-events.sqlite")) {
        return {};
    }
    QProcess tool;
    tool.start(RUI_EVENTS, {"--raw", libraryFolder()});
    tool.waitForFinished(WaitLimit);
    return lines(tool.readAllStandardOutput());
}

QStringList CViewerProcess::storedEvents(const QString &category) const
{
    return storedEvents().filter(QRegularExpression('^' + category + '\t'));
}

QString CViewerProcess::libraryFolder() const
{
    return path("data/Ostrand/nerix-viewer");
}

QStringList CViewerProcess::libraryFiles() const
{
    return QDir(libraryFolder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

bool CViewerProcess::waitForEvents(const std::function<bool(const QStringList &)> &condition) const
{
    return QTest::qWaitFor([&] { return condition(storedEvents()); }, WaitLimit);
}

void CViewerProcess::onOutput()
{
    while (m_process->canReadLine()) {
        m_printed.append(QString::fromUtf8(m_process->readLine()).chopped(1));
        Q_EMIT lineWasPrinted(m_printed.last());
    }
}
