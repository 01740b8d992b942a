#include "base/CodePage.h"
#include "book/BookLoader.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"

#include <utility>

namespace ls {

namespace {

constexpr std::string_view Logic = "--logic";

// Reads the chosen topic's record, or the whole text of a plain text file.
Status Load(CommandContext& context, TopicRec& rec)
{
    std::string name;
    Count16 number;
    if (const Status status = context.ChooseTopic(name, number); status != Status::Done) {
        return status;
    }
    Book& book = context.TheBook();
    if (!LoadTopicRec(book, context.TheSeams(), name, number, &rec.Text)) {
        return Status::Fault;
    }
    if (book.IsPlainText()) {
        return Status::Done;
    }
    rec = std::move(book.TopicRecs(number)); // nothing else needs it afterwards
    return Status::Done;
}

Status Run(CommandContext& context)
{
    if (!context.NamesTopic()) {
        return Status::Usage;
    }
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    TopicRec rec;
    Status status = Load(context, rec);
    if (status == Status::Usage) {
        return status;
    }
    if (status != Status::Done) {
        return context.GiveUp();
    }
    const bool logic = context.Args().Has(Logic);
    if (logic && rec.Logic.empty()) {
        status = context.Fail("The topic has no logic block.");
    }
    if (context.Json()) {
        context.WriteJson([&rec](JsonWriter& json) {
            json.Key("text").BookText(rec.Text);
            json.Key("logic").BookText(rec.Logic);
        });
    } else {
        context.Write(logic ? rec.Logic : rec.Text);
    }
    return status;
}

} // namespace

CommandSpec TextCommand()
{
    return {"text",
            "BOOK TITLE",
            1,
            2,
            "Writes a topic's source text, or its logic block",
            "Lines end as the system's text lines do; in JSON with CR LF, as in the book.",
            {{Logic, "", "the logic block instead of the text"}, NumberOption, JsonOption, PlainOption},
            Run};
}

} // namespace ls
