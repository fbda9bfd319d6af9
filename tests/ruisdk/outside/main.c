/* SPDX-FileCopyrightText: 2026 Ostrand */
/* SPDX-License-Identifier: MIT */
#include <ruiSDK.h>

int main(int argc, char **argv)
{
    ruiInstance instance = ruiCreateInstance(0);
    int32_t result = argc == 2 ? RUI_OK : RUI_BAD_ARGUMENT;
    if (result == RUI_OK) {
        result = ruiCreateConfig(instance, argv[1], "1", "outside", "", RUI_PROTOCOL_OTLP_HTTP, "",
                                 0, 0);
    }
    if (result == RUI_OK) {
        result = ruiSetProductData(instance, "", "", "1.0", "1");
    }
    if (result == RUI_OK) {
        result = ruiStartSDK(instance);
    }
    if (result == RUI_OK) {
        result = ruiTrackEventText(instance, "Outside", "Ran", "text", "");
    }
    ruiDestroyInstance(instance);
    return result;
}
