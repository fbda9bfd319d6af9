// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptRunner.h"

#include "scripting/CMemoryWatch.h"
#include "scripting/CScriptCameras.h"
#include "scripting/CScriptConsent.h"
#include "scripting/CScriptFeatures.h"
#include "scripting/CScriptGrab.h"
#include "scripting/CScriptHelp.h"
#include "scripting/CScriptHost.h"
#include "scripting/CScriptLanguage.h"
#include "scripting/CScriptMenu.h"
#include "scripting/CScriptPlugins.h"
#include "scripting/CScriptSettings.h"
#include "scripting/CScriptWelcome.h"
#include "scripting/CScriptWindows.h"
#include "scripting/ScriptError.h"
#include "scripting/ScriptFunctions.h"

#include <pluginsystem/CPluginManager.h>

#include <cstdio>
#include <exception>
#include <utility>

#include <QFile>

// The resource is in a static library, so nothing else asks the linker for it.
static void initResource()
{
    Q_INIT_RESOURCE(scripting);
}

namespace Scripting {

namespace {

// Far above what a script needs that saves images or counts events, far below what hurts.
constexpr qint64 defaultMemoryLimit = qint64(2) << 30;

void printToStandardOutput(const QString &line)
{
    std::fputs((line + QLatin1Char('\n')).toUtf8().constData(), stdout);
    std::fflush(stdout);
}

QString contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

CScriptRunner::CScriptRunner(PluginSystem::CPluginManager &plugins, QObject *parent)
    : QObject(parent)
    , m_plugins(plugins)
    , m_printer(printToStandardOutput)
    , m_memoryLimit(defaultMemoryLimit)
{}

CScriptRunner::~CScriptRunner() = default;

bool CScriptRunner::isRunning() const
{
    return m_isRunning;
}

void CScriptRunner::setPrinter(Printer printer)
{
    m_printer = std::move(printer);
}

void CScriptRunner::setMemoryLimit(qint64 limit)
{
    m_memoryLimit = limit;
}

void CScriptRunner::setOverrunHandler(std::function<void()> handler)
{
    m_overrunHandler = std::move(handler);
}

QString CScriptRunner::run(const QString &file)
{
    m_isRunning = true;
    const CMemoryWatch watch(m_memoryLimit, [this] {
        end(Ending::OutOfMemory);
        m_overrunHandler();
    });
    QString failure;
    try {
        failure = evaluate(file);
    } catch (const std::exception &exception) {
        failure = QStringLiteral("%1: the engine gave up (%2): let the script take less memory")
                      .arg(file, QString::fromUtf8(exception.what()));
    }
    m_isRunning = false;
    return failure;
}

QString CScriptRunner::evaluate(const QString &file)
{
    evaluateResource(":/scripting/arguments.js");
    addHost();
    evaluateResource(":/scripting/prelude.js");
    addObjects();
    // A script may throw what is no Error, which then looks like its result: only a script that
    // comes to its last line has not thrown.
    const QString program = contentOf(file) + QStringLiteral("\n;__nerix.endReached();");
    const QJSValue result = m_engine.evaluate(program, file);
    return failureOf(file, result);
}

void CScriptRunner::quit()
{
    end(Ending::Quit);
}

void CScriptRunner::interrupt()
{
    end(Ending::Interrupted);
}

void CScriptRunner::addHost()
{
    auto *host = new CScriptHost(m_wait, m_printer, this);
    connect(host, &CScriptHost::quitRequested, this, &CScriptRunner::quit);
    connect(host, &CScriptHost::lastLineReached, this, [this] { m_hasReachedEnd = true; });
    m_engine.globalObject().setProperty(QStringLiteral("__nerix"), m_engine.newQObject(host));
}

void CScriptRunner::addObjects()
{
    const Core::Plugin::IPluginInitializer &services = m_plugins.registry();
    addObject("cameras", new CScriptCameras(services, m_wait, this));
    addObject("consent", new CScriptConsent(services, this));
    addObject("features", new CScriptFeatures(services, m_wait, this));
    addObject("grab", new CScriptGrab(services, m_wait, this));
    addObject("help", new CScriptHelp(services, this));
    addObject("language", new CScriptLanguage(services, this));
    addObject("menu", new CScriptMenu(services, this));
    addObject("plugins", new CScriptPlugins(m_plugins, this));
    addObject("settings", new CScriptSettings(this));
    addObject("welcome", new CScriptWelcome(services, this));
    addObject("windows", new CScriptWindows(services, this));
}

void CScriptRunner::addObject(const char *name, QObject *object)
{
    QJSValue bring = m_engine.globalObject().property(QStringLiteral("__brought"));
    const QString text = QString::fromLatin1(name);
    const QJSValue functions = m_engine.toScriptValue(functionsOf(*object->metaObject()));
    const QJSValue brought = bring.call({text, m_engine.newQObject(object), functions});
    Q_ASSERT_X(!brought.isError() || m_ending != Ending::None, name,
               qPrintable(brought.toString()));
    m_engine.globalObject().setProperty(text, brought);
}

void CScriptRunner::evaluateResource(const char *fileName)
{
    initResource();
    const QString file = QString::fromLatin1(fileName);
    const QJSValue result = m_engine.evaluate(contentOf(file), file);
    Q_ASSERT_X(!result.isError() || m_ending != Ending::None, fileName,
               qPrintable(result.toString()));
}

// The first ending counts: a script that was told to quit does not fail by a later signal.
void CScriptRunner::end(Ending ending)
{
    Ending none = Ending::None;
    m_ending.compare_exchange_strong(none, ending);
    m_wait.stop();
    m_engine.setInterrupted(true);
}

QString CScriptRunner::failureOf(const QString &file, const QJSValue &result) const
{
    if (m_ending == Ending::Quit) {
        return {};
    }
    if (m_ending == Ending::Interrupted) {
        return QStringLiteral("%1: ended by a signal").arg(file);
    }
    // The engine does not tell where it was.
    if (m_ending == Ending::OutOfMemory) {
        return QStringLiteral(
                   "%1: the script has taken more than %2 MiB of memory: let it keep less")
            .arg(file)
            .arg(m_memoryLimit >> 20);
    }
    return m_hasReachedEnd ? QString() : describeError(file, result);
}

} // namespace Scripting
