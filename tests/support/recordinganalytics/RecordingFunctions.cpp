// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The functions of the analytics library's header, recorded.

#include "RecordingAnalytics.h"

#include <ruiSDK.h>

namespace {

QString instanceText(ruiInstance instance)
{
    return instance ? QStringLiteral("#%1").arg(reinterpret_cast<std::uintptr_t>(instance))
                    : QStringLiteral("NULL");
}

QString argumentText(const char *text)
{
    return text ? QString::fromUtf8(text) : QStringLiteral("NULL");
}

std::int32_t record(const char *function, const QStringList &arguments)
{
    return RecordingAnalytics::instance().record(function, arguments);
}

} // namespace

ruiInstance ruiCreateInstance(int32_t flag)
{
    return static_cast<ruiInstance>(RecordingAnalytics::instance().createInstance(flag));
}

int32_t ruiCreateConfig(ruiInstance instance, const char *configDirectory, const char *productId,
                        const char *applicationName, const char *serverHost, int32_t protocol,
                        const char *encryptionKey, uint8_t flagA, uint8_t flagB)
{
    return record("ruiCreateConfig",
                  {instanceText(instance), argumentText(configDirectory), argumentText(productId),
                   argumentText(applicationName), argumentText(serverHost),
                   QString::number(protocol), argumentText(encryptionKey), QString::number(flagA),
                   QString::number(flagB)});
}

int32_t ruiSetProductData(ruiInstance instance, const char *edition, const char *language,
                          const char *version, const char *buildNumber)
{
    return record("ruiSetProductData",
                  {instanceText(instance), argumentText(edition), argumentText(language),
                   argumentText(version), argumentText(buildNumber)});
}

int32_t ruiStartSDK(ruiInstance instance)
{
    return record("ruiStartSDK", {instanceText(instance)});
}

int32_t ruiStopSDK(ruiInstance instance, int32_t flag)
{
    return record("ruiStopSDK", {instanceText(instance), QString::number(flag)});
}

int32_t ruiOptOut(ruiInstance instance)
{
    return record("ruiOptOut", {instanceText(instance)});
}

int32_t ruiTrackEvent(ruiInstance instance, const char *category, const char *name,
                      const char *sessionId)
{
    return record("ruiTrackEvent", {instanceText(instance), argumentText(category),
                                    argumentText(name), argumentText(sessionId)});
}

int32_t ruiTrackEventText(ruiInstance instance, const char *category, const char *name,
                          const char *text, const char *sessionId)
{
    return record("ruiTrackEventText",
                  {instanceText(instance), argumentText(category), argumentText(name),
                   argumentText(text), argumentText(sessionId)});
}

int32_t ruiDestroyInstance(ruiInstance instance)
{
    return record("ruiDestroyInstance", {instanceText(instance)});
}
