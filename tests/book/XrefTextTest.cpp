#include "book/XrefText.h"

#include "base/LineCursor.h"
#include "support/MemoryFileSystem.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

// Reads a note from a file of these lines. Returns "note|next line".
std::string NoteOf(const std::string& bytes)
{
    test::MemoryFileSystem files;
    files["/f"] = bytes;
    std::unique_ptr<BookFile> file;
    EXPECT_TRUE(files.OpenForReading("/f", Sharing::Shared, file).Ok());
    LineCursor cursor(*file);
    std::string opening;
    EXPECT_TRUE(cursor.ReadLine(opening).Ok());
    std::string text;
    EXPECT_TRUE(ReadXrefText(cursor, opening, text).Ok());
    std::string next;
    if (!cursor.AtEnd()) {
        EXPECT_TRUE(cursor.ReadLine(next).Ok());
    }
    return text + "|" + next;
}

struct NoteCase
{
    const char* name;
    const char* bytes;
    const char* expected;
};

struct NoteTable : testing::TestWithParam<NoteCase>
{
};

TEST_P(NoteTable, read_lines_giveNoteAndStandBehindIt)
{
    EXPECT_EQ(NoteOf(GetParam().bytes), GetParam().expected);
}

const NoteCase NoteCases[] = {
    {"onOneLine", "<XREF TOPIC=A>note</XREF>\r\nnext", "note|next"},
    {"trimmed", "<XREF TOPIC=A>  note  </XREF>\r\nnext", "note|next"},
    {"severalLines", "<XREF TOPIC=A>one\r\n two \r\nthree</XREF>\r\nnext", "one\r\ntwo\r\nthree|next"},
    {"leadingEmptyLines_areDropped", "<XREF TOPIC=A>\r\n\r\n  \r\none</XREF>\r\nnext", "one|next"},
    {"emptyLinesInside_areKept", "<XREF TOPIC=A>one\r\n\r\n\r\ntwo</XREF>\r\nnext",
     "one\r\n\r\n\r\ntwo|next"},
    {"emptyLastPiece_addsNothing", "<XREF TOPIC=A>one\r\n</XREF>\r\nnext", "one|next"},
    {"endTagInLowerCase_isText", "<XREF TOPIC=A>one</xref>\r\ntwo</XREF>\r\nnext", "one</xref>\r\ntwo|next"},
    {"endTagNeedsItsBracket", "<XREF TOPIC=A>one</XREF two</XREF>\r\nnext", "one</XREF two|next"},
    {"otherEnd_dropsItsLine", "<XREF TOPIC=A>one\r\ntwo <\\ x\r\nnext", "one|next"},
    {"otherEndOnTheOpeningLine", "<XREF TOPIC=A>one <\\\r\nnext", "|next"},
    {"endTagBeatsTheOtherEnd", "<XREF TOPIC=A>one <\\ two</XREF>\r\nnext", "one <\\ two|next"},
    {"endOfFile_keepsWhatWasRead", "<XREF TOPIC=A>one\r\ntwo", "one\r\ntwo|"},
    {"noBracket_takesLinesToTheEndTag", "<XREF TOPIC=A\r\none</XREF>\r\nnext", "one|next"},
    {"nothing", "<XREF TOPIC=A></XREF>\r\nnext", "|next"},
    {"headerInside_isText", "<XREF TOPIC=A>one\r\n[B]\r\n</XREF>\r\nnext", "one\r\n[B]|next"},
};

INSTANTIATE_TEST_SUITE_P(Notes, NoteTable, testing::ValuesIn(NoteCases), test::RowName());

TEST(XrefText, read_exactly32000_isWhole)
{
    const std::string text(32000, 'x');
    EXPECT_EQ(NoteOf("<XREF TOPIC=A>" + text + "</XREF>\r\nnext"), text + "|next");
}

TEST(XrefText, read_over32000_isCutBeforeTheLineAndMarked)
{
    const std::string text(31990, 'x');
    EXPECT_EQ(NoteOf("<XREF TOPIC=A>" + text + "\r\n12345678"), text + "\r\n12345678|");
    EXPECT_EQ(NoteOf("<XREF TOPIC=A>" + text + "\r\n123456789\r\nnext"), text + "???|next")
        << "the line end between the pieces counts too";
    EXPECT_EQ(NoteOf("<XREF TOPIC=A>" + text + "\r\n123456789</XREF>\r\nnext"), text + "???|next");
    EXPECT_EQ(NoteOf("<XREF TOPIC=A>" + text + "\r\n12345678</XREF>\r\nnext"), text + "\r\n12345678|next");
}

TEST(XrefText, read_firstPieceTooLong_isOnlyTheMark)
{
    EXPECT_EQ(NoteOf("<XREF TOPIC=A>" + std::string(32001, 'x') + "\r\nnext"), "???|next");
}

TEST(XrefTarget, target_betweenTagAndBracket)
{
    EXPECT_EQ(XrefTarget("<XREF TOPIC=Name>text"), "Name");
    EXPECT_EQ(XrefTarget("<XREF TOPIC=\"Name\">text"), "Name");
    EXPECT_EQ(XrefTarget("<XREF TOPIC=\"Na>me\">"), "N")
        << "the first bracket ends it, the last character is dropped";
    EXPECT_EQ(XrefTarget("<XREF TOPIC=\"\">"), "\"\"") << "two characters keep their quotes";
    EXPECT_EQ(XrefTarget("<XREF TOPIC=>x"), "");
    EXPECT_EQ(XrefTarget("<XREF TOPIC=Name"), "");
    EXPECT_EQ(XrefTarget("<XREF TOPIC= A b >"), " A b ");
}

} // namespace
} // namespace ls
