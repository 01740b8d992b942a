#include "authoring/TopicChoices.h"

#include "base/Text.h"
#include "book/Book.h"

#include <unordered_set>

namespace ls {

namespace {

constexpr const char* StartEntry = "** Start **";

bool Deleted(const Book& book, int number)
{
    return book.TopicRecs(number).Deleted;
}

} // namespace

std::vector<RemovalEntry> RemovalEntries(const Book& book, bool alphabetic)
{
    std::vector<int> numbers;
    for (int number = 1; number <= book.TopicCount; ++number) {
        numbers.push_back(number);
    }
    if (alphabetic) {
        SortByName(book, numbers);
    }
    const std::size_t width = std::to_string(static_cast<int>(book.TopicCount)).size();
    std::vector<RemovalEntry> entries;
    entries.reserve(numbers.size());
    for (const int number : numbers) {
        const std::string shown = alphabetic ? std::string() : ItemNumber(number, width);
        entries.push_back({shown + TitleOf(book, number), number, Deleted(book, number)});
    }
    return entries;
}

std::vector<TopicListItem> MovableTopics(const Book& book)
{
    std::vector<TopicListItem> topics;
    for (int number = 1; number <= book.TopicCount; ++number) {
        if (!Deleted(book, number)) {
            topics.push_back({TitleOf(book, number), number});
        }
    }
    return topics;
}

std::vector<TopicListItem> MoveTargets(const std::vector<TopicListItem>& movable,
                                       const std::vector<int>& selected)
{
    const std::unordered_set<int> moving(selected.begin(), selected.end());
    std::vector<TopicListItem> targets{{StartEntry, 0}};
    for (const TopicListItem& topic : movable) {
        if (moving.count(topic.itemData) == 0) {
            targets.push_back(topic);
        }
    }
    return targets;
}

std::string SelectionRefusal(const std::vector<TopicListItem>& movable, const std::vector<int>& selected)
{
    if (selected.empty()) {
        return "You must select at least one topic to move.";
    }
    if (selected.size() == movable.size()) {
        return "You may not select all the topics at once.";
    }
    return {};
}

} // namespace ls
