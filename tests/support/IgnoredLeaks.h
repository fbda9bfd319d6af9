// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

/// What this thread allocates while one of these lives may leak. Only for what Qt is known to leak;
/// say what and why where it is used.
class IgnoredLeaks
{
public:
#ifdef __SANITIZE_ADDRESS__
    IgnoredLeaks()
    {
        __lsan_disable();
    }
    ~IgnoredLeaks()
    {
        __lsan_enable();
    }
#else
    IgnoredLeaks() = default;
    ~IgnoredLeaks() {} // NOLINT(modernize-use-equals-default): keeps the variable from being unused
#endif

    IgnoredLeaks(const IgnoredLeaks &) = delete;
    IgnoredLeaks &operator=(const IgnoredLeaks &) = delete;
};
