// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/ApiCall.h"
#include "core/Arguments.h"
#include "store/Policy.h"

#include <ruiSDK.h>

#include <cstring>

using namespace rui;

const char *ruiVersion(void)
{
    return RUI_VERSION;
}

int32_t ruiGetClientId(ruiInstance instance, char *buffer, int32_t size)
{
    return withInstance(instance, [=](Instance &target) {
        if (buffer == nullptr || size < RUI_CLIENT_ID_SIZE) {
            throw Failure(RUI_BAD_ARGUMENT, "the buffer for the client id is too small");
        }
        const std::string id = target.clientId();
        // The database is a file that anybody may have changed.
        if (id.size() >= RUI_CLIENT_ID_SIZE) {
            throw Failure(RUI_STORAGE, "what stands in the database is no client id");
        }
        std::memcpy(buffer, id.c_str(), id.size() + 1);
    });
}

int32_t ruiGetPolicy(const char *productId, int32_t *policy)
{
    return resultOf([=] {
        const std::string product = descriptionArgument(productId);
        if (policy == nullptr) {
            throw Failure(RUI_BAD_ARGUMENT, "the place for the policy is null");
        }
        const Policy read = readPolicy(product);
        *policy = (read.forbidsStoring ? RUI_POLICY_NO_STORING : 0)
                  | (read.forbidsDelivery ? RUI_POLICY_NO_DELIVERY : 0)
                  | (read.isDoNotTrack ? RUI_POLICY_DO_NOT_TRACK : 0)
                  | (read.problem ? RUI_POLICY_UNREADABLE : 0);
    });
}
