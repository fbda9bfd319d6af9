// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Purge.h"

#include "store/Erasure.h"
#include "store/Losses.h"

namespace rui {

Purged purge(Database &database)
{
    Purged purged;
    {
        Transaction transaction(database);
        purged.pending = database.integer("SELECT count(*) FROM event");
        purged.delivered = database.integer("SELECT count(*) FROM delivered");
        if (purged.pending > 0) {
            addLoss(database, LossReason::Purged, purged.pending);
        }
        deleteAllEvents(database);
        requestErasure(database);
        transaction.commit();
    }
    purged.isErased = finishErasure(database);
    return purged;
}

} // namespace rui
