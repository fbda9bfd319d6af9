// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

namespace rui {

// A policy that makes no sense; what() says in one line what is wrong.
class PolicyError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Reads the whole file, nothing when there is none. Throws PolicyError.
std::optional<std::string> readPolicyText(const std::string &path);

// What the text forbids of this product: its own entry counts where it says something, and what
// stands for all products elsewhere.
struct Forbidden
{
    bool storing = false;
    bool delivery = false;
};

// Strict: what is not known, or stands there twice, may have been meant as a prohibition. Throws
// PolicyError.
Forbidden parsePolicy(const std::string &text, const std::string &productId);

} // namespace rui
