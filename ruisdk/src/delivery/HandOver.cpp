// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/HandOver.h"

#include "core/Failure.h"
#include "delivery/NewFile.h"
#include "delivery/Outbox.h"
#include "store/FileLock.h"

#include <optional>
#include <vector>

namespace rui {

namespace {

// The consent under which events may leave this machine now.
std::int64_t requireConsent(const Database &database, const StorePaths &paths)
{
    Statement query = database.prepare("SELECT epoch FROM state WHERE client IS NOT NULL");
    if (!query.step()) {
        throw Failure(RUI_OPTED_OUT, paths.directory()
                                         + ": nobody has consented, or consent was withdrawn;"
                                           " nothing is handed over");
    }
    return query.integer(0);
}

void requireOnlySender(FileLock &lock)
{
    if (!lock.tryLock()) {
        throw Failure(RUI_BUSY, "another process is sending, try again later");
    }
}

// A withdrawal comes either before, and nothing is handed over, or afterwards.
void publish(NewFile &file, Database &database, const StorePaths &paths, Outbox &outbox,
             std::int64_t consent)
{
    file.complete();
    Transaction transaction(database);
    if (requireConsent(database, paths) != consent) {
        throw Failure(RUI_OPTED_OUT, "consent was withdrawn meanwhile; nothing is handed over");
    }
    outbox.requireConsent();
    file.publish();
}

// Without the texts: they stand in the file.
std::vector<Batch> writeAll(std::optional<NewFile> &out, const std::string &file, Outbox &outbox,
                            const Clock &clock, const DeliveryLimits &limits)
{
    std::vector<Batch> batches;
    std::int64_t last = 0;
    while (true) {
        Batch batch = outbox.next(limits.batchRecords, limits.batchBytes, clock.now(), last);
        if (batch.keys.empty()) {
            return batches;
        }
        if (!out) {
            out.emplace(file);
        }
        out->write(batch.payload + "\n");
        last = batch.keys.back().seq;
        batch.payload = {};
        batches.push_back(std::move(batch));
    }
}

void mark(const std::vector<Batch> &batches, const std::string &file, Outbox &outbox,
          const Clock &clock)
{
    try {
        for (const Batch &batch : batches) {
            outbox.settleExported(batch, clock.now());
        }
    } catch (const Failure &failure) {
        throw Failure(failure.result(), std::string(failure.what()) + "; " + file
                                            + " is complete, but what it holds will be handed over"
                                              " or sent once more");
    }
}

} // namespace

HandedOver handOver(Database &database, const StorePaths &paths, const std::string &file,
                    const Clock &clock, Limits limits, const DeliveryLimits &deliveryLimits)
{
    FileLock sending(paths.senderLock());
    requireOnlySender(sending);
    const std::int64_t consent = requireConsent(database, paths);
    Outbox outbox(database, limits);
    std::optional<NewFile> out;
    const std::vector<Batch> batches = writeAll(out, file, outbox, clock, deliveryLimits);
    HandedOver result;
    if (out) {
        publish(*out, database, paths, outbox, consent);
        mark(batches, file, outbox, clock);
    }
    result.requests = batches.size();
    for (const Batch &batch : batches) {
        result.records += batch.keys.size();
    }
    return result;
}

} // namespace rui
