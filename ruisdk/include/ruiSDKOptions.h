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

/*
 * How the server is reached. Each holds for the sessions of this instance that are started later;
 * RUI_WRONG_STATE while one is open. Nothing of it is written to disk.
 *
 * Without these calls, the environment is asked: the proxy variables that libcurl knows
 * (https_proxy, ALL_PROXY, NO_PROXY ...), and SSL_CERT_FILE. Neither counts for a server on the
 * loopback over plain http.
 */

/*
 * Sends a header with each request, as in "Authorization", "Bearer 5f2c". The same name again
 * replaces it, whatever its case; an empty value takes it away. It goes to the server alone, not
 * to a proxy, and not to where another server redirects.
 *
 * RUI_BAD_ARGUMENT also: what HTTP does not allow in a name or a value, a line break for example,
 * and the names that the library sets itself.
 */
RUI_API int32_t ruiSetRequestHeader(ruiInstance instance, const char *name, const char *value);

/*
 * Trusts the certificates in this PEM file instead of the system's. Empty: the system's.
 * RUI_BAD_ARGUMENT also: the file cannot be read now.
 */
RUI_API int32_t ruiSetCaFile(ruiInstance instance, const char *path);

/*
 * Goes through this proxy, as in "http://proxy.example.com:3128" or "socks5h://10.0.0.1". Empty:
 * through none, whatever the environment says.
 */
RUI_API int32_t ruiSetProxy(ruiInstance instance, const char *url);

/*
 * Lets the delivery rest, and go on again: on a metered connection, or in an offline mode. Holds
 * for the directory, so for every session in any process, and over restarts. Events are stored as
 * before; the delivery of an opt-out rests, too. A request that is under way is not cut off. Any
 * time after ruiCreateConfig.
 */
RUI_API int32_t ruiPauseDelivery(ruiInstance instance);
RUI_API int32_t ruiResumeDelivery(ruiInstance instance);

/* Sets `paused` to 1 while the delivery rests, and to 0 otherwise. */
RUI_API int32_t ruiIsDeliveryPaused(ruiInstance instance, int32_t *paused);

/*
 * Waits until nothing in the directory is left to deliver, at most this many milliseconds; with 0
 * it only looks. Other calls, from other threads, need not wait meanwhile. What the delivery
 * itself waits for, a pause that a server has asked for, is kept to.
 *
 * RUI_TIMEOUT: something is left; it is delivered as if nothing had been asked.
 * RUI_WRONG_STATE: no session is open, it was ended meanwhile, it has no server, or the delivery
 *     rests.
 */
RUI_API int32_t ruiFlush(ruiInstance instance, int32_t milliseconds);

/* How grave it is what a log hook is told. New ones are added at the end. */
enum ruiLogLevel {
    RUI_LOG_ERROR = 1,   /* somebody has to mend it: the directory cannot be used, for example */
    RUI_LOG_WARNING = 2, /* a request failed, or the server refused something */
    RUI_LOG_INFO = 3     /* events were delivered */
};

/*
 * Is told what becomes of the delivery, in English, for a log. The text is one line of UTF-8
 * without control characters, and the library's: valid until the hook returns. It names the server
 * or the directory, and never what an event says.
 *
 * level: one of ruiLogLevel.
 * context: as it was given to ruiSetLogHook.
 */
typedef void (*ruiLogHook)(int32_t level, const char *text, void *context);

/*
 * Sets the hook of this instance, which replaces the earlier one; null: none, as at the beginning.
 * In any state; it holds for the sessions of the instance, the one that is open, too.
 *
 * Thread: the hook is called in the library's thread of a session, never in a thread that calls the
 * library, and once at a time. All signals are blocked there. The delivery waits for the hook;
 * ruiStopSDK keeps to its time and does not.
 *
 * Ownership: context is the caller's. The hook is not called any more once this call has replaced
 * it, or ruiDestroyInstance has returned: both wait for a hook that runs, however long. So does the
 * end of the program, see exit at ruiInstance. After ruiStopSDK one that runs already may go on.
 *
 * Reentrancy: a hook must not use the library. Called from within one, each function with a live
 * instance is RUI_WRONG_STATE, and ruiCreateInstance returns null; ruiVersion, ruiResultText and
 * ruiGetPolicy work. It must not wait for a thread that replaces the hook or destroys the instance.
 * It may end the program by exit().
 *
 * A hook that throws: the exception ends in the library and changes nothing; the hook stays set.
 */
RUI_API int32_t ruiSetLogHook(ruiInstance instance, ruiLogHook hook, void *context);

#ifdef __cplusplus
}
#endif
