/* SPDX-FileCopyrightText: 2026 Ostrand */
/* SPDX-License-Identifier: MIT */

/* A program in C11 that uses every function of the header. Ends with the number of the first
 * call that returned something else than it should. */
/* mkdtemp is POSIX, not C. */
#define _POSIX_C_SOURCE 200809L

#include <ruiSDK.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int step;

static void expect(int32_t result, int32_t expected)
{
    ++step;
    if (result != expected) {
        fprintf(stderr, "call %d: %d (%s), not %d\n", step, (int)result, ruiResultText(result),
                (int)expected);
        exit(step);
    }
}

static ruiInstance configured(const char *directory)
{
    ruiInstance instance = ruiCreateInstance(0);
    expect(ruiCreateConfig(instance, directory, "2026110001", "nerixViewer", "",
                           RUI_PROTOCOL_OTLP_HTTP, "", 0, 0),
           RUI_OK);
    expect(ruiSetProductData(instance, "Standard", "US English", "7.1.0", "11271"), RUI_OK);
    return instance;
}

static void runSession(const char *directory)
{
    ruiInstance instance = configured(directory);
    expect(ruiStartSDK(instance), RUI_OK);
    expect(ruiTrackEvent(instance, "Model", "a2A*ba", ""), RUI_OK);
    expect(ruiTrackEventText(instance, "Camera", "Opened", "{\"CameraNr\":0}", ""), RUI_OK);
    expect(ruiTrackEvent(NULL, "Model", "a2A*ba", ""), RUI_BAD_HANDLE);
    expect(ruiStopSDK(instance, 0), RUI_OK);
    expect(ruiDestroyInstance(instance), RUI_OK);
    expect(ruiDestroyInstance(instance), RUI_BAD_HANDLE);
}

/* Without a server it is never called in this program. */
static void writeLog(int32_t level, const char *text, void *context)
{
    fprintf((FILE *)context, "ruiSDK, level %d: %s\n", (int)level, text);
}

/* What a program may set and ask beside the calls of a session. */
static void runEmbedded(const char *directory)
{
    char client[RUI_CLIENT_ID_SIZE];
    int32_t policy = 0;
    int32_t paused = 0;
    expect(ruiGetPolicy("2026110001", &policy), RUI_OK);
    if ((policy & RUI_POLICY_NO_STORING) != 0) {
        printf("usage tracking is switched off on this machine\n");
        return;
    }
    ruiInstance instance = configured(directory);
    expect(ruiSetRequestHeader(instance, "Authorization", "Bearer 5f2c"), RUI_OK);
    expect(ruiSetCaFile(instance, ""), RUI_OK);
    expect(ruiSetProxy(instance, "http://proxy.example.com:3128"), RUI_OK);
    expect(ruiSetLogHook(instance, writeLog, stderr), RUI_OK);
    expect(ruiPauseDelivery(instance), RUI_OK);
    expect(ruiIsDeliveryPaused(instance, &paused), RUI_OK);
    expect(ruiResumeDelivery(instance), RUI_OK);
    expect(ruiStartSDK(instance), RUI_OK);
    expect(ruiGetClientId(instance, client, sizeof client), RUI_OK);
    printf("ruiSDK %s, client %s, paused %d\n", ruiVersion(), client, (int)paused);
    /* There is no server in this program. */
    expect(ruiFlush(instance, 1000), RUI_WRONG_STATE);
    expect(ruiDestroyInstance(instance), RUI_OK);
}

static void runOptOut(const char *directory)
{
    ruiInstance instance = configured(directory);
    expect(ruiOptOut(instance), RUI_OK);
    expect(ruiStartSDK(instance), RUI_OK);
    expect(ruiStopSDK(instance, 0), RUI_OK);
    expect(ruiDestroyInstance(instance), RUI_OK);
}

int main(void)
{
    char directory[] = "/tmp/ruisdk-c11-XXXXXX";
    char command[64] = "rm -r ";
    if (mkdtemp(directory) == NULL) {
        return 100;
    }
    runSession(directory);
    runEmbedded(directory);
    runOptOut(directory);
    return system(strcat(command, directory)) == 0 ? 0 : 101;
}
