/* SPDX-FileCopyrightText: 2026 Ostrand */
/* SPDX-License-Identifier: MIT */
#pragma once

/*
 * ruiSDK: stores usage events on this machine and delivers them to a collector.
 *
 * A session is this sequence of calls:
 *
 *     ruiCreateInstance, ruiCreateConfig, ruiSetProductData, ruiStartSDK,
 *     ruiTrackEvent / ruiTrackEventText ..., ruiStopSDK, ruiDestroyInstance
 *
 * and a withdrawal of the user's consent is this one:
 *
 *     ruiCreateInstance, ruiCreateConfig, ruiSetProductData, ruiOptOut, ruiStartSDK, ruiStopSDK,
 *     ruiDestroyInstance
 *
 * Threads: every function may be called from any thread at any time, with the same or with
 * different instances. Any number of instances and of processes may use one directory.
 *
 * Texts: every text is UTF-8 and ends with a zero byte. The library copies what it keeps. A null
 * text, or one that is not UTF-8, is RUI_BAD_ARGUMENT.
 *
 * Errors: every function checks its handle first, then its arguments, then the state of the
 * instance. A function that fails changes nothing. No function throws.
 */

#include <stdint.h>

/*
 * RUISDK_BUILD: for the library itself. RUISDK_STATIC: for a program that links it statically,
 * which only a Windows compiler has to know.
 */
#if defined(_WIN32) && defined(RUISDK_STATIC)
#define RUI_API
#elif defined(_WIN32) && defined(RUISDK_BUILD)
#define RUI_API __declspec(dllexport)
#elif defined(_WIN32)
#define RUI_API __declspec(dllimport)
#elif defined(RUISDK_BUILD)
#define RUI_API __attribute__((visibility("default")))
#else
#define RUI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* What a function returns. The numbers are stable; new ones are added at the end. */
enum ruiResult {
    RUI_OK = 0,           /* done; for a track call: the event is committed to disk */
    RUI_BAD_HANDLE = 1,   /* the instance is null, destroyed, or was never one */
    RUI_BAD_ARGUMENT = 2, /* a null text, a text that is not UTF-8, a value out of range */
    RUI_WRONG_STATE = 3,  /* the call does not fit what was called before */
    RUI_UNSUPPORTED = 4,  /* a protocol, a key, a server address or a database of a newer version */
    RUI_STORAGE = 5,      /* the directory or the database cannot be used */
    RUI_FULL = 6,         /* the disk is full */
    RUI_OPTED_OUT = 7,    /* consent was withdrawn since this session began; nothing is stored */
    RUI_TOO_LARGE = 8,    /* the event is larger than 1 MiB */
    RUI_BUSY = 9,         /* another process kept the database locked; the call may be repeated */
    RUI_INTERNAL = 10,    /* out of memory, or a defect of the library */
    RUI_FORKED = 11,      /* the process was forked while the library was in use */
    RUI_FORBIDDEN = 12,   /* the machine's administrator or DO_NOT_TRACK forbids it */
    RUI_TIMEOUT = 13      /* the time was over first */
};

/* OTLP over HTTP, the one protocol that ruiCreateConfig accepts. */
enum { RUI_PROTOCOL_OTLP_HTTP = 3 };

/*
 * A checked handle, not a pointer to anything: it is never dereferenced. A handle of a destroyed
 * instance stays invalid for the life of the process, and so does every handle in a process that
 * was forked from the one that created it.
 *
 * fork: in the child every inherited handle is RUI_BAD_HANDLE. If any instance of the parent was
 * configured at that moment, ruiCreateConfig is RUI_FORKED in the child and in its own children,
 * until one of them has executed a program: the database's locks cannot be shared, and events would
 * be lost. If none was, the child uses the library as any process does. The parent notices nothing.
 *
 * exit: when a program that has configured an instance ends by exit() or by returning from main,
 * every instance is destroyed, as ruiDestroyInstance does. A call that comes later, of a static
 * object or of a thread that still runs, is RUI_BAD_HANDLE, and ruiCreateInstance returns null.
 */
typedef struct ruiInstance_ *ruiInstance;

/*
 * Creates an instance that is to be destroyed with ruiDestroyInstance. One that is never destroyed
 * keeps what it has: from ruiCreateConfig on the open database, two files and up to 2 MiB of memory;
 * while its session runs a thread as well, which opens five files, takes as much memory again and
 * wakes every 5 seconds. When the program exits, its session ends as with flag 1 of ruiStopSDK.
 *
 * flag: reserved, 0.
 * Returns null when flag is not 0, when 65,535 instances exist, when the program is ending, or when
 * memory is short.
 */
RUI_API ruiInstance ruiCreateInstance(int32_t flag);

