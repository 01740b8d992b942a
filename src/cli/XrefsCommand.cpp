#include "base/CodePage.h"
#include "base/LineCursor.h"
#include "base/Text.h"
#include "book/BookLoader.h"
#include "book/XrefLists.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"
#include "cli/TerminalText.h"

#include <ostream>
#include <vector>

namespace ls {

namespace {

using XrefList = std::vector<const XrefRec*>;

void WriteList(JsonWriter& json, std::string_view key, const XrefList& list)
{
    json.Key(key).BeginArray();
    for (const XrefRec* xref : list) {
        json.BeginObject();
        json.Key("from").BookText(xref->FromTopic);
        json.Key("to").BookText(xref->ToTopic);
        json.Key("text").BookText(xref->Text);
        json.EndObject();
    }
    json.EndArray();
}

// Writes a note's lines, indented; a note without text adds nothing.
void WriteNote(CommandContext& context, const std::string& note, std::size_t indent)
{
    const std::string text = WithNewlines(FromBook(note));
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string line = text.substr(at, end - at);
        context.Line(line.empty() ? line : std::string(indent, ' ') + line);
        at = end + 1;
    }
}

Status WriteAll(CommandContext& context)
{
    XrefList all;
    for (int i = 1; i <= context.TheBook().XrefCount; ++i) {
        all.push_back(&context.TheBook().Xrefs(i));
    }
    if (context.Json()) {
        context.WriteJson([&all](JsonWriter& json) { WriteList(json, "xrefs", all); });
        return Status::Done;
    }
    for (const XrefRec* xref : all) {
        context.Line(FromBook(xref->FromTopic) + " -> " + FromBook(xref->ToTopic));
        WriteNote(context, xref->Text, 4);
    }
    return Status::Done;
}

void WriteGroup(CommandContext& context, std::string_view heading, const XrefList& list,
                std::string XrefRec::*otherTopic)
{
    if (list.empty()) {
        return;
    }
    context.Line("");
    context.Line(heading);
    for (const XrefRec* xref : list) {
        context.Line("  " + FromBook(xref->*otherTopic));
        WriteNote(context, xref->Text, 6);
    }
}

// The records of a list of references.
XrefList Records(const Book& book, const std::vector<XrefEntry>& entries)
{
    XrefList list;
    for (const XrefEntry& entry : entries) {
        list.push_back(&book.Xrefs(entry.itemData));
    }
    return list;
}

Status WriteBothWays(CommandContext& context, const std::string& title)
{
    const XrefLists lists = FindXrefs(context.TheBook(), title);
    const XrefList to = Records(context.TheBook(), lists.to);
    const XrefList in = Records(context.TheBook(), lists.in);
    if (context.Json()) {
        context.WriteJson([&to, &in](JsonWriter& json) {
            WriteList(json, "to", to);
            WriteList(json, "in", in);
        });
        return Status::Done;
    }
    context.Line("Cross Reference Topics for: " + FromBook(title));
    WriteGroup(context, "Related Topics", to, &XrefRec::ToTopic);
    WriteGroup(context, "Other topics that refer back to the current one:", in, &XrefRec::FromTopic);
    return Status::Done;
}

// The title of the chosen topic, which must be in the book. Empty after a report; `status` then holds the
// result.
std::string ChosenTitle(CommandContext& context, Status& status)
{
    std::string name;
    Count16 number;
    status = context.ChooseTopic(name, number);
    if (status != Status::Done || context.TheBook().IsPlainText()) {
        return {};
    }
    name = WithBrackets(name);
    LineCursor cursor = CursorOf(context.TheBook());
    LocateTopic(context.TheBook(), context.TheSeams(), cursor, name, number);
    status = name.empty() ? Status::Fault : Status::Done;
    return name.empty() ? name : name.substr(1, name.size() - 2);
}

Status Run(CommandContext& context)
{
    const bool ofTopic = context.Args().Operands().size() > 1 || context.Args().Has(NumberOption.name);
    if (ofTopic && !context.NamesTopic()) {
        return Status::Usage;
    }
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    if (!ofTopic) {
        return WriteAll(context);
    }
    Status status = Status::Done;
    const std::string title = ChosenTitle(context, status);
    return status == Status::Fault ? context.GiveUp() : WriteBothWays(context, title);
}

} // namespace

CommandSpec XrefsCommand()
{
    return {"xrefs",
            "BOOK [TITLE]",
            1,
            2,
            "Lists cross references with their notes; with a title both ways",
            "",
            {NumberOption, JsonOption, PlainOption},
            Run};
}

} // namespace ls
