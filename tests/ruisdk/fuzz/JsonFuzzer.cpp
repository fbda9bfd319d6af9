// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Whatever bytes a text has: when the UTF-8 check lets it pass, the JSON that is written of it is
// valid and reads back as the same bytes; and the check agrees with an independent one.
#include "core/JsonWriter.h"
#include "core/Utf8.h"

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

void require(bool truth, const char *what)
{
    if (!truth) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

// The slow way: decodes each code point and encodes it again.
bool isUtf8BySteps(const std::string &text)
{
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const int length = lead < 0x80       ? 1
                           : lead >> 5 == 6  ? 2
                           : lead >> 4 == 14 ? 3
                           : lead >> 3 == 30 ? 4
                                             : 0;
        if (length == 0 || i + static_cast<std::size_t>(length) > text.size()) {
            return false;
        }
        std::uint32_t code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
        for (int n = 1; n < length; ++n) {
            const auto next = static_cast<unsigned char>(text[i + static_cast<std::size_t>(n)]);
            if (next >> 6 != 2) {
                return false;
            }
            code = code << 6 | (next & 0x3FU);
        }
        const int shortest = code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
        if (shortest != length || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
            return false;
        }
        i += static_cast<std::size_t>(length);
    }
    return true;
}

sqlite3_stmt *reader()
{
    static sqlite3_stmt *const statement = [] {
        sqlite3 *memory = nullptr;
        sqlite3_stmt *prepared = nullptr;
        sqlite3_open(":memory:", &memory);
        sqlite3_prepare_v2(memory, "SELECT json_valid(?1), json_extract(?1, '$[0].key')", -1,
                           &prepared, nullptr);
        return prepared;
    }();
    return statement;
}

void checkJson(const std::string &text)
{
    rui::JsonWriter json;
    json.beginArray().beginObject().key("key").string(text).key(text).integer(1).endObject();
    json.endArray();
    const std::string &written = json.text();
    sqlite3_reset(reader());
    sqlite3_bind_text(reader(), 1, written.data(), static_cast<int>(written.size()), SQLITE_STATIC);
    require(sqlite3_step(reader()) == SQLITE_ROW, "no row");
    require(sqlite3_column_int(reader(), 0) == 1, "the JSON is not valid");
    const auto *read = static_cast<const char *>(sqlite3_column_blob(reader(), 1));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(reader(), 1));
    require(std::string(read == nullptr ? "" : read, size) == text, "the text has changed");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    const bool valid = rui::isUtf8(text);
    require(valid == isUtf8BySteps(text), "the UTF-8 check is wrong");
    // A text ends with its first zero byte, so none is ever in one.
    if (valid && text.find('\0') == std::string::npos) {
        checkJson(text);
    }
    return 0;
}
