#include "base/CodePage.h"
#include "base/LineCursor.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/FileFacts.h"
#include "cli/JsonWriter.h"

#include <array>
#include <charconv>

namespace ls {

namespace {

// Whether the header line holds a character that no header may hold. The book was opened, so its first line
// can be read.
bool HasBadHeader(const CommandContext& context)
{
    std::unique_ptr<BookFile> file;
    std::string line;
    BookHeader header;
    if (!context.TheSeams().files.OpenForReading(context.Files().LastOpened(), Sharing::Shared, file).Ok()) {
        return false;
    }
    LineCursor cursor(*file);
    return !cursor.AtEnd() && cursor.ReadLine(line).Ok() && !ParseBookHeader(line, header);
}

void WriteJson(CommandContext& context)
{
    const Book& book = context.TheBook();
    const bool badHeader = HasBadHeader(context);
    context.WriteJson(
        [&book, badHeader](JsonWriter& json) {
            json.Key("magic").BookText(book.BookMagic);
            json.Key("version").Number(book.BookVersion);
            json.Key("author").BookText(book.BookAuthor);
            json.Key("copyright").BookText(book.BookCopyright);
            json.Key("url").BookText(book.BookUrl);
            json.Key("post").BookText(book.BookPost);
            json.Key("is_book").Bool(IsBook(book));
            json.Key("bad_header").Bool(badHeader);
            json.Key("topic_count").Number(std::int64_t{book.TopicCount});
            json.Key("xref_count").Number(std::int64_t{book.XrefCount});
            json.Key("book_start_pos").Number(book.BookStartPos);
        },
        true);
}

void Field(CommandContext& context, std::string_view label, const std::string& value)
{
    constexpr std::size_t LabelWidth = 18;
    std::string line(label);
    line.resize(LabelWidth, ' ');
    context.Line(line + (value.empty() ? "-" : value));
}

std::string VersionText(float version)
{
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), version).ptr;
    return {digits.data(), end};
}

std::string UnassignedText(const FileFacts& facts)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string list;
    for (std::size_t i = 0; i < UnassignedBytes.size(); ++i) {
        if (facts.unassigned[i] > 0) {
            list += list.empty() ? "" : ", ";
            list.append(1, Digits[UnassignedBytes[i] / 16U]).append(1, Digits[UnassignedBytes[i] % 16U]);
            list += " (" + std::to_string(facts.unassigned[i]) + ")";
        }
    }
    return list;
}

void WriteCodePage(CommandContext& context, const FileFacts& facts)
{
    Field(context, "Code page", facts.ascii ? "Windows-1252, ASCII only" : "Windows-1252");
    if (const std::string list = UnassignedText(facts); !list.empty()) {
        Field(context, "", "bytes without a character (how many): " + list);
    }
    if (facts.utf8) {
        Field(context, "", "the text reads as UTF-8: its letters with accents will show wrong");
    }
    if (facts.nul > 0) {
        Field(context, "", "NUL bytes: " + std::to_string(facts.nul));
    }
}

void WriteFacts(CommandContext& context)
{
    FileFacts facts;
    const FileError error =
        GatherFacts(context.TheSeams().files, context.Files().LastOpened(), &context.TheProgress(), facts);
    context.TheProgress().Erase();
    if (!error.Ok()) {
        return; // the verdict reports it
    }
    Field(context, "Size", std::to_string(facts.size) + (facts.size == 1 ? " byte" : " bytes"));
    Field(context, "Line ends", LineEndsText(facts));
    if (facts.lf > 0 && facts.crLf == 0 && facts.cr == 0) {
        Field(context, "", "a LF alone ends no line of a book: all of it reads as one line");
    }
    WriteCodePage(context, facts);
}

void WriteText(CommandContext& context)
{
    const Book& book = context.TheBook();
    Field(context, "File", FromPath(book.BookPath));
    if (IsBook(book)) {
        Field(context, "Kind", "book, version " + VersionText(book.BookVersion));
        Field(context, "Author", FromBook(book.BookAuthor));
        Field(context, "Copyright", FromBook(book.BookCopyright));
        Field(context, "Web address", FromBook(book.BookUrl));
        Field(context, "Post", FromBook(book.BookPost));
        Field(context, "Topics", std::to_string(book.TopicCount));
        Field(context, "Cross references", std::to_string(book.XrefCount));
    } else {
        Field(context, "Kind",
              context.Args().Has(PlainOption.name) ? "no book, taken as plain text" : "no book");
    }
    WriteFacts(context);
}

Status Run(CommandContext& context)
{
    const Opening opening = context.OpenTheBook();
    if (opening == Opening::Failed) {
        return context.GiveUp();
    }
    if (context.Json()) {
        WriteJson(context);
    } else {
        WriteText(context);
    }
    return opening == Opening::Done ? Status::Done : Status::Fault;
}

} // namespace

CommandSpec InfoCommand()
{
    return {"info",
            "BOOK",
            1,
            1,
            "Tells a book's header fields, counts, size, line ends and code page",
            "",
            {JsonOption, PlainOption},
            Run};
}

} // namespace ls
