// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptWait.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace Scripting {

namespace {

std::atomic<unsigned> wakeCount{0};

// Null when the application ends.
QAbstractEventDispatcher *dispatcherOfApplication()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application ? QAbstractEventDispatcher::instance(application->thread()) : nullptr;
}

} // namespace

CScriptWait::CScriptWait(std::chrono::milliseconds lookAgainAfter)
    : m_lookAgainAfter(lookAgainAfter)
{}

CScriptWait::Result CScriptWait::until(const std::function<bool()> &condition,
                                       std::chrono::milliseconds limit)
{
    QElapsedTimer elapsed;
    elapsed.start();
    QEventLoop loop;
    QTimer timer;
    unsigned wakesSeen = wakeCount;
    bool isMet = condition();
    const auto look = [&] {
        isMet = condition();
        if (isMet || m_isStopped || elapsed.hasExpired(limit.count())) {
            loop.quit();
        }
    };
    QObject::connect(&timer, &QTimer::timeout, &loop, look);
    QObject::connect(dispatcherOfApplication(), &QAbstractEventDispatcher::awake, &loop, [&] {
        if (wakesSeen != wakeCount) {
            wakesSeen = wakeCount;
            look();
        }
    });
    if (!isMet && !m_isStopped) {
        timer.start(m_lookAgainAfter);
        loop.exec();
    }
    if (isMet) {
        return Result::Met;
    }
    return m_isStopped ? Result::Stopped : Result::TimedOut;
}

void CScriptWait::wake()
{
    ++wakeCount;
    if (QAbstractEventDispatcher *dispatcher = dispatcherOfApplication()) {
        dispatcher->wakeUp();
    }
}

void CScriptWait::stop()
{
    m_isStopped = true;
}

bool CScriptWait::isStopped() const
{
    return m_isStopped;
}

} // namespace Scripting
