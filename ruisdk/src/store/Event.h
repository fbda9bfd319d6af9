// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace rui {

// An event as the caller gives it. Views: valid during the call.
struct Event
{
    std::string_view category;
    std::string_view name;
    std::string_view session;
    // Nothing: an event without a text, which is not the same as one with an empty text.
    std::optional<std::string_view> text;

    std::int64_t size() const
    {
        return static_cast<std::int64_t>(category.size() + name.size() + session.size()
                                         + (text ? text->size() : 0));
    }
};

} // namespace rui
