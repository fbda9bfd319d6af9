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

/* What ruiGetPolicy tells; their sum. */
enum ruiPolicy {
    RUI_POLICY_NO_STORING = 1,   /* ruiStartSDK is RUI_FORBIDDEN */
    RUI_POLICY_NO_DELIVERY = 2,  /* nothing leaves this machine */
    RUI_POLICY_DO_NOT_TRACK = 4, /* because of the environment, for this process alone */
    RUI_POLICY_UNREADABLE = 8    /* because the file is there and makes no sense */
};

/*
 * Tells what is forbidden, for a program that would not ask its user for a consent that cannot
 * count: DO_NOT_TRACK in the environment (any value but an empty one, 0 and false), and the file
 * of the machine's administrator, /etc/ruisdk/policy.json; docs/analytics.md describes it. With
 * neither RUI_POLICY_DO_NOT_TRACK nor RUI_POLICY_UNREADABLE it is the administrator's word.
 *
 * productId: as for ruiCreateConfig.
 * policy: set to the sum; 0: nothing is forbidden. Null is RUI_BAD_ARGUMENT.
 */
RUI_API int32_t ruiGetPolicy(const char *productId, int32_t *policy);

#ifdef __cplusplus
}
#endif
