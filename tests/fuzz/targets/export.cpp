// Exports every topic of a book. Compares with a plain reading of the rules and with the shown topic.

#include "World.h"
#include "base/FileSystem.h"
#include "base/Text.h"
#include "render/html/ExportTopic.h"
#include "render/text/ListIndent.h"
#include "render/text/PlainWrap.h"
#include "render/text/ShowTopic.h"

#include <algorithm>
#include <memory>

namespace ls::fuzz {

namespace {

constexpr const char* LineEnd = "\r\n";
constexpr int ExportWidth = 70;

bool EndsTopic(const std::string& line)
{
    return UpperCase(line).starts_with("<XREF") || UpperCase(Trim(line)) == "<IXML>" || line.starts_with('[');
}

// The exported lines of the topic whose header line begins at `pos`.
std::vector<std::string> BodyOf(const std::string& bytes, std::size_t pos)
{
    std::vector<std::string> body;
    bool inside = false;
    for (const SourceLine& line : LinesOf(bytes)) {
        const std::string text(TrimRight(line.text));
        if (inside && EndsTopic(text)) {
            break;
        }
        if (inside) {
            body.push_back(text);
        }
        inside = inside || line.pos == pos;
    }
    return body;
}

class PlainExport
{
public:
    std::string Run(const std::vector<std::string>& body)
    {
        for (const std::string& line : body) {
            TakeLine(line);
        }
        return m_html;
    }

private:
    void TakeLine(std::string rest)
    {
        const auto hang = static_cast<std::size_t>(ListIndent(rest));
        for (bool first = true; first || !rest.empty(); first = false) {
            const std::string segment = test::PlainWrapSegment(rest, ExportWidth, 0);
            if (segment.empty()) {
                m_html += LineEnd;
                return;
            }
            const std::string tag = UpperCase(segment.substr(0, 4));
            if (tag == "<H1>" || tag == "<H2>" || tag == "<H3>" || tag == "<H4>") {
                CloseList();
                m_html += segment + LineEnd;
                return;
            }
            if (first && hang == 0) {
                CloseList();
                m_html += "<P>" + segment;
            } else if (first) {
                OpenList(std::string(Trim(segment)));
                m_html += "<LI>" + segment.substr(std::min(hang, segment.size()));
            } else {
                m_html += segment;
            }
            m_html += rest.empty() ? (hang == 0 ? "</P>\r\n" : "</LI>\r\n") : LineEnd;
        }
    }

    void OpenList(const std::string& text)
    {
        if (!m_close.empty()) {
            return;
        }
        const char c = text.empty() ? ' ' : text[0];
        const bool numbered = c >= '0' && c <= '9';
        const bool capital = c >= 'A' && c <= 'Z';
        m_html += c == '-'   ? "<UL>\r\n"
                  : numbered ? "<OL>\r\n"
                  : capital  ? "<OL TYPE=A>\r\n"
                             : "<OL TYPE=a>\r\n";
        m_close = c == '-' ? "</UL>\r\n" : "</OL>\r\n";
    }

    void CloseList()
    {
        m_html += m_close;
        m_close.clear();
    }

    std::string m_html;
    std::string m_close; ///< the end tag of the open list; empty if none is open
};

std::string Without(std::string text, const std::string& part)
{
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
        text.erase(at, part.size());
    }
    return text;
}

// A topic without markup, lists and TABs exports the text that the reader sees, apart from blanks and
// paragraphs.
void RequireShownText(World& world, const Book& book, int number, const std::vector<std::string>& body,
                      const std::string& html)
{
    const bool plain = std::all_of(body.begin(), body.end(), [](const std::string& line) {
        return line.find_first_of("<&\t\n") == std::string::npos && ListIndent(line) == 0;
    });
    ShownTopic shown;
    std::string name = book.TopicNames(number);
    Count16 index = number;
    if (!plain || ShowTopic(book, world.Get(), name, index, 80, shown) != ShowResult::Shown) {
        return;
    }
    std::string text;
    for (int i = 1; i <= shown.lines.Count; ++i) {
        text += shown.lines(i);
    }
    const std::string exported = Without(Without(Without(html, "<P>"), "</P>"), LineEnd);
    if (text.find('<') == std::string::npos) { // there may be markup after the exported lines
        Require(WithoutBlanks(text).starts_with(WithoutBlanks(exported)),
                "the exported text is the text on show");
    }
}

void TakeTopic(World& world, const Book& book, const std::string& bytes, int number)
{
    const std::string& name = book.TopicNames(number);
    const std::string path = "/work/" + std::to_string(number) + ".htm";
    std::unique_ptr<OutputFile> file;
    Require(world.files.CreateNew(path, file).Ok(), "the export's file can be made");
    world.messages.texts.clear();
    Require(ExportTopic(book, world.Get(), name, number, *file), "a book that can be read is exported");
    const std::string& html = world.files[path];
    if (!name.ends_with(']')) {
        RequireEqual(html, "", "a topic whose header line lacks its bracket is not found");
        Require(world.messages.texts.empty(), "a topic that is not found is no news");
        return;
    }
    RequireEqual(world.messages.texts, {"The export is complete."}, "an export says that it is complete");
    const std::string title = name.size() > 2 ? name.substr(1, name.size() - 2) : name;
    const std::vector<std::string> body = BodyOf(bytes, static_cast<std::size_t>(book.TopicPos(number)));
    const std::string lines = PlainExport().Run(body);
    RequireEqual(html,
                 "<HTML>\r\n<HEAD>\r\n<TITLE>" + title + "</TITLE>\r\n</HEAD>\r\n<BODY>\r\n" + lines +
                     "</BODY>\r\n</HTML>\r\n",
                 "a topic is exported as by a plain reading of the rules");
    RequireShownText(world, book, number, body, lines);
}

} // namespace

void TestInput(Input& input)
{
    World world(input);
    Book book;
    const std::string bytes = AsBook(input.Text());
    if (!world.OpenBookOf(book, bytes)) {
        return;
    }
    for (int i = 1; i <= book.TopicCount && i <= 20; ++i) {
        TakeTopic(world, book, bytes, i);
    }
}

} // namespace ls::fuzz
