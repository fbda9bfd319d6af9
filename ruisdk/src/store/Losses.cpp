// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Losses.h"

namespace rui {

const char *lossReasonName(LossReason reason)
{
    switch (reason) {
    case LossReason::MaxEvents:
        return "maxEvents";
    case LossReason::MaxBytes:
        return "maxBytes";
    case LossReason::MaxAge:
        return "maxAge";
    case LossReason::EventSize:
        return "eventSize";
    case LossReason::Storage:
        return "storage";
    case LossReason::Damaged:
        return "damagedDatabase";
    case LossReason::Rejected:
        return "rejected";
    case LossReason::RequestSize:
        return "requestSize";
    case LossReason::PartlyRejected:
        return "partlyRejected";
    case LossReason::Purged:
        return "purged";
    }
    return "unknown";
}

void addLoss(Database &database, LossReason reason, std::int64_t count)
{
    Statement add = database.prepare("INSERT INTO loss(reason, lost, told) VALUES(?1, ?2, 0)"
                                     " ON CONFLICT(reason) DO UPDATE SET lost = lost + ?2");
    add.bind(1, lossReasonName(reason)).bind(2, count).run();
}

} // namespace rui
