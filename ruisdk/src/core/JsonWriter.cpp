// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/JsonWriter.h"

namespace rui {

namespace {

// What stands for a character in a JSON text; null when it stands for itself.
const char *shortEscape(char character)
{
    switch (character) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\b':
        return "\\b";
    case '\f':
        return "\\f";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return nullptr;
    }
}

void appendEscaped(std::string &out, char character)
{
    static constexpr char digits[] = "0123456789abcdef";
    if (const char *escape = shortEscape(character)) {
        out += escape;
        return;
    }
    const auto code = static_cast<unsigned char>(character);
    out += "\\u00";
    out += digits[code >> 4];
    out += digits[code & 0x0F];
}

bool needsEscape(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\';
}

} // namespace

void JsonWriter::beginValue()
{
    if (m_needsComma) {
        m_text += ',';
    }
    m_needsComma = true;
}

void JsonWriter::appendQuoted(std::string_view text)
{
    m_text += '"';
    std::size_t done = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (needsEscape(text[i])) {
            m_text.append(text, done, i - done);
            appendEscaped(m_text, text[i]);
            done = i + 1;
        }
    }
    m_text.append(text, done, text.size() - done);
    m_text += '"';
}

JsonWriter &JsonWriter::beginObject()
{
    beginValue();
    m_text += '{';
    m_needsComma = false;
    return *this;
}

JsonWriter &JsonWriter::endObject()
{
    m_text += '}';
    m_needsComma = true;
    return *this;
}

JsonWriter &JsonWriter::beginArray()
{
    beginValue();
    m_text += '[';
    m_needsComma = false;
    return *this;
}

JsonWriter &JsonWriter::endArray()
{
    m_text += ']';
    m_needsComma = true;
    return *this;
}

JsonWriter &JsonWriter::key(std::string_view name)
{
    beginValue();
    appendQuoted(name);
    m_text += ':';
    m_needsComma = false;
    return *this;
}

JsonWriter &JsonWriter::string(std::string_view text)
{
    beginValue();
    appendQuoted(text);
    return *this;
}

JsonWriter &JsonWriter::integer(std::int64_t value)
{
    beginValue();
    m_text += std::to_string(value);
    return *this;
}

JsonWriter &JsonWriter::null()
{
    beginValue();
    m_text += "null";
    return *this;
}

JsonWriter &JsonWriter::integerText(std::int64_t value)
{
    return string(std::to_string(value));
}

} // namespace rui
