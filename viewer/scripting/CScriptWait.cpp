// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptWait.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace Scripting {

namespace {

// Short enough not to be felt, long enough not to load the machine: a condition may depend on
// another thread, which tells nobody.
constexpr std::chrono::milliseconds lookAgainAfter(5);

} // namespace

CScriptWait::Result CScriptWait::until(const std::function<bool()> &condition,
                                       std::chrono::milliseconds limit)
{
    QElapsedTimer elapsed;
    elapsed.start();
    QEventLoop loop;
    QTimer timer;
    bool isMet = condition();
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        isMet = condition();
        if (isMet || m_isStopped || elapsed.hasExpired(limit.count())) {
            loop.quit();
        }
    });
    if (!isMet && !m_isStopped) {
        timer.start(lookAgainAfter);
        loop.exec();
    }
    if (isMet) {
        return Result::Met;
    }
    return m_isStopped ? Result::Stopped : Result::TimedOut;
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
