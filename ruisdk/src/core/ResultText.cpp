// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include <ruiSDK.h>

const char *ruiResultText(int32_t result)
{
    switch (result) {
    case RUI_OK:
        return "done";
    case RUI_BAD_HANDLE:
        return "the instance is null, destroyed or not an instance";
    case RUI_BAD_ARGUMENT:
        return "an argument is null, not UTF-8 or out of range";
    case RUI_WRONG_STATE:
        return "the call does not fit the state of the instance";
    case RUI_UNSUPPORTED:
        return "the protocol, key, server address or database version is not supported";
    case RUI_STORAGE:
        return "the configuration directory or its database cannot be used";
    case RUI_FULL:
        return "the disk is full";
    case RUI_OPTED_OUT:
        return "the user's consent was withdrawn";
    case RUI_TOO_LARGE:
        return "the event is larger than 1 MiB";
    case RUI_BUSY:
        return "another process keeps the database locked";
    case RUI_INTERNAL:
        return "internal error";
    case RUI_FORKED:
        return "the process was forked while the library was in use; execute a program first";
    case RUI_FORBIDDEN:
        return "the administrator or DO_NOT_TRACK forbids it";
    case RUI_TIMEOUT:
        return "the time was over first";
    default:
        return "unknown result";
    }
}
