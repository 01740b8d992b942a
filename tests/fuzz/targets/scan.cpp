// Opens and scans a book. Compares with a plain reading of the whole file.

#include "World.h"
#include "base/LineCursor.h"
#include "base/Text.h"
#include "book/BookLoader.h"

#include <algorithm>

namespace ls::fuzz {

namespace {

/// The result of a scan: a line for each topic and each reference.
struct Found
{
    std::vector<std::string> topics;
    std::vector<std::string> xrefs;
    std::size_t end = 0;
};

class PlainScan
{
public:
    explicit PlainScan(const std::string& bytes) : m_lines(LinesOf(bytes)), m_size(bytes.size()) {}

    Found Run()
    {
        Found found;
        found.end = m_size + 1;
        std::string topic;
        for (m_at = 1; m_at < m_lines.size(); ++m_at) {
            const SourceLine& line = m_lines[m_at];
            if (line.text == "<INDEX>" || line.text == "[EOF]") {
                found.topics = line.text == "[EOF]" ? found.topics : std::vector<std::string>();
                found.end = line.pos;
                break;
            }
            if (line.text.starts_with("<XREF TOPIC=")) {
                const std::string target = Target(line.text);
                const std::string note = Note(line.text);
                if (!topic.empty() && !target.empty()) {
                    found.xrefs.push_back(topic + ">" + target + ":" + note);
                }
            } else if (line.text.size() > 2 && line.text[0] == '[') {
                const std::string name(Trim(line.text));
                topic = name.size() > 2 ? name.substr(1, name.size() - 2) : name.substr(1);
                topic = name.size() == 2 ? "" : topic;
                found.topics.push_back(std::to_string(line.pos) + " " + name);
            }
        }
        return found;
    }

private:
    static std::string Target(const std::string& opening)
    {
        const std::size_t end = opening.find('>');
        if (end == std::string::npos || end < 12) {
            return {};
        }
        const std::string target = opening.substr(12, end - 12);
        const bool quoted = target.size() > 2 && target[0] == '"';
        return quoted ? target.substr(1, target.size() - 2) : target;
    }

    std::string Note(const std::string& opening)
    {
        const std::size_t behind = opening.find('>');
        std::string piece = behind == std::string::npos ? "" : opening.substr(behind + 1);
        std::string note;
        for (;;) {
            const std::size_t end = piece.find("</XREF>");
            const bool last = end != std::string::npos;
            const std::string trimmed(Trim(std::string_view(piece).substr(0, end)));
            if (!last && piece.find("<\\") != std::string::npos) {
                return note;
            }
            if (!trimmed.empty() || (!last && !note.empty())) {
                const std::string joint = note.empty() ? "" : "\r\n";
                if (note.size() + joint.size() + trimmed.size() > 32000) {
                    return note + "???";
                }
                note += joint + trimmed;
            }
            if (last || m_at + 1 >= m_lines.size()) {
                m_at += last ? 0 : 1;
                return note;
            }
            piece = m_lines[++m_at].text;
        }
    }

    std::vector<SourceLine> m_lines;
    std::size_t m_size;
    std::size_t m_at = 0;
};

// A book whose lines cross the ends of the blocks in which a file is read.
std::string Padded(const std::string& book, Input& input)
{
    constexpr std::size_t Block = 64 * 1024;
    const std::size_t room = input.Choose(64);
    const std::size_t behind = book.find('\r');
    if (room == 0 || behind == std::string::npos) {
        return book;
    }
    const std::size_t from = std::min(behind + 2, book.size());
    std::string padded = book.substr(0, from);
    return padded + std::string(Block - std::min(from + room, Block), '.') + "\r\n" + book.substr(from);
}

} // namespace

void TestInput(Input& input)
{
    const std::string bytes = Padded(AsBook(input.Text()), input);
    World world(input);
    Book book;
    if (!world.OpenBookOf(book, bytes)) {
        return;
    }
    const Found found = PlainScan(bytes).Run();
    std::vector<std::string> topics;
    for (int number = 1; number <= book.TopicCount; ++number) {
        topics.push_back(std::to_string(book.TopicPos(number)) + " " + book.TopicNames(number));
    }
    RequireEqual(topics, found.topics, "the scan finds the topics of a plain reading");
    std::vector<std::string> xrefs;
    for (int i = 1; i <= book.XrefCount; ++i) {
        const XrefRec& xref = book.Xrefs(i);
        xrefs.push_back(xref.FromTopic + ">" + xref.ToTopic + ":" + xref.Text);
    }
    RequireEqual(xrefs, found.xrefs, "the scan finds the references of a plain reading");
    Require(book.ScanEndPos == static_cast<FilePos>(found.end), "the scan ends where a plain reading does");
    world.messages.texts.clear();
    for (int i = 1; i <= book.TopicCount; ++i) {
        LineCursor cursor(*book.File);
        std::string name = book.TopicNames(i);
        Count16 number = i;
        LocateTopic(book, world.Get(), cursor, name, number);
        Require(world.messages.texts.empty() && !name.empty(), "every topic of the table is located");
    }
}

} // namespace ls::fuzz
