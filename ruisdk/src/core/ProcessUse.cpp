// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/ProcessUse.h"

#include "core/Failure.h"

#include <pthread.h>

#include <atomic>
#include <utility>

namespace rui {

namespace {

std::atomic<long> uses{0};
std::atomic<bool> isBarred{false};

void barInChild()
{
    isBarred = isBarred || uses > 0;
}

void watchForks()
{
    // Never undone: the library is not unloaded.
    static const int registered = pthread_atfork(nullptr, nullptr, barInChild);
    static_cast<void>(registered);
}

} // namespace

ProcessUse::ProcessUse()
{
    if (isBarred) {
        throw Failure(RUI_FORKED, "the process was forked while the library was in use");
    }
    watchForks();
    ++uses;
}

ProcessUse::~ProcessUse()
{
    uses -= m_counts ? 1 : 0;
}

ProcessUse::ProcessUse(ProcessUse &&other) noexcept
    : m_counts(std::exchange(other.m_counts, false))
{}

ProcessUse &ProcessUse::operator=(ProcessUse &&other) noexcept
{
    std::swap(m_counts, other.m_counts);
    return *this;
}

} // namespace rui
