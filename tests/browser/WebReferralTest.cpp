#include "browser/WebReferral.h"

#include "book/Book.h"
#include "browser/ReferralAddress.h"
#include "support/RecordingRegistry.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

constexpr const char* NoKey =
    "critical|Lodestar Advisor|Failed to open registry key <<HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.HTM>>. "
    "You may typed an invalid filetype, or you do not have an appropriate viewer program registered on your "
    "computer.";
constexpr const char* NoBrowser = "exclamation|Lodestar Advisor|I need a web browser to connect to the web "
                                  "site, but your registry does not "
                                  "have an unambiguous reference to a single browser. To look up Lodestar "
                                  "Ideas on the web, please start your "
                                  "browser and go to this web site: http://www.lodestar-advisor.example/";

struct WebReferralTest : testing::Test
{
    test::TestSeams world;
    test::RecordingRegistry registry;
    Book book;

    void SetUp() override
    {
        registry.RegisterForUser(".HTM", "page", "/usr/bin/web");
        book.BookPath = "LS:SAMPLE.IDA";
        book.BookAuthor = "Ann Author";
        book.BookCopyright = "2026 Ann";
        book.BookUrl = "www.ann.example";
        book.BookPost = "YES";
    }

    void Show(const std::string& topicName = "[Intro]")
    {
        ShowWebReferral(book, world.Get(), registry, topicName);
    }

    std::string Question() const
    {
        return "none|Lodestar Advisor|To start your web browser and access the web site for the book you are "
               "viewing, "
               "click O.K. below.  The author of this book, Ann Author, or the author's publisher, have "
               "posted "
               "information at this web site: \r\n" +
               book.BookUrl + "|OKCancel";
    }
};

