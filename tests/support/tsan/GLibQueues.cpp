// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Tells the thread sanitizer that what a thread did before it put something into a GAsyncQueue
// happens before what another thread does when it has taken it out; see QtLocks.cpp. Aravis hands
// images over in such queues.

#ifdef __SANITIZE_THREAD__

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

// GLib's own, declared here so that this needs no header of it.
extern "C" {
struct _GAsyncQueue;
__attribute__((visibility("default"))) void g_async_queue_push(_GAsyncQueue *queue, void *data);
__attribute__((visibility("default"))) void *g_async_queue_pop(_GAsyncQueue *queue);
__attribute__((visibility("default"))) void *g_async_queue_try_pop(_GAsyncQueue *queue);
__attribute__((visibility("default"))) void *g_async_queue_timeout_pop(_GAsyncQueue *queue,
                                                                       unsigned long timeout);
}

namespace {

template <class Function>
Function glibFunction(Function, const char *symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

/// \a data after the sanitizer was told.
void *taken(_GAsyncQueue *queue, void *data)
{
    if (data) {
        __tsan_acquire(queue);
    }
    return data;
}

} // namespace

void g_async_queue_push(_GAsyncQueue *queue, void *data)
{
    __tsan_release(queue);
    glibFunction(g_async_queue_push, "g_async_queue_push")(queue, data);
}

void *g_async_queue_pop(_GAsyncQueue *queue)
{
    return taken(queue, glibFunction(g_async_queue_pop, "g_async_queue_pop")(queue));
}

void *g_async_queue_try_pop(_GAsyncQueue *queue)
{
    return taken(queue, glibFunction(g_async_queue_try_pop, "g_async_queue_try_pop")(queue));
}

void *g_async_queue_timeout_pop(_GAsyncQueue *queue, unsigned long timeout)
{
    return taken(queue, glibFunction(g_async_queue_timeout_pop,
                                     "g_async_queue_timeout_pop")(queue, timeout));
}

#endif
