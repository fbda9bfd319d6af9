// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

#include <QList>
#include <QMap>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QThread>
#include <QWaitCondition>

/// What one call to the analytics library looked like.
struct RecordedCall
{
    /// "function(argument | argument | ...)". Instances are written as "#1", "#2", ... in the order
    /// of their creation, a null instance or text as "NULL"; texts stand as they are, so an empty
    /// one is nothing between two bars.
    QString text;
    QThread *thread = nullptr;
};

/// Stands in for the analytics library: a program that links it before the real one records every
/// call, with its arguments and its thread, and decides the results. Usable in any thread.
class Q_DECL_EXPORT RecordingAnalytics
{
public:
    static RecordingAnalytics &instance();

    /// Forgets calls, instances, results and what is done during calls.
    void reset();

    /// The result of every later call of \a function, for example "ruiOptOut". 0 unless set.
    void setResult(const QString &function, std::int32_t code);

    /// What every later call of \a function does, in its thread, once it is recorded.
    void setDuring(const QString &function, const std::function<void()> &action);

    /// Whether `ruiCreateInstance` gives an instance. It does unless told otherwise.
    void setCreatesInstances(bool creates);

    QStringList calls() const;

    /// Just the calls made in \a thread.
    QStringList callsIn(const QThread *thread) const;

    /// As `callsIn`, and forgets them.
    QStringList takeCallsIn(const QThread *thread);
    QList<RecordedCall> recorded() const;

    /// Forgets the calls so far, but not the instances.
    QStringList takeCalls();

    /// Waits until at least \a count calls are recorded. @return false after 10 s without them.
    bool waitForCalls(int count) const;

    // For the C functions.
    std::int32_t record(const char *function, const QStringList &arguments);
    void *createInstance(std::int32_t flag);

private:
    RecordingAnalytics() = default;

    mutable QMutex m_mutex;
    mutable QWaitCondition m_called;
    QList<RecordedCall> m_calls;
    QMap<QString, std::int32_t> m_results;
    QMap<QString, std::function<void()>> m_during;
    bool m_createsInstances = true;
    std::uintptr_t m_lastInstance = 0;
};
