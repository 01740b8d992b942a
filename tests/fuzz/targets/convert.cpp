// Texts that become book text: line ends, UTF-8, and both code pages in both directions.

#include "World.h"
#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "book/ConvertText.h"
#include "book/LineEnds.h"

#include <algorithm>
#include <memory>

namespace ls::fuzz {

namespace {

std::string PlainCrLf(const std::string& text)
{
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            continue;
        }
        lines += text[i] == '\r' || text[i] == '\n' ? std::string("\r\n") : std::string(1, text[i]);
    }
    return lines;
}

void TakeCodePages(const std::string& text)
{
    const std::string utf8 = FromBook(text);
    RequireUtf8(utf8);
    const std::optional<std::string> back = ToBook(utf8);
    Require(back.has_value(), "book text comes back from UTF-8");
    RequireEqual(*back, text, "book text comes back from UTF-8 as it was");
    RequireUtf8(FromPath(text));
    Unmapped unmapped;
    if (const std::optional<std::string> book = ToBook(text, &unmapped)) {
        RequireEqual(FromBook(*book), text, "UTF-8 comes back from book text as it was");
    } else {
        Require(unmapped.line >= 1 && unmapped.character > 0x7F, "what the code page lacks is named");
    }
}

std::string Converted(World& world, BookFile& from, TextFindings& findings, ConvertedLines& lines)
{
    std::unique_ptr<OutputFile> to;
    world.files.RemoveIfPossible("/work/out");
    Require(world.files.CreateNew("/work/out", to).Ok(), "a file can be made");
    Require(ConvertText(from, findings, *to, nullptr, lines).Ok(), "a text can be converted");
    return world.files["/work/out"];
}

} // namespace

void TestInput(Input& input)
{
    World world(input);
    TakeCodePages(input.Text());
    std::string text = input.Text();
    if (input.Choose(256) == 255) {
        // longer than the blocks in which a file is read
        while (text.size() > 1 && text.size() < 300 * 1024) {
            text += std::string(text);
        }
    }
    world.files["/work/in"] = text;
    std::unique_ptr<BookFile> from;
    Require(world.files.OpenForReading("/work/in", Sharing::Shared, from).Ok(), "a file can be opened");
    TextFindings findings;
    Require(FindUnconvertible(*from, nullptr, findings).Ok(), "a text can be looked through");
    if (!findings.Convertible()) {
        return;
    }
    ConvertedLines lines;
    const std::string converted = Converted(world, *from, findings, lines);
    const bool utf8 = findings.coding == TextCoding::Utf8;
    const std::string bookText =
        utf8 ? ToBook(text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text).value() : text;
    RequireEqual(converted, PlainCrLf(bookText), "a text is converted as in a plain reading");
    Require(lines.converted <= lines.lines, "no more lines are converted than there are");
}

} // namespace ls::fuzz
