// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "delivery/Backoff.h"
#include "delivery/Outbox.h"
#include "delivery/Transport.h"
#include "store/FileLock.h"

#include <optional>

namespace rui {

// What a step has done.
struct Step
{
    enum class Kind {
        Idle,       // nothing waits for delivery
        NotDue,     // it is too early for the next try, which is due at `due`
        OtherSends, // another process is sending
        NoLock,     // it cannot be told whether another process is sending; tried again at `due`
        Progress, // a request was answered: records were delivered or dropped, or smaller requests
                  // are to follow
        Failed    // a request is to be repeated at `due`, or was refused and its records are kept
    };

    Kind kind = Kind::Idle;
    std::int64_t due = 0; // nanoseconds since 1970
    // What the server or the network said, in one line. Empty for a request that was ended here.
    std::string reason;
    std::size_t records = 0;
};

// What a sender knows that its database could not be told, because a disk is full for example.
// Belongs to whoever opens the database again, for the next sender.
struct SenderMemory
{
    struct Delivered
    {
        Batch batch;
        std::int64_t rejected = 0;
    };

    // Arrived, but still stands in the database as waiting. Must not be sent again.
    std::optional<Delivered> unsettled;
    Schedule schedule;
};

// Delivers what waits in a directory, a request a step. Used by one thread. Throws Failure when the
// database cannot be used.
//
// A record that the server refuses alone is dropped once the server has taken another one after it:
// until then it may be the server that is wrong, and not the record.
class Sender
{
public:
    Sender(Database &database, std::string lockPath, Transport &transport, const Clock &clock,
           Limits limits, DeliveryLimits deliveryLimits, Jitter jitter, SenderMemory &memory);

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
    // A record that was refused alone.
    struct Suspect
    {
        Batch batch;
        LossReason loss;
        std::string reason;
    };

    Step tryNow(Refused refused);
    Step work(Refused refused);
    Step send(Refused refused);
    Step apply(Batch batch, const Response &response, Refused refused);
    Step settle(Refused refused, const std::string &reason);
    Step retry(const Response &response, Refused refused);
    Step holdBack(std::string reason, Refused refused);
    Step split(const Batch &batch, const Response &response);
    Step suspect(Batch batch, const Response &response, LossReason loss, Refused refused);
    Step waitFor(std::chrono::nanoseconds time, const std::string &reason);
    std::size_t dropSuspects();
    void postpone() noexcept;
    std::int64_t lastSuspect() const;
    std::int64_t failuresSoFar() const;
    std::int64_t dueTime() const;

    const std::string m_lockPath;
    std::optional<FileLock> m_lock;
    Transport &m_transport;
    const Clock &m_clock;
    const DeliveryLimits m_limits;
    const Jitter m_jitter;
    SenderMemory &m_memory;
    Outbox m_outbox;
    std::size_t m_batchRecords;
    // The oldest records that wait, in their order.
    std::vector<Suspect> m_suspects;
    std::size_t m_refusalsInARow = 0;
};

} // namespace rui
