#include "base/CodePage.h"
#include "base/Text.h"
#include "book/TopicList.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"

namespace ls {

namespace {

constexpr std::string_view Alphabetic = "--alphabetic";

void WriteTopic(JsonWriter& json, const Book& book, const TopicListItem& item)
{
    const int number = item.itemData;
    json.BeginObject();
    json.Key("number").Number(std::int64_t{item.itemData});
    json.Key("title").BookText(WithoutBrackets(book.TopicNames(number)));
    json.Key("pos").Number(book.TopicPos(number));
    json.Key("item").BookText(item.text);
    json.EndObject();
}

Status Run(CommandContext& context)
{
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    const Book& book = context.TheBook();
    const TopicListModel list = FillTopicList(book, context.Args().Has(Alphabetic));
    if (context.Json()) {
        context.WriteJson([&book, &list](JsonWriter& json) {
            json.Key("topics").BeginArray();
            for (const TopicListItem& item : list.items) {
                WriteTopic(json, book, item);
            }
            json.EndArray();
        });
        return Status::Done;
    }
    for (const TopicListItem& item : list.items) {
        context.Line(FromBook(item.text));
    }
    return Status::Done;
}

} // namespace

CommandSpec TopicsCommand()
{
    return {
        "topics",
        "BOOK",
        1,
        1,
        "Lists the topics as the main window does",
        "",
        {{Alphabetic, "", "in alphabetic order, not in the order of the contents"}, JsonOption, PlainOption},
        Run};
}

} // namespace ls
