// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "RecordingAnalytics.h"

#include <algorithm>

#include <QDeadlineTimer>
#include <QMutexLocker>

RecordingAnalytics &RecordingAnalytics::instance()
{
    static RecordingAnalytics analytics;
    return analytics;
}

void RecordingAnalytics::reset()
{
    const QMutexLocker lock(&m_mutex);
    m_calls.clear();
    m_results.clear();
    m_during.clear();
    m_createsInstances = true;
    m_lastInstance = 0;
}

void RecordingAnalytics::setResult(const QString &function, std::int32_t code)
{
    const QMutexLocker lock(&m_mutex);
    m_results.insert(function, code);
}

void RecordingAnalytics::setDuring(const QString &function, const std::function<void()> &action)
{
    const QMutexLocker lock(&m_mutex);
    m_during.insert(function, action);
}

void RecordingAnalytics::setCreatesInstances(bool creates)
{
    const QMutexLocker lock(&m_mutex);
    m_createsInstances = creates;
}

QStringList RecordingAnalytics::calls() const
{
    QStringList texts;
    for (const RecordedCall &call : recorded()) {
        texts.append(call.text);
    }
    return texts;
}

QStringList RecordingAnalytics::callsIn(const QThread *thread) const
{
    QStringList texts;
    const QMutexLocker lock(&m_mutex);
    for (const RecordedCall &call : m_calls) {
        if (call.thread == thread) {
            texts.append(call.text);
        }
    }
    return texts;
}

QStringList RecordingAnalytics::takeCallsIn(const QThread *thread)
{
    const QStringList texts = callsIn(thread);
    const QMutexLocker lock(&m_mutex);
    m_calls.erase(std::remove_if(m_calls.begin(), m_calls.end(),
                                 [&](const RecordedCall &call) { return call.thread == thread; }),
                  m_calls.end());
    return texts;
}

QList<RecordedCall> RecordingAnalytics::recorded() const
{
    const QMutexLocker lock(&m_mutex);
    // Not shared with the list that grows: the caller would let go of it without the lock.
    QList<RecordedCall> calls = m_calls;
    calls.detach();
    return calls;
}

QStringList RecordingAnalytics::takeCalls()
{
    const QStringList texts = calls();
    const QMutexLocker lock(&m_mutex);
    m_calls.clear();
    return texts;
}

bool RecordingAnalytics::waitForCalls(int count) const
{
    const QDeadlineTimer deadline(10000);
    const QMutexLocker lock(&m_mutex);
    while (m_calls.size() < count) {
        if (!m_called.wait(&m_mutex, deadline)) {
            return false;
        }
    }
    return true;
}

std::int32_t RecordingAnalytics::record(const char *function, const QStringList &arguments)
{
    const QString name = QString::fromLatin1(function);
    QMutexLocker lock(&m_mutex);
    m_calls.append({QStringLiteral("%1(%2)").arg(name, arguments.join(QStringLiteral(" | "))),
                    QThread::currentThread()});
    m_called.wakeAll();
    const std::int32_t result = m_results.value(name, 0);
    const std::function<void()> action = m_during.value(name);
    lock.unlock();
    if (action) {
        action();
    }
    return result;
}

void *RecordingAnalytics::createInstance(std::int32_t flag)
{
    record("ruiCreateInstance", {QString::number(flag)});
    const QMutexLocker lock(&m_mutex);
    return m_createsInstances ? reinterpret_cast<void *>(++m_lastInstance) : nullptr;
}
