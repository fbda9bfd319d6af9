// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Clock.h"

#include "core/Random.h"

#include <chrono>
#include <ctime>
#include <fstream>

namespace rui {

namespace {

std::string readBoot()
{
    std::ifstream file("/proc/sys/kernel/random/boot_id");
    std::string id;
    return std::getline(file, id) && !id.empty() ? id : randomUuid();
}

class SystemClock : public Clock
{
public:
    std::int64_t now() const override
    {
        const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::nanoseconds>(sinceEpoch).count();
    }

    std::int64_t sinceBoot() const override
    {
        timespec time{};
        clock_gettime(CLOCK_BOOTTIME, &time);
        return time.tv_sec * nanosecondsPerSecond + time.tv_nsec;
    }

    std::string boot() const override
    {
        static const std::string &id = *new std::string(readBoot()); // as the clock itself
        return id;
    }
};

} // namespace

const Clock &systemClock()
{
    // Never destroyed: a worker that another thread started may still run while the process ends.
    static const Clock &clock = *new SystemClock;
    return clock;
}

} // namespace rui
