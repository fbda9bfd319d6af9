// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// An analytics library that takes everything and does nothing, so that only the way to it is
// measured.

#include <ruiSDK.h>

ruiInstance ruiCreateInstance(int32_t)
{
    static int instance;
    return reinterpret_cast<ruiInstance>(&instance);
}

int32_t ruiCreateConfig(ruiInstance, const char *, const char *, const char *, const char *,
                        int32_t, const char *, uint8_t, uint8_t)
{
    return 0;
}

int32_t ruiSetProductData(ruiInstance, const char *, const char *, const char *, const char *)
{
    return 0;
}

int32_t ruiStartSDK(ruiInstance)
{
    return 0;
}

int32_t ruiStopSDK(ruiInstance, int32_t)
{
    return 0;
}

int32_t ruiOptOut(ruiInstance)
{
    return 0;
}

int32_t ruiTrackEvent(ruiInstance, const char *, const char *, const char *)
{
    return 0;
}

int32_t ruiTrackEventText(ruiInstance, const char *, const char *, const char *, const char *)
{
    return 0;
}

int32_t ruiDestroyInstance(ruiInstance)
{
    return 0;
}
