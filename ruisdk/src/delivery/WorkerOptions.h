// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "core/Limits.h"
#include "core/Log.h"
#include "delivery/DeliveryLimits.h"
#include "delivery/Transport.h"
#include "store/StoreOpening.h"

#include <chrono>
#include <memory>

namespace rui {

// What a worker works on.
struct WorkerOptions
{
    StorePaths paths{std::string()};
    OpeningOptions opening;
    Limits limits;
    DeliveryLimits delivery;
    const Clock *clock = &systemClock();
    std::shared_ptr<Log> log = std::make_shared<Log>();
    // Null: nothing is delivered.
    std::shared_ptr<Transport> transport;
    // Events of this time travel together.
    std::chrono::milliseconds collectTime{1000};
    // How often the worker looks without being woken: for events of other processes, and for what
    // has become too old.
    std::chrono::milliseconds lookEvery{5000};
};

} // namespace rui
