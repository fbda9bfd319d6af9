// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/ApiCall.h"
#include "core/Arguments.h"

#include <ruiSDK.h>

namespace {

using namespace rui;

std::string directoryArgument(const char *directory)
{
    const std::string_view path = textArgument(directory);
    if (path.empty()) {
        throw Failure(RUI_BAD_ARGUMENT, "the configuration directory is empty");
    }
    return std::string(path);
}

void requireSupported(int32_t protocol, const char *encryptionKey)
{
    if (!textArgument(encryptionKey).empty()) {
        throw Failure(RUI_UNSUPPORTED, "encryption on disk");
    }
    if (protocol != RUI_PROTOCOL_OTLP_HTTP) {
        throw Failure(RUI_UNSUPPORTED, "protocol " + std::to_string(protocol));
    }
}

} // namespace

ruiInstance ruiCreateInstance(int32_t flag)
{
    try {
        return flag == 0 && !isInsideHook()
                   ? HandleTable::process().add(std::make_shared<Instance>())
                   : nullptr;
    } catch (...) {
        return nullptr;
    }
}

int32_t ruiCreateConfig(ruiInstance instance, const char *configDirectory, const char *productId,
                        const char *applicationName, const char *serverHost, int32_t protocol,
                        const char *encryptionKey, uint8_t localOnly, uint8_t syncEveryCommit)
{
    return withInstance(instance, [=](Instance &target) {
        Config config;
        config.directory = directoryArgument(configDirectory);
        config.productId = descriptionArgument(productId);
        config.application = descriptionArgument(applicationName);
        const std::string host = descriptionArgument(serverHost);
        const bool stayLocal = flagArgument(localOnly);
        config.syncEveryCommit = flagArgument(syncEveryCommit);
        requireSupported(protocol, encryptionKey);
        if (!host.empty() && !stayLocal) {
            config.server = parseServerAddress(host);
        }
        target.configure(config);
    });
}

int32_t ruiSetProductData(ruiInstance instance, const char *edition, const char *language,
                          const char *version, const char *buildNumber)
{
    return withInstance(instance, [=](Instance &target) {
        target.setProduct(descriptionArgument(edition), descriptionArgument(language),
                          descriptionArgument(version), descriptionArgument(buildNumber));
    });
}

int32_t ruiStartSDK(ruiInstance instance)
{
    return withInstance(instance, [](Instance &target) { target.start(); });
}

int32_t ruiStopSDK(ruiInstance instance, int32_t flag)
{
    return withInstance(instance, [=](Instance &target) { target.stop(!flagArgument(flag)); });
}

int32_t ruiOptOut(ruiInstance instance)
{
    return withInstance(instance, [](Instance &target) { target.optOut(); });
}

int32_t ruiTrackEvent(ruiInstance instance, const char *category, const char *name,
                      const char *sessionId)
{
    return withInstance(instance, [=](Instance &target) {
        target.track({textArgument(category), textArgument(name), textArgument(sessionId), {}});
    });
}

int32_t ruiTrackEventText(ruiInstance instance, const char *category, const char *name,
                          const char *text, const char *sessionId)
{
    return withInstance(instance, [=](Instance &target) {
        target.track({textArgument(category), textArgument(name), textArgument(sessionId),
                      textArgument(text)});
    });
}

int32_t ruiDestroyInstance(ruiInstance instance)
{
    try {
        if (isInsideHook() && HandleTable::process().find(instance)) {
            return RUI_WRONG_STATE;
        }
        const std::shared_ptr<Instance> removed = HandleTable::process().remove(instance);
        if (!removed) {
            return RUI_BAD_HANDLE;
        }
        removed->shutDown();
        return RUI_OK;
    } catch (...) {
        return RUI_INTERNAL;
    }
}
