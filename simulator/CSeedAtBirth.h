// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

typedef struct _ArvFakeCamera ArvFakeCamera;

namespace Simulator {

// As long as it lives, the registers of each ArvFakeCamera that is made in this thread are handed
// to the function before anybody else can read them. At most one at a time in a thread.
//
// Needed because an ArvGvFakeCamera of Aravis 0.8.26 answers from the moment of its creation: for
// up to a millisecond a program that looks for cameras would meet one of another vendor and model,
// with an empty MAC address.
class CSeedAtBirth
{
public:
    using Function = std::function<void(ArvFakeCamera *)>;

    explicit CSeedAtBirth(const Function &function);
    ~CSeedAtBirth();
    CSeedAtBirth(const CSeedAtBirth &) = delete;
    CSeedAtBirth &operator=(const CSeedAtBirth &) = delete;
};

} // namespace Simulator
