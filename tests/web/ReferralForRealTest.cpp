// The whole path of a web referral: the desktop's lists name a browser, the program starts it on the page, a
// reader presses Enter, and the author's site receives the form. Browser and site are real, and use this
// machine only.

#include "book/Book.h"
#include "browser/HelpPages.h"
#include "browser/WebReferral.h"
#include "platform/ScratchDesktop.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/LinuxRegistry.h"
#include "support/Json.h"
#include "support/RecordingMessages.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace ls {
namespace {

using test::Json;

const std::string Tools = LS_WEB_TOOLS;

// The system's programs, with a program folder of the test's own.
class ScratchProcesses : public LinuxProcesses
{
public:
    std::string ProgramFolder() override { return programFolder; }
    std::string programFolder;
};

struct ReferralForReal : testing::Test, test::ScratchDesktop
{
    LinuxFileSystem files;
    ScratchProcesses system;
    LinuxRegistry registry{system};
    ProgramEnd end;
    test::RecordingMessages messages{end};
    Seams seams{files, messages, system, end, UnixPaths};
    std::string oldPath = std::getenv("PATH");

    ReferralForReal()
    {
        processes.environment["PATH"] += ":" + oldPath;
        for (const auto& [name, value] : processes.environment) {
            ::setenv(name.c_str(), value.c_str(), 1);
        }
    }

    ~ReferralForReal() override
    {
        for (const auto& [name, value] : processes.environment) {
            ::unsetenv(name.c_str());
        }
        ::setenv("PATH", oldPath.c_str(), 1);
    }

    // Registers a shell script as the desktop's web browser.
    void RegisterBrowser(const std::string& script)
    {
        folder.WriteProgram("opt/My Web/web", "#!/bin/sh\n" + script + "\n");
        WriteEntry("share/applications/web.desktop", "Exec=\"" + (folder / "opt/My Web/web") + "\" %u\n");
        WriteList("share/applications/mimeinfo.cache", "MIME Cache", "web.desktop;");
    }

    // Waits up to two minutes for a file, and returns its bytes.
    std::string Await(const std::string& name)
    {
        for (int i = 0; i < 12000 && !folder.Has(name); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return folder.Read(name);
    }
};

TEST_F(ReferralForReal, enterOnThePage_postsTheFieldToTheLetter)
{
    ASSERT_EQ(system.Start("\"" + Tools + "/author-site\" " + folder.Path()).error, FileError{});
    const std::string port = Await("port");
    RegisterBrowser("exec \"" + Tools + "/read-and-enter\" '" + folder.Path() + "' \"$1\"");
    Book book;
    book.BookPath = "/books/Fl\xC3\xBCsse & Meere (001).IDA";
    book.BookAuthor = "Ren\xE9";
    book.BookCopyright = "2026";
    book.BookUrl = "127.0.0.1:" + port + "/comments?book=1";
    book.BookPost = "Yes";
    book.WorkDir = folder.Path();
    ShowWebReferral(book, seams, registry,
                    "[Gr\xF6\xDF"
                    "e: 10 > 9 + 'so']");
    EXPECT_TRUE(messages.Take().empty());

    const Json table = Json::Parse(Await("table"));
    EXPECT_EQ(table["title"].String(), "Lodestar Web Site Referral");
    std::vector<std::string> rows;
    for (const Json& row : table["rows"].Items()) {
        rows.push_back(row.Strings()[0] + row.Strings()[1]);
    }
    EXPECT_EQ(rows,
              (std::vector<std::string>{"Book:Flüsse & Meere (001)", "Author:René",
                                        "Author's web page:http://127.0.0.1:" + port + "/comments?book=1",
                                        "Copyright:2026", "Last Topic Viewed:Größe: 10 > 9 + 'so'"}));
    EXPECT_EQ(Await("posted"), "POST /comments?book=1\napplication/x-www-form-urlencoded\n"
                               "Topic=Fl%FCsse+%26+Meere+%28001%29%3A+Gr%F6%DFe%3A+10+%3E+9+%2B+%27so%27");
    const Json after = Json::Parse(Await("after"));
    EXPECT_EQ(after["title"].String(), "Thank you");
    EXPECT_EQ(after["complaints"].Strings(), std::vector<std::string>{});
}

TEST_F(ReferralForReal, siteWithoutComments_isOpenedByTheRegisteredBrowser)
{
    RegisterBrowser("printf '<%s>' \"$@\" > '" + (folder / "part") + "' && mv '" + (folder / "part") + "' '" +
                    (folder / "started") + "'");
    Book book;
    book.BookUrl = "127.0.0.1/my \"page\" --option";
    messages.replies = {Reply::Ok};
    ShowWebReferral(book, seams, registry, "");
    EXPECT_EQ(Await("started"), "<http://127.0.0.1/my %22page%22 --option>")
        << "one argument, whatever it holds";
    EXPECT_EQ(messages.Take().size(), 1U);
}

TEST_F(ReferralForReal, helpPage_isShownByTheRegisteredBrowser)
{
    RegisterBrowser("printf '<%s>' \"$@\" > '" + (folder / "part") + "' && mv '" + (folder / "part") + "' '" +
                    (folder / "started") + "'");
    system.programFolder = LS_HELP;
    ASSERT_TRUE(HasHelpPage("Lodestar_Reader.htm", seams));
    ShowHelpPage("Lodestar_Reader.htm", seams, registry, [](const std::string&) { return std::string(); });
    EXPECT_EQ(Await("started"), std::string("<") + LS_HELP + "/Lodestar_Reader.htm>");
    EXPECT_TRUE(messages.Take().empty());
}

} // namespace
} // namespace ls