TEST_F(WebReferralTest, page_isAsItAlwaysWas)
{
    Show();
    EXPECT_EQ(world.files["/work/Lodestar_Ideas_Temp.htm"],
              test::CrLf({
                  "<HTML><HEAD>",
                  "<TITLE>Lodestar Web Site Referral</TITLE>",
                  "<BODY>",
                  "<H2>Lodestar Web Site Referral</H2>",
                  "<TABLE BORDER=1>",
                  "<TR><TD>Book:</TD><TD>SAMPLE</TD></TR>",
                  "<TR><TD>Author:</TD><TD>Ann Author</TD></TR>",
                  "<TR><TD>Author's web page:</TD><TD>http://www.ann.example</TD></TR>",
                  "<TR><TD>Copyright:</TD><TD>2026 Ann</TD></TR>",
                  "<TR><TD>Last Topic Viewed:</TD><TD>Intro</TD></TR>",
                  "</TABLE>",
                  "",
                  "<P>Click ENTER below to connect your web browser to the author's web site, passing",
                  " the book name and topic to the web site.  This will enable you view additional",
                  " information about this book or topic, such as questions and answers logged by",
                  " other readers or other commentary that the author may have posted.</P>",
                  "<FORM METHOD=\"POST\" ACTION=\"http://www.ann.example\">",
                  "<INPUT TYPE=\"Hidden\" NAME=\"Topic\" VALUE=\"SAMPLE: Intro\">",
                  "<INPUT TYPE=\"submit\" VALUE=\"Enter\">",
                  "</FORM>",
                  "<HR>",
                  "</BODY>",
                  "</HTML>",
              }));
    EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web /work/Lodestar_Ideas_Temp.htm"});
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(WebReferralTest, noTopic_hasNoRowAndTheValueEndsInABlank)
{
    const std::string page = ReferralPage(book, UnixPaths, "");
    EXPECT_EQ(page.find("Last Topic Viewed"), std::string::npos);
    EXPECT_NE(page.find(" VALUE=\"SAMPLE: \">\r\n"), std::string::npos);
    EXPECT_EQ(ReferralPage(book, UnixPaths, "[]"), page);
}

TEST_F(WebReferralTest, topicName_losesOneBracketAtEachEndWhereThereIsOne)
{
    for (const auto& [name, topic] : {std::pair("[Intro]", "Intro"),
                                      {"Intro", "Intro"},
                                      {"[Intro", "Intro"},
                                      {"Intro]", "Intro"},
                                      {"[[a]]", "[a]"}}) {
        SCOPED_TRACE(name);
        EXPECT_NE(ReferralPage(book, UnixPaths, name).find("SAMPLE: " + std::string(topic) + "\">"),
                  std::string::npos);
    }
}

TEST_F(WebReferralTest, quotesAndAngleBrackets_areWrittenAsTheyAre)
{
    book.BookAuthor = "<Ann> & \"Bob\"";
    const std::string page = ReferralPage(book, UnixPaths, "[A \"b\" <c>]");
    EXPECT_NE(page.find("<TD><Ann> & \"Bob\"</TD>"), std::string::npos);
    EXPECT_NE(page.find(" VALUE=\"SAMPLE: A \"b\" <c>\">"), std::string::npos);
}

TEST_F(WebReferralTest, lettersWithAccents_areTheCodePagesAlsoInTheBooksName)
{
    book.BookAuthor = "Ren\xE9";
    book.BookPath = "/books/Caf\xC3\xA9 \xE2\x98\x83.IDA";
    const std::string page = ReferralPage(book, UnixPaths,
                                          "[Gr\xFC\xDF"
                                          "e]");
    EXPECT_NE(page.find("<TD>Ren\xE9</TD>"), std::string::npos);
    EXPECT_NE(page.find("VALUE=\"Caf\xE9 &#9731;: Gr\xFC\xDF"
                        "e\">"),
              std::string::npos);
}

TEST(BookNameOf, path_givesTheNameWithoutFolderAndType)
{
    struct Case
    {
        PathRules rules;
        const char* path;
        const char* name;
    };
    for (const Case& c : {
             Case{WindowsPaths, "LS:SAMPLE.IDA", "SAMPLE"},
             Case{UnixPaths, "LS:SAMPLE.IDA", "SAMPLE"},
             Case{WindowsPaths, "C:\\BOOKS\\Sample.ida", "Sample.ida"},
             Case{UnixPaths, "/books/Sample.ida", "Sample.ida"},
             Case{UnixPaths, "/books/Guide (001).IDA", "Guide (001)"},
             Case{UnixPaths, "X.IDA", "X"},
             Case{UnixPaths, ".IDA", ".IDA"},
             Case{UnixPaths, "/books/.IDA", ".IDA"},
             Case{UnixPaths, "/books/a.IDA.IDA", "a.IDA"},
             Case{UnixPaths, "/books/Part 1: Rivers.IDA", " Rivers"},
             Case{UnixPaths, "/a:b/c:d.IDA", "c:d"},
             Case{UnixPaths, "", ""},
         }) {
        EXPECT_EQ(BookNameOf(c.rules, c.path), c.name) << c.path;
    }
}

TEST(SiteOf, address_getsItsSchemeWhereItHasNone)
{
    EXPECT_EQ(SiteOf("www.ann.example"), "http://www.ann.example");
    EXPECT_EQ(SiteOf("http://ann.example"), "http://ann.example");
    EXPECT_EQ(SiteOf("https://ann.example"), "https://ann.example");
    EXPECT_EQ(SiteOf("HTTP://ann.example"), "http://HTTP://ann.example");
    EXPECT_EQ(SiteOf(" http://ann.example"), "http:// http://ann.example");
}

TEST_F(WebReferralTest, capitalScheme_standsTwiceInTheTableAndTheForm)
{
    book.BookUrl = "HTTP://ann.example/";
    const std::string page = ReferralPage(book, UnixPaths, "");
    EXPECT_NE(page.find("<TD>http://HTTP://ann.example/</TD>"), std::string::npos);
    EXPECT_NE(page.find("ACTION=\"http://HTTP://ann.example/\">"), std::string::npos);
}

TEST_F(WebReferralTest, post_yesInAnyCaseWritesThePage)
{
    for (const char* post : {"yes", "Yes", "YES"}) {
        book.BookPost = post;
        world.files["/work/Lodestar_Ideas_Temp.htm"] = "old";
        Show();
        EXPECT_TRUE(world.files["/work/Lodestar_Ideas_Temp.htm"].starts_with("<HTML>")) << post;
        EXPECT_EQ(world.messages.Take(), Strings{});
    }
    EXPECT_EQ(world.processes.started.size(), 3U);
}

TEST_F(WebReferralTest, anyOtherPost_asksAndOpensTheSite)
{
    book.BookUrl = "http://ann.example/a";
    for (const char* post : {"", "no", "yes ", "Y"}) {
        book.BookPost = post;
        world.messages.replies = {Reply::Ok};
        world.processes.started.clear();
        Show();
        EXPECT_EQ(world.messages.Take(), Strings{Question()}) << post;
        EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web http://ann.example/a"}) << post;
        EXPECT_FALSE(world.files.Has("/work/Lodestar_Ideas_Temp.htm"));
    }
    EXPECT_EQ(book.BookUrl, "http://ann.example/a") << "the launch gets a copy";
}

TEST_F(WebReferralTest, anyOtherPostAndCancel_doesNothing)
{
    book.BookPost = "no";
    world.messages.replies = {Reply::Cancel};
    Show();
    EXPECT_EQ(world.messages.Take(), Strings{Question()});
    EXPECT_EQ(world.processes.started, Strings{});
}

TEST(AddressToOpen, bookUrl_isAnAddressAndNothingElse)
{
    struct Case
    {
        const char* url;
        const char* address;
    };
    for (const Case& c : {
             Case{"http://ann.example/a?b=c", "http://ann.example/a?b=c"},
             Case{"https://ann.example", "https://ann.example"},
             Case{"HTTP://ANN.EXAMPLE", "HTTP://ANN.EXAMPLE"},
             Case{"ftp://ann.example", "ftp://ann.example"},
             Case{"www.ann.example", "http://www.ann.example"},
             Case{"ann.example/?see=http://x", "http://ann.example/?see=http://x"},
             Case{"--gpu-launcher=x http://a", "http://--gpu-launcher=x http://a"},
             Case{"http://a\" --option \"b", "http://a%22 --option %22b"},
             Case{"\"http://a", "http://%22http://a"},
             Case{"://a", "http://://a"},
         }) {
        EXPECT_EQ(AddressToOpen(c.url), c.address);
    }
}

TEST_F(WebReferralTest, addressWithABlank_isOneArgument)
{
    book.BookPost = "";
    book.BookUrl = "ann.example/my page";
    world.messages.replies = {Reply::Ok};
    Show();
    EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web \"http://ann.example/my page\""});
}

