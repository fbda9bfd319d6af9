// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/ApiCall.h"
#include "core/Arguments.h"

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
