// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CDeviceAccess.h"

#include "scripting/CScriptWait.h"

#include <atomic>
#include <exception>
#include <memory>
#include <utility>

#include <QThreadPool>

namespace Scripting {

namespace {

/// A device that is gone is noticed long before; a device that is there answers at once.
constexpr std::chrono::seconds longestAccess(30);

struct Outcome
{
    QString failure;
    std::atomic<bool> isKnown{false};
};

QString failureOf(const std::function<void()> &work)
{
    try {
        work();
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what());
    }
    return {};
}

} // namespace

CDeviceAccess::CDeviceAccess(CScriptWait &wait)
    : m_wait(wait)
{}

QString CDeviceAccess::run(std::function<void()> work) const
{
    const auto outcome = std::make_shared<Outcome>();
    QThreadPool::globalInstance()->start([outcome, work = std::move(work)]() mutable {
        outcome->failure = failureOf(work);
        work = nullptr; // what it holds is let go before the script goes on
        outcome->isKnown = true;
        CScriptWait::wake();
    });
    const auto result = m_wait.until([&] { return outcome->isKnown.load(); }, longestAccess);
    if (result == CScriptWait::Result::TimedOut) {
        return QStringLiteral("the device does not answer");
    }
    return outcome->isKnown ? outcome->failure : QString();
}

} // namespace Scripting
