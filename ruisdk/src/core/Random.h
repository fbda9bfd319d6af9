// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace rui {

// Fills the buffer from the kernel's random source, so that no two processes share a sequence,
// not even after a fork. Throws std::system_error when the kernel has none.
void fillRandom(void *buffer, std::size_t size);

std::uint64_t random64();

// A random identifier of version 4, as in "f81d4fae-7dec-41d0-a765-00a0c91e6bf6".
std::string randomUuid();

} // namespace rui
