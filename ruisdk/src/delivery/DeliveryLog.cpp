// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/DeliveryLog.h"

#include <algorithm>

namespace rui {

namespace {

std::string waitText(std::int64_t due, std::int64_t now)
{
    const std::int64_t seconds = std::max<std::int64_t>(0, due - now) / nanosecondsPerSecond;
    return "; the next try is due in " + std::to_string(seconds) + " s";
}

void logProgress(Log &log, const Step &step)
{
    const std::string delivered = "delivered " + std::to_string(step.records);
    if (step.records == 0) {
        log.say(RUI_LOG_WARNING, "a request was refused: " + step.reason);
    } else if (step.reason.empty()) {
        log.say(RUI_LOG_INFO, delivered);
    } else {
        log.say(RUI_LOG_WARNING, delivered + "; " + step.reason);
    }
}

} // namespace

void logStep(Log &log, const Step &step, std::int64_t now)
{
    if (step.kind == Step::Kind::Failed && step.reason.empty()) {
        return;
    }
    switch (step.kind) {
    case Step::Kind::Progress:
        logProgress(log, step);
        break;
    case Step::Kind::Failed:
        log.say(RUI_LOG_WARNING, "delivery failed: " + step.reason + waitText(step.due, now));
        break;
    case Step::Kind::NoLock:
        log.say(RUI_LOG_ERROR, "delivery failed: " + step.reason + waitText(step.due, now));
        break;
    case Step::Kind::Idle:
    case Step::Kind::NotDue:
    case Step::Kind::OtherSends:
        break;
    }
}

} // namespace rui
