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

int32_t ruiSetRequestHeader(ruiInstance instance, const char *name, const char *value)
{
    return withInstance(instance, [=](Instance &target) {
        const std::string header = descriptionArgument(name);
        const std::string content(textArgument(value));
        target.setTransport(
            [&](TransportOptions &options) { setHeader(options, header, content); });
    });
}

int32_t ruiSetCaFile(ruiInstance instance, const char *path)
{
    return withInstance(instance, [=](Instance &target) {
        const std::string file(textArgument(path));
        target.setTransport([&](TransportOptions &options) { setCaFile(options, file); });
    });
}

int32_t ruiSetProxy(ruiInstance instance, const char *url)
{
    return withInstance(instance, [=](Instance &target) {
        const std::string proxy = descriptionArgument(url);
        target.setTransport([&](TransportOptions &options) { setProxy(options, proxy); });
    });
}

int32_t ruiSetLogHook(ruiInstance instance, ruiLogHook hook, void *context)
{
    return withInstance(instance, [=](Instance &target) { target.setLogHook(hook, context); });
}

int32_t ruiPauseDelivery(ruiInstance instance)
{
    return withInstance(instance, [](Instance &target) { target.setPaused(true); });
}

int32_t ruiResumeDelivery(ruiInstance instance)
{
    return withInstance(instance, [](Instance &target) { target.setPaused(false); });
}

int32_t ruiIsDeliveryPaused(ruiInstance instance, int32_t *paused)
{
    return withInstance(instance, [=](Instance &target) {
        if (paused == nullptr) {
            throw Failure(RUI_BAD_ARGUMENT, "the place for the answer is null");
        }
        *paused = target.isPaused() ? 1 : 0;
    });
}

int32_t ruiFlush(ruiInstance instance, int32_t milliseconds)
{
    return withInstance(instance, [=](Instance &target) {
        if (milliseconds < 0) {
            throw Failure(RUI_BAD_ARGUMENT, "a time is negative");
        }
        target.flush(std::chrono::milliseconds(milliseconds));
    });
}
