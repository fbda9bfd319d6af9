// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Purge.h"

#include "store/Losses.h"

namespace rui {

Purged purge(Database &database)
{
    database.execute("PRAGMA secure_delete = ON");
    Purged purged;
    {
        Transaction transaction(database);
        purged.pending = database.integer("SELECT count(*) FROM event");
        purged.delivered = database.integer("SELECT count(*) FROM delivered");
        if (purged.pending > 0) {
            addLoss(database, LossReason::Purged, purged.pending);
        }
        database.execute(
            "UPDATE state SET floor = max(floor, coalesce((SELECT max(seq) FROM event), 0));"
            "DELETE FROM event; DELETE FROM delivered");
        transaction.commit();
    }
    sqlite3_wal_checkpoint_v2(database.handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr,
                              nullptr);
    return purged;
}

} // namespace rui
