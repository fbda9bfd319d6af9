// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ruiSDK.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace rui {

class Instance;

// Maps handles to instances. A handle is a slot and the generation of what stands in it, so that
// an old handle, or a number that never was one, finds nothing. Any thread.
class HandleTable
{
public:
    // The process's table. Never destroyed: a thread may still call at exit.
    static HandleTable &process();

    HandleTable();

    // Null when all slots are in use, or the table is closed.
    ruiInstance add(std::shared_ptr<Instance> instance);

    // Null when the handle is not a live one.
    std::shared_ptr<Instance> find(ruiInstance handle) const;

    // Invalidates the handle and returns its instance, or null.
    std::shared_ptr<Instance> remove(ruiInstance handle);

    // Invalidates all handles and returns their instances; none is given out again.
    std::vector<std::shared_ptr<Instance>> close();

private:
    struct Slot
    {
        std::uint64_t generation = 0;
        std::shared_ptr<Instance> instance;
    };

    void forgetAfterFork();
    std::size_t takeSlot();
    std::size_t slotOf(ruiInstance handle) const;

    mutable std::mutex m_mutex;
    bool m_isClosed = false;
    std::vector<Slot> m_slots;
    std::vector<std::size_t> m_free;
    // Starts anywhere, so that handles of other processes and of a forked parent do not match.
    std::uint64_t m_nextGeneration;
};

} // namespace rui
