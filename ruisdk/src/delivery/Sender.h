// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "delivery/Backoff.h"
#include "delivery/Outbox.h"
#include "delivery/Transport.h"
#include "store/FileLock.h"

namespace rui {

// What a step has done.
struct Step
{
    enum class Kind {
        Idle,       // nothing waits for delivery
        NotDue,     // it is too early for the next try, which is due at `due`
        OtherSends, // another process is sending
        Progress,   // a request was answered for good: records were delivered or dropped
        Failed      // a request is to be repeated at `due`, or was refused and its records are kept
    };

    Kind kind = Kind::Idle;
    std::int64_t due = 0; // nanoseconds since 1970
    // What the server or the network said, in one line.
    std::string reason;
    std::size_t records = 0;
};

// Delivers what waits in a directory, a request a step. Used by one thread. Throws Failure.
class Sender
{
public:
    Sender(Database &database, const std::string &lockPath, Transport &transport,
           const Clock &clock, Limits limits, DeliveryLimits deliveryLimits, Jitter jitter);

    // Sends one request if one is due.
    Step step();

    // The same, whatever was scheduled. What the server refuses for good is kept, which fails:
    // somebody tries an address by hand, and a wrong one shall cost nothing.
    Step stepNow();

    // How many records wait.
    std::int64_t pending() const
    {
        return m_outbox.pending();
    }

private:
    enum class Refused { Dropped, Kept };

    Step tryNow(Refused refused);
    Step send(Refused refused);
    Step apply(const Batch &batch, const Response &response, Refused refused);
    Step retry(const Response &response);
    Step split(const Batch &batch);
    Step refuse(const Batch &batch, const Response &response, LossReason reason);
    std::int64_t dueTime() const;

    FileLock m_lock;
    Transport &m_transport;
    const Clock &m_clock;
    const DeliveryLimits m_limits;
    const Jitter m_jitter;
    Outbox m_outbox;
    std::size_t m_batchRecords;
};

} // namespace rui