/*
 * Says where events are kept and where they go. Opens the database, and creates it and the
 * directory if they are missing. Once per instance, before anything else; it may be repeated
 * after it failed.
 *
 * configDirectory: holds the database and nothing of anybody else. It is created with mode 0700.
 * productId, applicationName: sent with every event. Up to 1,024 bytes each.
 * serverHost: empty: events stay on this machine, and nothing is ever sent. Otherwise a host name
 *     with an optional port and path ("collector.example.com:4318"), for which https is used, or
 *     the same as a URL. http is RUI_UNSUPPORTED unless the host is the loopback.
 * protocol: RUI_PROTOCOL_OTLP_HTTP; others are RUI_UNSUPPORTED.
 * encryptionKey: empty; events are not encrypted on disk. Others are RUI_UNSUPPORTED.
 * localOnly: 1: events stay on this machine although a serverHost is given. 0: they are sent.
 * syncEveryCommit: 1: an accepted event survives a power cut, for some milliseconds a call.
 *     0: a killed process loses nothing, a power cut at most the last events.
 *
 * Waits at most 5 seconds for each of two locks: that of another opening, and that of a writer.
 *
 * A file in the place of the database that is not one, or is damaged, is set aside under a dated
 * name, which is said once on standard error; what can be read of it is saved into a new database,
 * and the rest is counted as lost. The same happens to damage that a later call, the library's
 * thread or the tool comes upon.
 * A withdrawal of consent that could not be carried out is carried out first. In a directory that
 * was set up before, a full disk or a lock is no error here, so that consent can be withdrawn:
 * ruiStartSDK tries again, and is RUI_FULL or RUI_BUSY then.
 * configDirectory may be relative to the working directory of this moment.
 * RUI_STORAGE: the directory or the database cannot be created, read or written, or a symbolic link
 * stands in the place of one of its files.
 * RUI_UNSUPPORTED also: a database of a newer version; it is left alone.
 * RUI_FORKED: see ruiInstance.
 */
RUI_API int32_t ruiCreateConfig(ruiInstance instance, const char *configDirectory,
                                const char *productId, const char *applicationName,
                                const char *serverHost, int32_t protocol, const char *encryptionKey,
                                uint8_t localOnly, uint8_t syncEveryCommit);

/*
 * Describes the product; sent with every event. After ruiCreateConfig and before ruiStartSDK; a
 * repeated call replaces the earlier data. Up to 1,024 bytes each.
 */
RUI_API int32_t ruiSetProductData(ruiInstance instance, const char *edition, const char *language,
                                  const char *version, const char *buildNumber);

/*
 * Begins the session. From here on events are accepted, and a thread of the library delivers
 * them. A first session, and the first one after an opt-out, gets a new random client id.
 *
 * RUI_FORBIDDEN: the environment has DO_NOT_TRACK, or the machine's administrator has forbidden to
 *     store events: then nothing is stored or sent, and by the administrator's word what waits is
 *     deleted. ruiGetPolicy tells which it is. Delivery alone that is forbidden is no error: events
 *     stay on this machine.
 *
 * On an instance that has opted out it only delivers the opt-out: track calls are RUI_OPTED_OUT.
 */
RUI_API int32_t ruiStartSDK(ruiInstance instance);

/*
 * Ends the session; ruiStartSDK may begin another one. Returns within 2 seconds, within 5 when an
 * opt-out waits for delivery. What could not be delivered is kept for the next session.
 *
 * flag: 0: tries to deliver what is left within that time. 1: does not. Others are
 *     RUI_BAD_ARGUMENT.
 */
RUI_API int32_t ruiStopSDK(ruiInstance instance, int32_t flag);

/*
 * Withdraws the user's consent for everybody who uses this directory. In one step every event,
 * delivered or not, is deleted, the client id is retired, and one record of the opt-out is left for
 * delivery under that id; the record goes out before anything else. No byte of a deleted event
 * stays in the directory, nor of the client id once the record is delivered; while another program
 * reads the database, that is finished when it has ended. Sessions that are open, in this process
 * or another, are RUI_OPTED_OUT from here on. Any time after ruiCreateConfig; an opt-out that is
 * repeated on the instance changes nothing and returns RUI_OK.
 *
 * When it fails, the withdrawal holds all the same: it is kept in a file that needs no room. This
 * instance stores and sends nothing, whatever is called; its ruiStartSDK, and every opening of the
 * directory, tries again and fails when that fails; and nobody sends anything from the directory
 * before it is carried out. A file that is missing or damaged counts as a withdrawal.
 */
RUI_API int32_t ruiOptOut(ruiInstance instance);

/*
 * Stores an event without a text: ruiTrackEventText explains the rest.
 */
RUI_API int32_t ruiTrackEvent(ruiInstance instance, const char *category, const char *name,
                              const char *sessionId);

/*
 * Stores an event; RUI_OK means that it is committed to the database, so that it survives the
 * death of the process. Waits for another writer for at most 5 seconds, never for the network.
 *
 * category, name: what happened. May be empty.
 * text: the record, kept and sent byte for byte; it need not be JSON.
 * sessionId: the caller's name of the session, or empty.
 * An event that is not delivered is dropped and counted as lost after 30 days: by the time since
 * the machine was started, so that a clock that is set forward drops nothing that is younger; by
 * the clock when it is from before that start.
 * Together they are at most 1 MiB, else RUI_TOO_LARGE.
 */
RUI_API int32_t ruiTrackEventText(ruiInstance instance, const char *category, const char *name,
                                  const char *text, const char *sessionId);

/*
 * Ends the session if one is open, as ruiStopSDK with flag 1 does, and frees the instance. Calls
 * in other threads that use it finish first or are RUI_BAD_HANDLE.
 */
RUI_API int32_t ruiDestroyInstance(ruiInstance instance);

/*
 * Returns the words for a result, in English, for a log. Never null; the text is static and must
 * not be freed. A number that is no result gives "unknown result".
 */
RUI_API const char *ruiResultText(int32_t result);

#ifdef __cplusplus
}
#endif

#include "ruiSDKOptions.h" /* IWYU pragma: export */
