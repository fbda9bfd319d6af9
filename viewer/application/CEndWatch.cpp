// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CEndWatch.h"

#include "application/EndQuestion.h"

#include <pluginsystem/CPluginManager.h>
#include <poll.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QLoggingCategory>

namespace Application {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.application", QtInfoMsg)

constexpr int endedByForce = 1;

QString text(const char *source)
{
    return QCoreApplication::translate("Application::EndQuestion", source);
}

bool tell(const EndStep &step)
{
    qCWarning(log).noquote().nospace()
        << step.line << "; the third signal (Ctrl-C) ends the viewer without it";
    return !step.question.isEmpty() && isEndWanted(step.question);
}

// What hangs may hold the lock of a stream, or be the reader of this one.
void end(const EndStep &step)
{
    const QByteArray line = step.line.toUtf8() + "; ended without waiting for it\n";
    pollfd error{STDERR_FILENO, POLLOUT, 0};
    if (poll(&error, 1, 0) == 1 && (error.revents & POLLOUT) != 0) {
        static_cast<void>(!::write(STDERR_FILENO, line.constData(), std::size_t(line.size())));
    }
    ::_exit(endedByForce);
}

// Where nobody sees the windows, a question would never be answered.
bool canBeSeen()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

CEndWatch::CEndWatch(PluginSystem::CPluginManager &plugins, bool hasWindows)
    : m_plugins(plugins)
    , m_hasWindows(hasWindows && canBeSeen())
    , m_guard(tell, end)
{
    m_plugins.setEndListener(
        [this](const auto &plugin, const char *operation) { expect(plugin, operation); });
    rest();
}

CEndWatch::~CEndWatch()
{
    m_plugins.setEndListener([](const auto &, const char *) {});
}

void CEndWatch::rest()
{
    m_guard.rest(step(QStringLiteral("the viewer heeds nothing"),
                      text(QT_TRANSLATE_NOOP("Application::EndQuestion", "The viewer itself"))));
}

void CEndWatch::restWhile(const QString &script)
{
    m_guard.rest(
        step(QStringLiteral("script %1 does not end").arg(script),
             text(QT_TRANSLATE_NOOP("Application::EndQuestion", "The script %1")).arg(script)));
}

void CEndWatch::expectCameras()
{
    m_guard.expect(
        step(QStringLiteral("the cameras are not closed"),
             text(QT_TRANSLATE_NOOP("Application::EndQuestion", "Closing the cameras"))));
}

void CEndWatch::expectRest()
{
    m_guard.expect(step(QStringLiteral("the viewer itself does not end"),
                        text(QT_TRANSLATE_NOOP("Application::EndQuestion", "The viewer itself"))));
}

CEndGuard &CEndWatch::guard()
{
    return m_guard;
}

void CEndWatch::expect(const PluginSystem::CHostedPlugin &plugin, const char *operation)
{
    const QString name = plugin.spec().name();
    m_guard.expect(step(
        QStringLiteral("plug-in \"%1\" does not end (%2)").arg(name, QLatin1String(operation)),
        text(QT_TRANSLATE_NOOP("Application::EndQuestion", "The plug-in \"%1\"")).arg(name), name));
}

// What a plug-in keeps at its end is lost with one that hangs, and with those that come later.
EndStep CEndWatch::step(const QString &line, const QString &shown, const QString &besides) const
{
    QStringList others = m_plugins.librariesAtWork();
    others.removeAll(besides);
    const QString unsaved = others.join(QStringLiteral(", "));
    const QString saved =
        unsaved.isEmpty()
            ? QStringLiteral("everything else is saved")
            : QStringLiteral("not saved yet is what others keep at the end (%1)").arg(unsaved);
    return {QStringLiteral("%1; %2").arg(line, saved),
            m_hasWindows ? endQuestion(shown, unsaved) : QStringList()};
}

} // namespace Application
