#include "browser/WebReferral.h"

#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/ReplaceFile.h"
#include "base/StdSubs.h"
#include "base/Text.h"
#include "book/Book.h"
#include "browser/APISubs.h"
#include "browser/ReferralAddress.h"
#include "render/html/WebSite.h"

#include <initializer_list>

namespace ls {

namespace {

constexpr const char* PageName = "Lodestar_Ideas_Temp.htm";

class Lines
{
public:
    void Add(std::initializer_list<std::string_view> pieces)
    {
        for (const std::string_view piece : pieces) {
            m_text += piece;
        }
        m_text += LineEnd;
    }
    void AddRow(std::string_view label, std::string_view value)
    {
        Add({"<TR><TD>", label, ":</TD><TD>", value, "</TD></TR>"});
    }
    [[nodiscard]] const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

// A path as text of the page. A character that the code page lacks becomes "&#8594;" or the like, so that the
// browser shows and posts the name that the user sees.
std::string PathInPage(const std::string& path)
{
    const std::string utf8 = FromPath(path);
    std::string text;
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t begin = at;
        const char32_t character = NextUtf8(utf8, at);
        const std::optional<std::string> byte = ToBook(std::string_view(utf8).substr(begin, at - begin));
        text += byte ? *byte : "&#" + std::to_string(static_cast<unsigned>(character)) + ";";
    }
    return text;
}

FileError WritePage(FileSystem& files, const std::string& path, const std::string& page)
{
    std::unique_ptr<OutputFile> file;
    FileError error = OpenToReplace(files, path, file);
    if (error.Ok()) {
        error = file->Write(page);
    }
    if (error.Ok()) {
        error = file->Finish();
    }
    return error;
}

// Writes the page and returns its path; empty after a message.
std::string MakePage(const Book& book, const Seams& seams, const std::string& topicName)
{
    const std::string path = JoinPath(seams.paths, book.WorkDir, PageName);
    const FileError error = WritePage(seams.files, path, ReferralPage(book, seams.paths, topicName));
    if (error.Ok()) {
        return path;
    }
    seams.messages.MsgBox("Failed to write temporary HTML file <<" + FromPath(path) + ">>" + DueTo(error),
                          Icon::Exclamation);
    return {};
}

// The address to open if the user agrees, else empty.
std::string AskForSite(const Book& book, const Seams& seams)
{
    const Reply reply = seams.messages.MsgBox(
        "To start your web browser and access the web site for the book you are viewing, click O.K. below.  "
        "The author of this book, " +
            FromBook(book.BookAuthor) +
            ", or the author's publisher, have posted information at this web site: " + std::string(LineEnd) +
            FromBook(book.BookUrl),
        Icon::None, Buttons::OkCancel);
    return reply == Reply::Ok ? AddressToOpen(FromBook(book.BookUrl)) : std::string();
}

} // namespace

std::string SiteOf(const std::string& bookUrl)
{
    const bool complete = bookUrl.starts_with("http://") || bookUrl.starts_with("https://");
    return complete ? bookUrl : "http://" + bookUrl;
}

std::string BookNameOf(PathRules rules, const std::string& bookPath)
{
    std::string name = bookPath;
    if (const std::size_t colon = name.find(':'); colon != std::string::npos) {
        name.erase(0, colon + 1);
    }
    if (const std::size_t separator = name.rfind(rules.separator); separator != std::string::npos) {
        name.erase(0, separator + 1);
    }
    if (name.size() > BookType.size() && name.ends_with(BookType)) {
        name.resize(name.size() - BookType.size());
    }
    return name;
}

std::string ReferralPage(const Book& book, PathRules rules, const std::string& topicName)
{
    const std::string topic = WithoutBrackets(topicName);
    const std::string name = PathInPage(BookNameOf(rules, book.BookPath));
    const std::string site = SiteOf(book.BookUrl);
    Lines lines;
    lines.Add({"<HTML><HEAD>"});
    lines.Add({"<TITLE>Lodestar Web Site Referral</TITLE>"});
    lines.Add({"<BODY>"});
    lines.Add({"<H2>Lodestar Web Site Referral</H2>"});
    lines.Add({"<TABLE BORDER=1>"});
    lines.AddRow("Book", name);
    lines.AddRow("Author", book.BookAuthor);
    lines.AddRow("Author's web page", site);
    lines.AddRow("Copyright", book.BookCopyright);
    if (!topic.empty()) {
        lines.AddRow("Last Topic Viewed", topic);
    }
    lines.Add({"</TABLE>"});
    lines.Add({});
    lines.Add({"<P>Click ENTER below to connect your web browser to the author's web site, passing"});
    lines.Add({" the book name and topic to the web site.  This will enable you view additional"});
    lines.Add({" information about this book or topic, such as questions and answers logged by"});
    lines.Add({" other readers or other commentary that the author may have posted.</P>"});
    lines.Add({"<FORM METHOD=\"POST\" ACTION=\"", site, "\">"});
    lines.Add({"<INPUT TYPE=\"Hidden\" NAME=\"Topic\" VALUE=\"", name, ": ", topic, "\">"});
    lines.Add({"<INPUT TYPE=\"submit\" VALUE=\"Enter\">"});
    lines.Add({"</FORM>"});
    lines.Add({"<HR>"});
    lines.Add({"</BODY>"});
    lines.Add({"</HTML>"});
    return lines.Text();
}

void ShowWebReferral(const Book& book, const Seams& seams, Registry& registry, const std::string& topicName)
{
    if (seams.end.Ended()) {
        return;
    }
    if (book.BookUrl.empty()) {
        EndProgram(seams.end, "web referral for a book without a web address");
        return;
    }
    std::string document =
        EqualsUpper(book.BookPost, "YES") ? MakePage(book, seams, topicName) : AskForSite(book, seams);
    if (document.empty()) {
        return;
    }
    std::string program = ".HTM";
    if (LaunchProgram(seams, registry, program, document) < 0) {
        seams.messages.MsgBox(
            "I need a web browser to connect to the web site, but your registry does not have "
            "an unambiguous reference to a single browser. To look up Lodestar Ideas on the "
            "web, please start your browser and go to this web site: " +
                std::string(ProgramsWebSite),
            Icon::Exclamation);
    }
}

} // namespace ls
