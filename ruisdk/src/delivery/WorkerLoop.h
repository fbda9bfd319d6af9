// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "delivery/Sender.h"
#include "delivery/WorkerOptions.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>

namespace rui {

// What runs in a worker's thread. Every function but run() may be called by any thread.
class WorkerLoop
{
public:
    explicit WorkerLoop(WorkerOptions options);

    // Returns after requestStop() or cancel(). Throws nothing: what fails is tried again later.
    void run() noexcept;

    // urgent: the journal has grown large; the worker does not wait for more to come.
    void notify(bool urgent);
    void requestStop(bool deliver, std::chrono::milliseconds limit);
    // Ends a request, and every later one at once.
    void endDelivery();
    // The same, and every waiting for a lock.
    void cancel();
    // False when the time was over first.
    bool waitUntilDone(std::chrono::milliseconds limit);

private:
    struct Work;

    void runRounds();
    void sayFailure(const std::exception &error);
    bool mendAtOnce();
    bool rest();
    void round(Work &work);
    Step deliver(Work &work);
    void finish(Work &work);
    void shrink(Database &database);
    std::chrono::milliseconds untilDue(std::int64_t due) const;
    // False when the worker is to end.
    bool sleep();
    // False when the time is longer than a stop may take, or was cut short.
    bool sleepDuringStop(std::chrono::milliseconds time);

    const WorkerOptions m_options;
    std::shared_ptr<BusyLimit> m_busyLimit;
    SenderMemory m_senderMemory;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_done;
    std::atomic<bool> m_notified{false};
    std::atomic<bool> m_urgent{false};
    std::atomic<bool> m_cancelled{false};
    std::atomic<bool> m_deliveryEnded{false};
    bool m_stop = false;
    bool m_deliverAtStop = false;
    std::chrono::milliseconds m_stopLimit{0};
    bool m_isDone = false;
    // Touched by the worker's thread alone.
    bool m_isDamaged = false;
    int m_mendings = 0;
    std::chrono::milliseconds m_sleepTime{0};
    std::int64_t m_nextExpiry = 0;
};

} // namespace rui
