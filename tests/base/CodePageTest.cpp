#include "base/CodePage.h"

#include <gtest/gtest.h>

#include <set>

namespace ls {
namespace {

constexpr const char* Replaced = "\xEF\xBF\xBD";

std::string AllBytes()
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

TEST(CodePage, roundTrip_all256Bytes_comeBack)
{
    EXPECT_EQ(ToBook(FromBook(AllBytes())), AllBytes());
}

TEST(CodePage, fromBook_noTwoBytes_areOneCharacter)
{
    std::set<std::string> characters;
    for (const char c : AllBytes()) {
        characters.insert(FromBook(std::string(1, c)));
    }
    EXPECT_EQ(characters.size(), 256U);
}

struct ByteCase
{
    const char* name;
    const char* byte;
    const char* utf8;
};

struct CodePageByteTest : testing::TestWithParam<ByteCase>
{
};

TEST_P(CodePageByteTest, byte_isItsCharacter)
{
    EXPECT_EQ(FromBook(GetParam().byte), GetParam().utf8);
    EXPECT_EQ(ToBook(GetParam().utf8), GetParam().byte);
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, CodePageByteTest,
    testing::Values(ByteCase{"letter", "A", "A"}, ByteCase{"euro", "\x80", "\xE2\x82\xAC"},
                    ByteCase{"unassigned81", "\x81", "\xC2\x81"},
                    ByteCase{"unassigned8D", "\x8D", "\xC2\x8D"},
                    ByteCase{"unassigned8F", "\x8F", "\xC2\x8F"},
                    ByteCase{"unassigned90", "\x90", "\xC2\x90"},
                    ByteCase{"unassigned9D", "\x9D", "\xC2\x9D"}, ByteCase{"quote", "\x93", "\xE2\x80\x9C"},
                    ByteCase{"dash", "\x97", "\xE2\x80\x94"}, ByteCase{"capitalY", "\x9F", "\xC5\xB8"},
                    ByteCase{"noBreakSpace", "\xA0", "\xC2\xA0"}, ByteCase{"umlaut", "\xE4", "\xC3\xA4"},
                    ByteCase{"last", "\xFF", "\xC3\xBF"}),
    [](const auto& row) { return row.param.name; });

TEST(CodePage, toBook_characterThatItLacks_isNamedWithItsLine)
{
    Unmapped unmapped;
    EXPECT_EQ(ToBook("a\r\nb\r\nc \xE2\x88\x9E \xCE\xB1", &unmapped), std::nullopt);
    EXPECT_EQ(unmapped.character, U'\x221E');
    EXPECT_EQ(unmapped.line, 3);
}

TEST(CodePage, toBook_controlOfAnAssignedByte_hasNoByte)
{
    EXPECT_EQ(ToBook("\xC2\x80"), std::nullopt); // U+0080 has no byte: the byte 80 is the euro sign
}

struct InvalidCase
{
    const char* name;
    std::string bytes;
    std::string shown; ///< as a path in a message
};

struct InvalidUtf8Test : testing::TestWithParam<InvalidCase>
{
};

TEST_P(InvalidUtf8Test, invalidBytes_areNoCharacters)
{
    Unmapped unmapped;
    EXPECT_EQ(ToBook("a\n" + GetParam().bytes, &unmapped), std::nullopt);
    EXPECT_EQ(unmapped.character, U'\xFFFD');
    EXPECT_EQ(unmapped.line, 2);
    EXPECT_EQ(FromPath("<" + GetParam().bytes + ">"), "<" + GetParam().shown + ">");
}

const std::string R = Replaced;

INSTANTIATE_TEST_SUITE_P(Bytes, InvalidUtf8Test,
                         testing::Values(InvalidCase{"continuationAlone", "\x80", R},
                                         InvalidCase{"leadAlone", "\xC3", R},
                                         InvalidCase{"leadBeforeLetter", "\xC3z", R + "z"},
                                         InvalidCase{"cutThree", "\xE2\x82", R + R},
                                         InvalidCase{"cutFour", "\xF0\x9F\x98", R + R + R},
                                         InvalidCase{"overlongTwo", "\xC0\x80", R + R},
                                         InvalidCase{"overlongThree", "\xE0\x80\x80", R + R + R},
                                         InvalidCase{"overlongFour", "\xF0\x80\x80\x80", R + R + R + R},
                                         InvalidCase{"surrogate", "\xED\xA0\x80", R + R + R},
                                         InvalidCase{"aboveTheLast", "\xF4\x90\x80\x80", R + R + R + R},
                                         InvalidCase{"fiveBytes", "\xF8\x88", R + R},
                                         InvalidCase{"fe", "\xFE", R}, InvalidCase{"ff", "\xFF", R}),
                         [](const auto& row) { return row.param.name; });

TEST(CodePage, fromPath_goodUtf8_staysAsItIs)
{
    const std::string path = "/b\xC3\xBC"
                             "cher/\xE2\x88\x9E/\xF0\x9F\x98\x80.IDA";
    EXPECT_EQ(FromPath(path), path);
}

TEST(CodePage, utf8_borderCharacters_comeBack)
{
    for (const char32_t c : {U'\x1', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xD7FF', U'\xE000', U'\xFFFF',
                             U'\x10000', U'\x10FFFF'}) {
        std::string text;
        AppendUtf8(text, c);
        std::size_t at = 0;
        EXPECT_EQ(NextUtf8(text, at), c);
        EXPECT_EQ(at, text.size());
    }
}

TEST(CodePage, codeOf_character_hasFourDigitsOrMore)
{
    EXPECT_EQ(CodeOf(U'\x2192'), "U+2192");
    EXPECT_EQ(CodeOf(U'A'), "U+0041");
    EXPECT_EQ(CodeOf(U'\x1F600'), "U+1F600");
}

} // namespace
} // namespace ls
