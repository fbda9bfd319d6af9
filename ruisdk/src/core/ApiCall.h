// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Failure.h"
#include "core/HandleTable.h"
#include "core/Instance.h"
#include "core/Log.h"
#include "store/SystemError.h"

#include <filesystem>

namespace rui {

// The way of every call of the header: nothing that is thrown gets past here. withInstance finds
// the instance, and runs the call on it. Any thread.
template <typename Call>
int32_t resultOf(Call call) noexcept
{
    try {
        call();
        return RUI_OK;
    } catch (const Failure &failure) {
        return failure.result();
    } catch (const std::filesystem::filesystem_error &error) {
        return isFull(error.code().value()) ? RUI_FULL : RUI_STORAGE;
    } catch (...) {
        return RUI_INTERNAL;
    }
}

// A hook that changed the library's state while the library runs would wait for itself.
inline void requireNoHook()
{
    if (isInsideHook()) {
        throw Failure(RUI_WRONG_STATE, "a hook calls the library");
    }
}

template <typename Call>
int32_t withInstance(ruiInstance handle, Call call) noexcept
{
    return resultOf([&] {
        const std::shared_ptr<Instance> instance = HandleTable::process().find(handle);
        if (!instance) {
            throw Failure(RUI_BAD_HANDLE, "the instance is null, destroyed or not an instance");
        }
        requireNoHook();
        call(*instance);
    });
}

} // namespace rui
