// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "AravisParser.h"

#include <arv.h>
#include <dlfcn.h>

#include <atomic>
#include <mutex>

#include <QtGlobal>

namespace CameraPool {
namespace {

std::mutex parserMutex;
std::atomic<bool> hasParsed{false};

template <class Function>
Function *aravisFunction(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

} // namespace

bool isParsedOneAtATime()
{
    return hasParsed;
}

} // namespace CameraPool

// In the place of Aravis' functions of these names for the whole program, Aravis included.
extern "C" Q_DECL_EXPORT ArvDomDocument *arv_dom_document_new_from_memory(const void *buffer,
                                                                          int size, GError **error)
{
    static auto *const next =
        CameraPool::aravisFunction<decltype(arv_dom_document_new_from_memory)>(
            "arv_dom_document_new_from_memory");
    const std::lock_guard<std::mutex> lock(CameraPool::parserMutex);
    CameraPool::hasParsed = true;
    return next(buffer, size, error);
}

extern "C" Q_DECL_EXPORT void arv_dom_document_append_from_memory(ArvDomDocument *document,
                                                                  ArvDomNode *node,
                                                                  const void *buffer, int size,
                                                                  GError **error)
{
    static auto *const next =
        CameraPool::aravisFunction<decltype(arv_dom_document_append_from_memory)>(
            "arv_dom_document_append_from_memory");
    const std::lock_guard<std::mutex> lock(CameraPool::parserMutex);
    next(document, node, buffer, size, error);
}
