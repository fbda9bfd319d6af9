// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Drops what the thread sanitizer reports of Qt alone: races between two accesses that Qt's
// libraries, or GLib on their behalf, both make themselves, under a lock that the sanitizer does
// not see. The same for Aravis, which builds on GLib's locks. A suppression by name cannot say
// that, since it would look for the name anywhere in the stack. Whatever our own code accesses is
// reported, but for an atomic access that races with Qt's own: that is the count of what they
// share, such as the characters of a string, which Qt counts unseen. If the sanitizer has forgotten
// who made one of the accesses, the other one decides.

#ifdef __SANITIZE_THREAD__

#include <dlfcn.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>

// The sanitizer's interface for debuggers, which no header declares.
extern "C" {
int __tsan_get_report_data(void *report, const char **description, int *count, int *stackCount,
                           int *accessCount, int *locationCount, int *mutexCount, int *threadCount,
                           int *uniqueThreadCount, void **sleepTrace, std::size_t traceSize);
int __tsan_get_report_mop(void *report, std::size_t index, int *thread, void **address, int *size,
                          int *isWrite, int *isAtomic, void **trace, std::size_t traceSize);
}

namespace {

constexpr std::size_t traceSize = 16;

/// The library that the code at \a address is in, without its folder.
const char *libraryOf(void *address)
{
    Dl_info info{};
    if (!address || dladdr(address, &info) == 0 || !info.dli_fname) {
        return "";
    }
    const char *slash = std::strrchr(info.dli_fname, '/');
    return slash ? slash + 1 : info.dli_fname;
}

bool beginsWith(const char *text, const char *beginning)
{
    return std::strncmp(text, beginning, std::strlen(beginning)) == 0;
}

enum class Access { Own, OwnAtomic, Qt, Forgotten };

/// Whose access \a index was: that of Qt or GLib, too, if they called a function of the C library,
/// which the sanitizer stands before. Of an access long ago the sanitizer may have forgotten the
/// stack.
Access accessOf(void *report, std::size_t index)
{
    int number = 0;
    int isAtomic = 0;
    void *address = nullptr;
    void *trace[traceSize] = {};
    __tsan_get_report_mop(report, index, &number, &address, &number, &number, &isAtomic, trace,
                          traceSize);
    if (!trace[0]) {
        return Access::Forgotten;
    }
    void **caller = std::find_if(std::begin(trace), std::end(trace), [](void *frame) {
        return !beginsWith(libraryOf(frame), "libtsan");
    });
    const char *library = caller == std::end(trace) ? "" : libraryOf(*caller);
    constexpr const char *ignored[] = {"libQt5", "libglib-2.0", "libgio-2.0", "libgobject-2.0",
                                       "libaravis-0.8"};
    const bool isQt = std::any_of(std::begin(ignored), std::end(ignored),
                                  [&](const char *name) { return beginsWith(library, name); });
    return isQt ? Access::Qt : isAtomic != 0 ? Access::OwnAtomic : Access::Own;
}

} // namespace

/// The sanitizer asks for each report whether it is to be dropped.
bool onReport(void *report, bool isDropped) asm("_ZN6__tsan8OnReportEPKNS_10ReportDescEb")
    __attribute__((visibility("default")));

bool onReport(void *report, bool isDropped)
{
    const char *description = "";
    int accesses = 0;
    int ignored = 0;
    // Written to for a thread that slept before, whatever size is told.
    void *sleepTrace[traceSize] = {};
    __tsan_get_report_data(report, &description, &ignored, &ignored, &accesses, &ignored, &ignored,
                           &ignored, &ignored, sleepTrace, traceSize);
    bool isOfQt = false;
    bool isOwn = accesses == 0 || !beginsWith(description, "data-race");
    for (int index = 0; index < accesses; ++index) {
        const Access access = accessOf(report, static_cast<std::size_t>(index));
        isOfQt = isOfQt || access == Access::Qt;
        isOwn = isOwn || access == Access::Own;
    }
    return isDropped || (isOfQt && !isOwn);
}

#endif
