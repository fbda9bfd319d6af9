// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Commands.h"
#include "delivery/HandOver.h"
#include "store/Policy.h"
#include "store/StoreOpening.h"

namespace rui::tool {

void handOverTo(const Options &options, std::ostream &out)
{
    const StorePaths paths(options.directory);
    const Limits limits;
    OpeningOptions opening;
    opening.create = false;
    Database database =
        openStore(paths, opening, std::make_shared<BusyLimit>(limits.callBusyLimit));
    requireDelivery(database);
    const HandedOver done = handOver(database, paths, options.output, systemClock(), limits, {});
    if (done.records == 0) {
        out << "nothing waits; no file was written\n";
    } else {
        out << "handed over " << done.records << " records in " << done.requests
            << " requests: " << options.output << '\n';
    }
}

} // namespace rui::tool
