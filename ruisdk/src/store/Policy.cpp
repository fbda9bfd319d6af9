// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Policy.h"

#include "core/Failure.h"
#include "store/PolicyText.h"

#include <cstdlib>

namespace rui {

namespace {

// Set to anything but what means no.
bool isDoNotTrackSet()
{
    const char *value = std::getenv("DO_NOT_TRACK");
    const std::string_view text = value == nullptr ? "" : value;
    return !text.empty() && text != "0" && text != "false";
}

void forbidAll(Policy &policy)
{
    policy.forbidsStoring = true;
    policy.forbidsDelivery = true;
}

} // namespace

Policy readPolicyFile(const std::string &path, const std::string &productId)
{
    Policy policy;
    try {
        if (const auto text = readPolicyText(path)) {
            const Forbidden forbidden = parsePolicy(*text, productId);
            policy.forbidsStoring = forbidden.storing;
            policy.forbidsDelivery = forbidden.delivery;
        }
    } catch (const std::exception &error) {
        policy.problem = path + ": " + error.what()
                         + "; nothing is stored or sent until the administrator has mended it";
        forbidAll(policy);
    }
    return policy;
}

Policy readPolicy(const std::string &productId)
{
    Policy policy = readPolicyFile(policyPath(), productId);
    if (isDoNotTrackSet() && !policy.isProhibitedByAdministrator()) {
        policy.isDoNotTrack = true;
        forbidAll(policy);
    }
    return policy;
}

bool isDeliveryForbidden(const Database &database)
{
    Statement products = database.prepare("SELECT DISTINCT product FROM resource");
    while (products.step()) {
        if (readPolicyFile(policyPath(), std::string(products.text(0))).forbidsDelivery) {
            return true;
        }
    }
    return false;
}

bool isDeliveryPaused(const Database &database)
{
    return database.integer("SELECT paused FROM state") != 0;
}

void requireDelivery(const Database &database)
{
    if (isDoNotTrackSet()) {
        throw Failure(RUI_FORBIDDEN,
                      "DO_NOT_TRACK is set in the environment; unset it to hand events over");
    }
    if (isDeliveryForbidden(database)) {
        throw Failure(RUI_FORBIDDEN, std::string(policyPath())
                                         + ": the administrator of this machine has forbidden to"
                                           " hand events over");
    }
}

} // namespace rui