TEST_F(WebReferralTest, addressWithAccents_isUtf8ForTheBrowser)
{
    book.BookPost = "";
    book.BookUrl = "http://caf\xE9.example/";
    world.messages.replies = {Reply::Ok};
    Show();
    EXPECT_EQ(world.processes.started, Strings{"/usr/bin/web http://caf\xC3\xA9.example/"});
}

TEST_F(WebReferralTest, emptyAddress_endsTheProgramWithoutAMessage)
{
    book.BookUrl.clear();
    Show();
    EXPECT_TRUE(world.end.Ended());
    EXPECT_EQ(world.end.Reason(), "web referral for a book without a web address");
    EXPECT_EQ(world.messages.Take(), Strings{});
    EXPECT_EQ(world.processes.started, Strings{});
    EXPECT_FALSE(world.files.Has("/work/Lodestar_Ideas_Temp.htm"));
}

TEST_F(WebReferralTest, workDir_getsThePageWithOrWithoutItsSeparator)
{
    for (const char* folder : {"/pages", "/pages/"}) {
        book.WorkDir = folder;
        world.files.AddFolder("/pages");
        Show();
        EXPECT_TRUE(world.files.Has("/pages/Lodestar_Ideas_Temp.htm"));
        EXPECT_TRUE(world.files.Remove("/pages/Lodestar_Ideas_Temp.htm").Ok());
    }
    const std::string started = "/usr/bin/web /pages/Lodestar_Ideas_Temp.htm";
    EXPECT_EQ(world.processes.started, (Strings{started, started}));
}

TEST_F(WebReferralTest, noBrowserForThePage_namesTheProgramsSite)
{
    registry.keys.clear();
    Show();
    EXPECT_EQ(world.messages.Take(), (Strings{NoKey, NoBrowser}));
}

TEST_F(WebReferralTest, noBrowserForTheSite_namesTheProgramsSite)
{
    registry.keys.clear();
    book.BookPost = "";
    world.messages.replies = {Reply::Ok};
    Show();
    EXPECT_EQ(world.messages.Take(), (Strings{Question(), NoKey, NoBrowser}));
}

TEST_F(WebReferralTest, browserThatDoesNotStart_isToldBoth)
{
    world.processes.result = {MakeFileError(53), 0};
    Show();
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Error # 53 on command line <</usr/bin/web "
                       "/work/Lodestar_Ideas_Temp.htm>> because of: File not found",
                       NoBrowser}));
}

TEST_F(WebReferralTest, registryFault_endsTheProgramWithItsOwnMessageOnly)
{
    registry.keys["HKCU\\SOFTWARE\\Classes\\.HTM"] = std::nullopt;
    Show();
    EXPECT_TRUE(world.end.Ended());
    EXPECT_EQ(world.messages.Take(),
              Strings{"critical|Lodestar Advisor|Failed to find registry value for:  Program exiting."});
}

} // namespace
} // namespace ls
