// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "core/Limits.h"
#include "delivery/DeliveryLimits.h"
#include "store/Database.h"
#include "store/StorePaths.h"

#include <cstddef>
#include <string>

namespace rui {

// What a file holds: none of either when nothing waited, and then there is no file.
struct HandedOver
{
    std::size_t requests = 0;
    std::size_t records = 0;
};

// Writes what waits for delivery to a new file instead of sending it, for a machine without a
// network: the texts of the requests that would be sent, one a line. Afterwards the records count
// as exported. Should marking them fail, they are written or sent again under the same
// identifiers. Throws Failure, and then there is no file unless the text says so: RUI_OPTED_OUT
// while there is no consent, RUI_BUSY while another process sends.
HandedOver handOver(Database &database, const StorePaths &paths, const std::string &file,
                    const Clock &clock, Limits limits, const DeliveryLimits &deliveryLimits);

} // namespace rui
