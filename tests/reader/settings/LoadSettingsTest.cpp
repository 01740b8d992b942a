#include "reader/settings/SettingsFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

using test::CrLf;

constexpr const char* FormatBox =
    "warning|Lodestar Advisor|Failed to load LSADVISOR.INI due to invalid format or version.";

// The content of a settings file after its signature, and the expected result.
struct StatementCase
{
    const char* name;
    std::string body;
    Strings recent;
    Strings boxes;
};

struct SettingsStatementTest : SettingsTest, testing::WithParamInterface<StatementCase>
{
};

TEST_P(SettingsStatementTest, load_takesTheStatements)
{
    world.files[Ini] = CrLf({Signature}) + GetParam().body;
    Load();
    EXPECT_EQ(Recent(settings), GetParam().recent);
    EXPECT_EQ(world.messages.Take(), GetParam().boxes);
    EXPECT_FALSE(world.end.Ended());
}

const std::string Section = "[TOP10FILES]\r\n";

std::string InvalidAssignment(const std::string& statement)
{
    return "exclamation|Lodestar Advisor|Data file contains invalid assignment: " + statement;
}

const StatementCase StatementCases[] = {
    {"nothing", "", {}, {}},
    {"emptySection", Section, {}, {}},
    {"asWritten",
     Section + CrLf({"*1; NAME=C:\\Books\\Guide.IDA", "*2; NAME=/b/Other.IDA"}),
     {"C:\\Books\\Guide.IDA", "/b/Other.IDA"},
     {}},
    {"everythingOnOneLine", "[TOP10FILES];*1;NAME=a;*;NAME=b", {"a", "b"}, {}},
    {"crAlone", "[TOP10FILES]\r*1; NAME=a\r", {"a"}, {}},
    {"lfAlone", "[TOP10FILES]\n*1; NAME=a\n\n*2; NAME=b", {"a", "b"}, {}},
    {"blanksAndEmptyLines", CrLf({"", "   [TOP10FILES]  ", "  ", "  *1 ;  NAME  =  a b  ", ""}), {"a b"}, {}},
    {"emptyStatements", Section + ";; NAME=a;;\r\n;", {"a"}, {}},
    {"aMillionEmptyStatements", Section + std::string(1000000, ';') + "NAME=a", {"a"}, {}},
    {"escapedSemicolon", Section + "NAME=a~;b", {"a;b"}, {}},
    {"escapedTilde", Section + "NAME=a~~b", {"a~b"}, {}},
    {"escapedLetter", Section + "N~AME=~a", {"a"}, {}},
    {"tildeAtTheEndOfALine_isDropped", Section + "NAME=a~\r\n*; NAME=b", {"a", "b"}, {}},
    {"tildeBeforeTheEndBlank_keepsNothing", Section + "NAME=a~   \r\n", {"a"}, {}},
    {"plusInside_isText", Section + "NAME=a+b", {"a+b"}, {}},
    {"plusAtTheEnd_joinsTheNextLine", Section + "NAME=a+\r\n   b\r\nNAME=c", {"ab", "c"}, {}},
    {"plusAtTheEnd_keepsBlanksBeforeIt", Section + "NAME=a +\r\nb", {"a b"}, {}},
    {"plusAtTheEnd_passesOverEmptyLines", Section + "NAME=a+\r\n\r\n  \r\nb", {"ab"}, {}},
    {"plusOnSeveralLines", Section + "NA+\r\nME+\r\n=a+\r\n+\r\nb", {"ab"}, {}},
    {"plusInTheLastLine_isDropped", Section + "NAME=a+", {"a"}, {}},
    {"joinedLine_mayEndTheStatement", Section + "NAME=a+\r\nb; NAME=c", {"ab", "c"}, {}},
    {"escapedPlusAtTheEnd_isText", Section + "NAME=a~+\r\nNAME=b", {"a+", "b"}, {}},
    {"escapedTildeBeforePlus_joins", Section + "NAME=a~~+\r\nb", {"a~b"}, {}},
    {"plusBeforeSemicolon_isText", Section + "NAME=a+;NAME=b", {"a+", "b"}, {}},
    {"comment", "'x=y\r\n" + Section + "'NAME=a\r\nNAME=b", {"b"}, {}},
    {"semicolonEndsAComment", Section + "'NAME=a; NAME=b", {"b"}, {}},
    {"quoteInside_isNoComment", Section + "NAME='a", {"'a"}, {}},
    {"escapedQuote_isNoComment", Section + "~'NAME", {}, {InvalidAssignment("'NAME")}},
    {"escapedStar_isNoRecord", Section + "~*1", {}, {InvalidAssignment("*1")}},
    {"escapedBracket_isNoSection", Section + "~[X]", {}, {InvalidAssignment("[X]")}},
    {"escapedEquals_isNone", Section + "NAME~=a", {}, {InvalidAssignment("NAME=a")}},
    {"secondEquals_isText", Section + "NAME=a=b", {"a=b"}, {}},
    {"sectionTwice", Section + "NAME=a\r\n" + Section + "NAME=b", {"a", "b"}, {}},
    {"emptyName_makesAnEmptyEntry", Section + "NAME=\r\nNAME=b", {"", "b"}, {}},
    {"elevenNames_keepTheFirstTen",
     Section + CrLf({"NAME=1", "NAME=2", "NAME=3", "NAME=4", "NAME=5", "NAME=6", "NAME=7", "NAME=8", "NAME=9",
                     "NAME=10", "NAME=11"}),
     {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
     {}},
    {"recordNumbers_doNotMatter",
     Section + "*7; NAME=a; *2; NAME=b; *-3; NAME=c; *x; NAME=d",
     {"a", "b", "c", "d"},
     {}},
    {"recordNumbers_beginAnewWithTheirSection",
     Section + "*32767; NAME=a\r\n" + Section + "*; NAME=b",
     {"a", "b"},
     {}},
    {"highestRecordNumber", Section + "*32767; NAME=a", {"a"}, {}},
    {"assignmentBeforeTheSection_isPassedOver",
     "NAME=a\r\n*99999; OTHER=b\r\n" + Section + "NAME=c",
     {"c"},
     {}},
    {"unknownField",
     Section + "FILE=a\r\nNAME=b",
     {"b"},
     {"warning|Lodestar Advisor|LSIdeas.INI file contains invalid field name for Top10Files: FILE"}},
    {"fieldInLowerCase",
     Section + "name=a",
     {},
     {"warning|Lodestar Advisor|LSIdeas.INI file contains invalid field name for Top10Files: name"}},
    {"unknownSection_endsLoading",
     Section + "NAME=a\r\n[OTHER]\r\nNAME=b\r\n" + Section + "NAME=c",
     {"a"},
     {"critical|Lodestar Advisor|LSAdvisor.INI contains invalid record type: [OTHER]"}},
    {"sectionInLowerCase",
     "[top10files]\r\nNAME=a",
     {},
     {"critical|Lodestar Advisor|LSAdvisor.INI contains invalid record type: [top10files]"}},
    {"noAssignment_goesOn", Section + "NAME\r\nNAME=b", {"b"}, {InvalidAssignment("NAME")}},
    {"noFieldName_goesOn", Section + "=a\r\nNAME=b", {"b"}, {InvalidAssignment("=a")}},
    {"noAssignmentBeforeTheSection", "hello\r\n" + Section + "NAME=b", {"b"}, {InvalidAssignment("hello")}},
    {"bytesThatAreNoUtf8", Section + "NAME=/\xFF\r\n\xFF", {"/\xFF"}, {InvalidAssignment("\xEF\xBF\xBD")}},
};

INSTANTIATE_TEST_SUITE_P(Bodies, SettingsStatementTest, testing::ValuesIn(StatementCases), test::RowName());

struct SignatureCase
{
    const char* name;
    const char* line;
    bool valid;
};

struct SettingsSignatureTest : SettingsTest, testing::WithParamInterface<SignatureCase>
{
};

TEST_P(SettingsSignatureTest, load_checksTheFirstLine)
{
    world.files[Ini] = GetParam().line + std::string("\r\n") + Section + "NAME=a";
    Load();
    EXPECT_EQ(Recent(settings), GetParam().valid ? Strings{"a"} : Strings{});
    EXPECT_EQ(world.messages.Take(), GetParam().valid ? Strings{} : Strings{FormatBox});
}

const SignatureCase SignatureCases[] = {
    {"asWritten", "LSADVISOR V5.3 INI", true},
    {"older", "LSADVISOR V4 INI", true},
    {"otherOrder", "INI of LSADVISOR V5.30", true},
    {"newer", "LSADVISOR V5.4 INI", false},
    {"aLittleNewer", "LSADVISOR V5.3000001 INI", false},
    {"versionZero", "LSADVISOR V0 INI", false},
    {"noNumber", "LSADVISOR V INI", false},
    {"noVersion", "LSADVISOR 5.3 INI", false},
    {"lowerCaseV", "LSADVISOR v5.3 INI", false},
    {"noProduct", "ADVISOR V5.3 INI", false},
    {"productInLowerCase", "lsadvisor V5.3 INI", false},
    {"noIni", "LSADVISOR V5.3", false},
    {"empty", "", false},
};

INSTANTIATE_TEST_SUITE_P(Lines, SettingsSignatureTest, testing::ValuesIn(SignatureCases), test::RowName());

TEST_F(SettingsTest, load_noFile_saysNothing)
{
    Load();
    EXPECT_EQ(Recent(settings), Strings{});
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(SettingsTest, load_emptyFile_isRefused)
{
    world.files[Ini] = "";
    Load();
    EXPECT_EQ(world.messages.Take(), Strings{FormatBox});
}

TEST_F(SettingsTest, load_noFolderGiven_readsFromTheCurrentOne)
{
    settings.IniDir.clear();
    world.files["/work/LSAdvisor.INI"] = CrLf({Signature, "[TOP10FILES]", "NAME=a"});
    Load();
    EXPECT_EQ(Recent(settings), Strings{"a"});
}

TEST_F(SettingsTest, load_otherCase_isFound)
{
    world.files["/ini/LSADVISOR.INI"] = CrLf({Signature, "[TOP10FILES]", "NAME=a"});
    settings.IniDir = "/INI";
    Load();
    EXPECT_EQ(Recent(settings), Strings{"a"});
}

TEST_F(SettingsTest, load_again_replacesTheList)
{
    SetRecent({"old 1", "old 2"});
    world.files[Ini] = CrLf({Signature, "[TOP10FILES]", "NAME=a"});
    Load();
    EXPECT_EQ(Recent(settings), Strings{"a"});
    EXPECT_EQ(settings.RecentFiles[1], "");
}

struct TooManyCase
{
    const char* name;
    const char* body;
};

struct SettingsTooManyTest : SettingsTest, testing::WithParamInterface<TooManyCase>
{
};

TEST_P(SettingsTooManyTest, load_tooManyRecords_endsTheProgram)
{
    world.files[Ini] = CrLf({Signature, "[TOP10FILES]", "NAME=a"}) + GetParam().body;
    Load();
    EXPECT_EQ(Recent(settings), Strings{"a"});
    EXPECT_EQ(world.messages.Take(),
              Strings{"critical|Lodestar Advisor|The input file contains too many records to load."});
    EXPECT_EQ(world.end.Reason(), "too many records in the settings file");
}

INSTANTIATE_TEST_SUITE_P(Bodies, SettingsTooManyTest,
                         testing::Values(TooManyCase{"numberAboveTheLimit", "*32768; NAME=b"},
                                         TooManyCase{"hugeNumber", "*99999999999999999999; NAME=b"},
                                         TooManyCase{"nextBehindTheLast", "*32767; *; NAME=b"}),
                         test::RowName());

} // namespace
} // namespace ls
