/* SPDX-FileCopyrightText: 2026 Ostrand */
/* SPDX-License-Identifier: MIT */
#pragma once

/*
 * What a program may ask of the library, and set, beside the calls of a session. Part of ruiSDK.h,
 * which is the one to include, and whose rules hold here, too: any thread, UTF-8, the order of the
 * checks. A program that needs nothing of this leaves it out.
 */

#ifdef __cplusplus
extern "C" {
#endif

/* The library's version, as in "7.1.0". Never null; static. */
RUI_API const char *ruiVersion(void);

/* The bytes of a client id with its zero byte. */
enum { RUI_CLIENT_ID_SIZE = 37 };

/*
 * Writes the client id of the directory, as in "f81d4fae-7dec-41d0-a765-00a0c91e6bf6": who asks
 * the service to delete what it holds has to name it. An empty text when there is none: before the
 * first session, and after an opt-out, which retires it. Any time after ruiCreateConfig.
 *
 * buffer, size: the caller's, at least RUI_CLIENT_ID_SIZE bytes; else RUI_BAD_ARGUMENT. Left as it
 *     is when the call fails.
 * RUI_STORAGE also: what stands in the database is no client id.
 */
RUI_API int32_t ruiGetClientId(ruiInstance instance, char *buffer, int32_t size);

#ifdef __cplusplus
}
#endif
