// Wraps a line in memory and while it is read, and draws the rows. Compares with plain readings of both
// rules.

#include "World.h"
#include "base/LineCursor.h"
#include "base/Text.h"
#include "render/text/DisplayLines.h"
#include "render/text/DrawLines.h"
#include "render/text/ListIndent.h"
#include "render/text/PlainWrap.h"
#include "render/text/RunList.h"
#include "render/text/TopicText.h"
#include "render/text/WrapSegment.h"
#include "support/DrippingFile.h"

#include <algorithm>
#include <array>

namespace ls::fuzz {

namespace {

constexpr std::size_t AllRows = std::string::npos;

// The rows of the line, or its first `most` rows.
std::vector<std::string> Wrapped(LineRemainder rest, int width, int indent, std::size_t most = AllRows)
{
    std::vector<std::string> segments;
    do {
        std::string segment;
        WrapSegment(rest, width, segments.empty() ? 0 : indent, segment);
        segments.push_back(segment);
    } while (!rest.Blank() && segments.size() < most);
    return segments;
}

std::vector<std::string> PlainWrapped(std::string line, int width, int indent)
{
    std::vector<std::string> segments;
    do {
        segments.push_back(test::PlainWrapSegment(line, width, segments.empty() ? 0 : indent));
    } while (!Trim(line).empty());
    return segments;
}

// Wraps the same line from a file that gives a few bytes at a time, as a long line is wrapped for the screen.
// Sometimes it stops in the middle. `rows` are the rows when wrapped in memory.
void RequireWrappedWhileRead(Input& input, const std::string& line, int width, int indent,
                             const std::vector<std::string>& rows)
{
    constexpr std::array<std::string_view, 3> ends = {"\r\nnext", "\rnext", ""};
    const std::string_view end = ends[input.Choose(ends.size())];
    // For a line that does not break, each piece causes a walk from its start. So longer lines get larger
    // pieces.
    test::DrippingFile file(line + std::string(end), 1 + input.Choose(60) + line.size() / 64);
    file.uneven = input.Choose(2) == 0;
    const std::size_t most = input.Choose(4) == 3 ? 1 + input.Choose(6) : AllRows;
    LineCursor cursor(file);
    std::string_view part;
    bool whole = true;
    Require(cursor.BeginLine(part, whole).Ok(), "a line can be begun");
    const std::string wrapped(whole ? std::string_view(line) : TrimRight(line));
    std::vector<std::string> expected = rows;
    if (wrapped.size() < line.size()) {
        expected = PlainWrapped(wrapped, width, indent);
        RequireEqual(Wrapped(LineRemainder(wrapped), width, indent), expected,
                     "a line without the blanks at its end wraps as a plain reading wraps it");
    }
    expected.resize(std::min(expected.size(), most));
    RequireEqual(Wrapped(LineRemainder(part, whole ? nullptr : &cursor), width, indent, most), expected,
                 "a line wraps while it is read as it does in memory");
    Require(cursor.EndLine().Ok(), "a line can be ended");
    std::string next;
    const FileError error = cursor.ReadLine(next);
    Require(end.empty() ? error.number == error::InputPastEnd : error.Ok() && next == "next",
            "the next line follows");
}

// The text of a display line without its markup. Each search begins at the start.
std::string PlainMarkup(std::string line)
{
    std::string text;
    for (;;) {
        const std::size_t open = line.find('<');
        const std::size_t close = open == std::string::npos ? open : line.find('>', open);
        const std::size_t ampersand = line.find('&');
        const std::size_t semicolon = ampersand == std::string::npos ? ampersand : line.find(';', ampersand);
        const bool tag = close != std::string::npos;
        const bool entity = semicolon != std::string::npos;
        if (entity && (!tag || ampersand < open)) {
            const std::string name = line.substr(ampersand + 1, semicolon - ampersand - 1);
            text += line.substr(0, ampersand);
            text += name == "LT" ? '<' : name == "GT" ? '>' : name == "AMP" ? '&' : '?';
            line.erase(0, semicolon + 1);
        } else if (tag) {
            text += line.substr(0, open);
            line.erase(0, close + 1);
        } else {
            return text + line;
        }
    }
}

void RequireDrawnAsRead(const std::vector<std::string>& rows, float version)
{
    DisplayLines lines;
    std::string expected;
    for (const std::string& row : rows) {
        *lines.AddLine() = row;
        expected += version < 5 ? row : PlainMarkup(row);
    }
    RunList drawn(80, static_cast<int>(rows.size()));
    DrawLines(drawn, lines, 1, version);
    std::string text;
    std::string inRows;
    int row = 1;
    for (const Run& run : drawn.Runs()) {
        text += run.text;
        inRows.append(static_cast<std::size_t>(run.row - row), '\n').append(run.text);
        row = run.row;
    }
    if (!drawn.Runs().empty() && drawn.Runs().back().endRow &&
        drawn.Runs().back().displayLine < lines.Count) {
        inRows += '\n'; // the last line holds only tags and has a row of its own
    }
    RequireEqual(text, expected, "what is drawn is the text without its markup");
    RequireEqual(TopicText(lines, version).Text(), inRows, "the topic's text is what is drawn, in its rows");
}

} // namespace

void TestInput(Input& input)
{
    const int width = 1 + static_cast<int>(input.Choose(120));
    const int indent = static_cast<int>(input.Choose(11)) % width;
    const std::size_t times = 1 + input.Choose(12);
    const float version = input.Choose(4) == 3 ? 4.0F : 5.3F;
    std::string line;
    for (std::size_t i = 0; i < times; ++i) {
        line += input.Text();
    }
    const std::vector<std::string> rows = Wrapped(LineRemainder(line), width, indent);
    RequireEqual(rows, PlainWrapped(line, width, indent), "a line wraps as a plain reading wraps it");
    Require(ListIndent(line) >= 0 && ListIndent(line) <= 10, "a hanging indent fits every width");
    if (!line.empty() && line.find('\r') == std::string::npos) {
        RequireWrappedWhileRead(input, line, width, indent, rows);
    }
    std::string all;
    for (const std::string& row : rows) {
        all += row;
    }
    std::string source = line;
    for (std::size_t tab = source.find('\t'); tab != std::string::npos; tab = source.find('\t', tab + 1)) {
        source[tab] = ' ';
    }
    for (char& c : all) {
        c = c == '\t' ? ' ' : c;
    }
    RequireEqual(WithoutBlanks(all), WithoutBlanks(source), "wrapping loses nothing but blanks");
    if (rows.size() < 2000) {
        RequireDrawnAsRead(rows, version);
    }
}

} // namespace ls::fuzz
