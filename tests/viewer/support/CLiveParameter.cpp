// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CLiveParameter.h"

#include <QMutexLocker>

using ParameterCollection::CParameterException;

CLiveParameter::~CLiveParameter() = default;

CLiveState CLiveParameter::state() const
{
    const QMutexLocker lock(&m_mutex);
    return m_state;
}

void CLiveParameter::change(const std::function<void(CLiveState &)> &work)
{
    const QMutexLocker lock(&m_mutex);
    work(m_state);
}

void CLiveParameter::hold()
{
    const QMutexLocker lock(&m_mutex);
    m_isHeld = true;
}

void CLiveParameter::release()
{
    const QMutexLocker lock(&m_mutex);
    m_isHeld = false;
    m_released.wakeAll();
}

bool CLiveParameter::isWaitedFor() const
{
    const QMutexLocker lock(&m_mutex);
    return m_waiting > 0;
}

QStringList CLiveParameter::sets() const
{
    const QMutexLocker lock(&m_mutex);
    return m_sets;
}

int CLiveParameter::reads() const
{
    const QMutexLocker lock(&m_mutex);
    return m_reads;
}

bool CLiveParameter::wasUsedIn(const QThread *thread) const
{
    const QMutexLocker lock(&m_mutex);
    return m_threads.contains(thread);
}

// With the mutex locked.
void CLiveParameter::passGate() const
{
    m_threads.insert(QThread::currentThread());
    ++m_waiting;
    while (m_isHeld) {
        m_released.wait(&m_mutex);
    }
    --m_waiting;
}

CLiveState CLiveParameter::ask() const
{
    const QMutexLocker lock(&m_mutex);
    m_threads.insert(QThread::currentThread());
    return m_state;
}

QString CLiveParameter::readText() const
{
    const QMutexLocker lock(&m_mutex);
    passGate();
    ++m_reads;
    if (!m_state.readRefusal.isEmpty()) {
        throw CParameterException(m_state.readRefusal);
    }
    return m_state.text;
}

void CLiveParameter::noteSet(const QString &text)
{
    const QMutexLocker lock(&m_mutex);
    passGate();
    m_sets.append(text);
    if (!m_state.setRefusal.isEmpty()) {
        throw CParameterException(m_state.setRefusal);
    }
}
