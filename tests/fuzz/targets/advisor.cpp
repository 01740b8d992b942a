// Loads a topic's logic and plays whole dialogues with chosen answers. Compares with a plain reading of the
// rules.

#include "PlayedDialogues.h"
#include "World.h"
#include "advisor/AdvisorRunner.h"
#include "advisor/AdvisorTables.h"

#include <algorithm>

namespace ls::fuzz {

namespace {

// Whether the model can read the book: it knows ASCII only and finds topics by number, so names must be
// complete and unique.
bool ModelReads(const Book& book, const std::string& bytes)
{
    const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= 0; });
    std::vector<std::string> names(book.TopicNames.begin(), book.TopicNames.begin() + book.TopicCount);
    const bool whole =
        std::all_of(names.begin(), names.end(), [](const std::string& name) { return name.ends_with(']'); });
    std::sort(names.begin(), names.end());
    return ascii && whole && std::adjacent_find(names.begin(), names.end()) == names.end();
}

std::vector<test::Dialogue> ChooseDialogues(Input& input, const Book& book)
{
    std::vector<test::Dialogue> dialogues(1 + input.Choose(3));
    for (test::Dialogue& dialogue : dialogues) {
        dialogue.topic = 1 + static_cast<int>(input.Choose(static_cast<std::size_t>(book.TopicCount)));
        dialogue.reuse = input.Choose(4) != 3;
        dialogue.picks.resize(8 + input.Choose(8));
        for (std::size_t& pick : dialogue.picks) {
            pick = 1 + input.Choose(24);
            pick = pick == 24 ? 0 : pick;
        }
    }
    return dialogues;
}

} // namespace

void TestInput(Input& input)
{
    const std::string bytes = AsBook(input.Text());
    World world(input);
    Book book;
    if (!world.OpenBookOf(book, bytes, "/m.IDA") || book.TopicCount == 0) {
        return;
    }
    const std::vector<test::Dialogue> dialogues = ChooseDialogues(input, book);
    const test::Texts played = test::Played(book, world.Get(), dialogues);
    for (const std::string& line : played) {
        RequireUtf8(line);
    }
    bool gaveUp = false;
    if (ModelReads(book, bytes)) {
        const test::Texts modelled = test::Modelled(book, bytes, dialogues, gaveUp);
        if (!gaveUp) {
            RequireEqual(played, modelled, "a dialogue goes as a plain reading of the rules");
        }
    }
}

} // namespace ls::fuzz
