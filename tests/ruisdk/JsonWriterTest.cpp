// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/JsonWriter.h"

#include <gtest/gtest.h>

namespace {

using rui::JsonWriter;
using namespace std::string_view_literals;

TEST(JsonWriter, SetsCommasBetweenMembersAndElements)
{
    JsonWriter json;
    json.beginObject().key("a").integer(1).key("b").beginArray().string("x").null().endArray();
    json.key("c").beginObject().endObject().endObject();
    EXPECT_EQ(json.text(), R"({"a":1,"b":["x",null],"c":{}})");
}

TEST(JsonWriter, SetsCommasBetweenObjectsOfAnArray)
{
    JsonWriter json;
    json.beginArray().beginObject().endObject().beginObject().endObject().endArray();
    EXPECT_EQ(json.text(), "[{},{}]");
}

TEST(JsonWriter, EscapesQuotesBackslashesAndControlCharacters)
{
    EXPECT_EQ(JsonWriter().string("\"\\\b\f\n\r\t\x01\x1F/"sv).text(),
              R"("\"\\\b\f\n\r\t\u0001\u001f/")");
}

TEST(JsonWriter, EscapesAZeroByte)
{
    EXPECT_EQ(JsonWriter().string("a\0b"sv).text(), R"("a\u0000b")");
}

TEST(JsonWriter, LeavesOtherCharactersAsTheyAre)
{
    EXPECT_EQ(JsonWriter().string("\x7F \xC3\xA4 \xF0\x9F\x98\x80").text(),
              "\"\x7F \xC3\xA4 \xF0\x9F\x98\x80\"");
}

TEST(JsonWriter, EscapesKeys)
{
    EXPECT_EQ(JsonWriter().beginObject().key("a\"b").integer(-1).endObject().text(),
              R"({"a\"b":-1})");
}

TEST(JsonWriter, WritesLargeIntegersAsDecimalStrings)
{
    EXPECT_EQ(JsonWriter().integerText(9223372036854775807).text(), R"("9223372036854775807")");
}

} // namespace
