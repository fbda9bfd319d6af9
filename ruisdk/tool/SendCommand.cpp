// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Commands.h"
#include "core/Failure.h"
#include "delivery/CurlTransport.h"
#include "delivery/Sender.h"
#include "store/Policy.h"
#include "store/Shrinking.h"
#include "store/StoreOpening.h"

namespace rui::tool {

namespace {

[[noreturn]] void failWith(const Options &options, const Sender &sender, const std::string &reason)
{
    throw Failure(RUI_STORAGE, options.server + ": " + reason + "; "
                                   + std::to_string(sender.pending()) + " records are left");
}

void sendAll(const Options &options, Sender &sender, std::ostream &out)
{
    std::size_t sent = 0;
    while (true) {
        const Step step = sender.stepNow();
        if (step.kind == Step::Kind::Idle) {
            break;
        }
        if (step.kind == Step::Kind::OtherSends) {
            failWith(options, sender, "another process is sending, try again later");
        }
        if (step.kind == Step::Kind::Failed || step.kind == Step::Kind::NoLock) {
            failWith(options, sender, step.reason);
        }
        sent += step.records;
        out << "sent " << sent << ", " << sender.pending() << " left"
            << (step.reason.empty() ? "" : " (" + step.reason + ")") << std::endl;
    }
    out << "nothing is left" << std::endl;
}

} // namespace

void sendNow(const Options &options, std::ostream &out)
{
    const StorePaths paths(options.directory);
    const Limits limits;
    OpeningOptions opening;
    opening.create = false;
    Database database =
        openStore(paths, opening, std::make_shared<BusyLimit>(limits.callBusyLimit));
    requireDelivery(database);
    CurlTransport transport(parseServerAddress(options.server), {});
    SenderMemory memory;
    Sender sender(database, paths.senderLock(), transport, systemClock(), limits, {}, randomJitter,
                  memory);
    sendAll(options, sender, out);
    while (shrinkByOneStep(database, limits)) {
    }
}

} // namespace rui::tool
