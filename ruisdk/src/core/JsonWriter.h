// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace rui {

// Writes one JSON value without spaces, in the order of the calls. The caller keeps the structure
// right; commas and quotes are set here. Texts must be UTF-8 and come out as they are, but for
// quotes, backslashes and control characters.
class JsonWriter
{
public:
    JsonWriter &beginObject();
    JsonWriter &endObject();
    JsonWriter &beginArray();
    JsonWriter &endArray();
    JsonWriter &key(std::string_view name);
    JsonWriter &string(std::string_view text);
    JsonWriter &integer(std::int64_t value);
    JsonWriter &null();

    // A 64-bit integer as a string of decimal digits, for readers whose numbers are floating.
    JsonWriter &integerText(std::int64_t value);

    // Takes back everything that was written since the mark.
    struct Mark
    {
        std::size_t size;
        bool needsComma;
    };
    Mark mark() const
    {
        return {m_text.size(), m_needsComma};
    }
    void revert(const Mark &mark)
    {
        m_text.resize(mark.size);
        m_needsComma = mark.needsComma;
    }

    const std::string &text() const
    {
        return m_text;
    }

private:
    void beginValue();
    void appendQuoted(std::string_view text);

    std::string m_text;
    bool m_needsComma = false;
};

} // namespace rui
