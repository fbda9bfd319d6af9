// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/HandleTable.h"

#include "core/Random.h"

#include <pthread.h>

namespace rui {

namespace {

// The low 16 bits are the slot plus one, so that no handle is null; the others the generation.
constexpr int slotBits = 16;
constexpr std::uint64_t slotMask = (std::uint64_t{1} << slotBits) - 1;
constexpr std::uint64_t generationMask = ~std::uint64_t{0} >> slotBits;

constexpr std::size_t maxSlots = slotMask;
constexpr std::size_t noSlot = maxSlots;

ruiInstance makeHandle(std::size_t slot, std::uint64_t generation)
{
    const std::uint64_t bits = (generation << slotBits) | (slot + 1);
    // A handle is a number in the clothes of a pointer: NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<ruiInstance>(static_cast<std::uintptr_t>(bits));
}

} // namespace

HandleTable &HandleTable::process()
{
    static HandleTable *table = [] {
        auto *created = new HandleTable;
        pthread_atfork([] { process().m_mutex.lock(); }, [] { process().m_mutex.unlock(); },
                       [] { process().forgetAfterFork(); });
        return created;
    }();
    return *table;
}

HandleTable::HandleTable()
    : m_nextGeneration(random64() & generationMask)
{}

ruiInstance HandleTable::add(std::shared_ptr<Instance> instance)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::size_t slot = m_isClosed ? noSlot : takeSlot();
    if (slot == noSlot) {
        return nullptr;
    }
    m_nextGeneration = (m_nextGeneration + 1) & generationMask;
    m_slots[slot] = {m_nextGeneration, std::move(instance)};
    return makeHandle(slot, m_nextGeneration);
}

std::shared_ptr<Instance> HandleTable::find(ruiInstance handle) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::size_t slot = slotOf(handle);
    return slot == noSlot ? nullptr : m_slots[slot].instance;
}

std::shared_ptr<Instance> HandleTable::remove(ruiInstance handle)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::size_t slot = slotOf(handle);
    if (slot == noSlot) {
        return nullptr;
    }
    m_free.push_back(slot);
    return std::move(m_slots[slot].instance);
}

std::vector<std::shared_ptr<Instance>> HandleTable::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isClosed = true;
    std::vector<std::shared_ptr<Instance>> instances;
    for (Slot &slot : m_slots) {
        if (slot.instance) {
            instances.push_back(std::move(slot.instance));
        }
    }
    return instances;
}

void HandleTable::forgetAfterFork()
{
    // Not destroyed: SQLite's connections must not even be closed in a forked process, and the
    // threads that use them do not exist here.
    new std::vector<Slot>(std::move(m_slots));
    m_slots.clear();
    m_free.clear();
    m_nextGeneration = random64() & generationMask;
    m_mutex.unlock();
}

std::size_t HandleTable::takeSlot()
{
    if (m_free.empty()) {
        if (m_slots.size() == maxSlots) {
            return noSlot;
        }
        m_slots.emplace_back();
        return m_slots.size() - 1;
    }
    const std::size_t slot = m_free.back();
    m_free.pop_back();
    return slot;
}

std::size_t HandleTable::slotOf(ruiInstance handle) const
{
    const auto bits = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(handle));
    const std::uint64_t slot = (bits & slotMask) - 1;
    const bool live = slot < m_slots.size() && m_slots[slot].instance
                      && m_slots[slot].generation == bits >> slotBits;
    return live ? slot : noSlot;
}

} // namespace rui
