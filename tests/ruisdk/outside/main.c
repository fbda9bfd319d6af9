/* SPDX-FileCopyrightText: 2026 Ostrand */
/* SPDX-License-Identifier: MIT */
#include <ruiSDK.h>

#include <stdio.h>

/* Whether a call went well; says so if it did not. */
static int done(const char *call, int32_t result)
{
    if (result != RUI_OK) {
        fprintf(stderr, "%s: %s\n", call, ruiResultText(result));
    }
    return result == RUI_OK;
}

/* Without a server the events stay in the directory; rui-events shows them. */
static int trackOneEvent(ruiInstance instance, const char *directory)
{
    return done("ruiCreateConfig", ruiCreateConfig(instance, directory, "1", "outside", "",
                                                   RUI_PROTOCOL_OTLP_HTTP, "", 0, 0))
           && done("ruiSetProductData", ruiSetProductData(instance, "", "", "1.0", "1"))
           && done("ruiStartSDK", ruiStartSDK(instance))
           && done("ruiTrackEventText", ruiTrackEventText(instance, "Outside", "Ran", "text", ""))
           && done("ruiStopSDK", ruiStopSDK(instance, 0));
}

int main(int argc, char **argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: outside DIRECTORY\n");
        return 2;
    }
    ruiInstance instance = ruiCreateInstance(0);
    int isTracked = trackOneEvent(instance, argv[1]);
    ruiDestroyInstance(instance);
    return isTracked ? 0 : 1;
}
