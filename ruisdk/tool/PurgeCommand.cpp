// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Commands.h"
#include "core/Limits.h"
#include "store/Purge.h"
#include "store/StoreOpening.h"

namespace rui::tool {

void purgeAll(const Options &options, std::ostream &out)
{
    OpeningOptions opening;
    opening.create = false;
    Database database = openStore(StorePaths(options.directory), opening,
                                  std::make_shared<BusyLimit>(Limits().callBusyLimit));
    const Purged purged = purge(database);
    out << "deleted " << purged.pending << " pending and " << purged.delivered
        << " delivered events\n";
    if (!purged.isErased) {
        out << "another program is reading them; they are erased when it has ended and the next"
               " session begins\n";
    }
}

} // namespace rui::tool
