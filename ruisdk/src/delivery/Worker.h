// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "delivery/WorkerOptions.h"

#include <memory>
#include <thread>

namespace rui {

class WorkerLoop;

// The thread of a session: moves the journal into the database, drops what is too old, and
// delivers. Has a connection of its own, so that no caller ever waits for it. Any thread.
class Worker
{
public:
    explicit Worker(WorkerOptions options);
    // Stops at once if it was not stopped.
    ~Worker();
    Worker(const Worker &) = delete;
    Worker &operator=(const Worker &) = delete;

    // There is something to do; urgent: the journal has grown large. Costs next to nothing when
    // the worker knows already.
    void notify(bool urgent);

    // Ends the request that is under way, and lets no other one begin.
    void endDelivery();

    // Ends the thread within the limit, whatever the server does. With deliver, it first sends
    // what waits, as far as that is possible in time.
    void stop(bool deliver, std::chrono::milliseconds limit);

private:
    // Shared with the thread, which is left to itself should the kernel hold it in a call.
    std::shared_ptr<WorkerLoop> m_loop;
    std::thread m_thread;
};

} // namespace rui
