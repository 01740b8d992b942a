#include "cli/JsonWriter.h"

#include "base/CodePage.h"
#include "support/Json.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace ls {
namespace {

std::string StringOf(std::string_view utf8)
{
    std::ostringstream stream;
    JsonWriter json(stream);
    json.String(utf8);
    return stream.str();
}

std::string NumberOf(float number)
{
    std::ostringstream stream;
    JsonWriter json(stream);
    json.Number(number);
    return stream.str();
}

TEST(JsonWriter, string_everyEscapeIsTheShortOne)
{
    EXPECT_EQ(StringOf("a\"b\\c/\b\f\n\r\t"), R"("a\"b\\c/\b\f\n\r\t")");
}

TEST(JsonWriter, string_controlCharactersAreEscaped)
{
    EXPECT_EQ(StringOf(std::string_view("\0\x01\x1B\x1F\x7F", 5)), R"("\u0000\u0001\u001b\u001f\u007f")");
}

TEST(JsonWriter, string_bytesThatAreNoUtf8_becomeReplacementCharacters)
{
    EXPECT_EQ(StringOf("a\xFF"
                       "b\xC3"),
              "\"a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD\"");
}

TEST(JsonWriter, bookText_isReadAsTheCodePage)
{
    std::ostringstream stream;
    JsonWriter(stream).BookText("\xE9\x80\x81");
    EXPECT_EQ(stream.str(), "\"\xC3\xA9\xE2\x82\xAC\\u0081\"");
}

TEST(JsonWriter, bookText_everyByte_comesBackThroughAReader)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    std::ostringstream stream;
    JsonWriter(stream).BookText(bytes);
    EXPECT_EQ(ToBook(test::Json::Parse(stream.str()).String()), bytes);
}

TEST(JsonWriter, number_floatInItsShortestForm)
{
    EXPECT_EQ(NumberOf(5.3F), "5.3");
    EXPECT_EQ(NumberOf(5.0F), "5");
    EXPECT_EQ(NumberOf(0.0F), "0");
    EXPECT_EQ(NumberOf(std::numeric_limits<float>::infinity()), "null");
}

TEST(JsonWriter, layout_outerContainerAndItsListsInLines_deeperOnesInOne)
{
    std::ostringstream stream;
    JsonWriter json(stream);
    json.BeginObject().Key("list").BeginArray();
    json.BeginObject().Key("a").Number(std::int64_t{-1}).Key("b").BeginArray().Bool(true).Null().EndArray();
    json.EndObject();
    json.BeginObject().EndObject().EndArray();
    json.Key("empty").BeginArray().EndArray();
    json.Key("object").BeginObject().Key("x").String("y").EndObject();
    EXPECT_FALSE(json.Complete());
    json.EndObject();
    EXPECT_TRUE(json.Complete());
    EXPECT_EQ(stream.str(), "{\n"
                            "  \"list\": [\n"
                            "    {\"a\": -1, \"b\": [true, null]},\n"
                            "    {}\n"
                            "  ],\n"
                            "  \"empty\": [],\n"
                            "  \"object\": {\"x\": \"y\"}\n"
                            "}\n");
}

TEST(JsonWriter, layout_outermostList_hasALineForEachRecord)
{
    std::ostringstream stream;
    JsonWriter json(stream);
    json.BeginArray().BeginObject().Key("run").Number(std::int64_t{1}).EndObject();
    json.BeginObject().Key("choices").BeginArray().String("YES").String("NO").EndArray().EndObject();
    json.EndArray();
    EXPECT_EQ(stream.str(), "[\n  {\"run\": 1},\n  {\"choices\": [\"YES\", \"NO\"]}\n]\n");
}

} // namespace
} // namespace ls
