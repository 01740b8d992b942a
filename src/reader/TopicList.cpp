#include "reader/TopicList.h"

#include "base/Text.h"
#include "book/Book.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace ls {

namespace {

constexpr std::string_view AfterNumber = ". ";

// A topic that is shown, with what the list is sorted by.
struct ShownName
{
    std::string name;
    std::string upper;
    int number = 0;
};

std::vector<ShownName> NamesToShow(const Book& book)
{
    std::vector<ShownName> names;
    names.reserve(static_cast<std::size_t>(book.TopicCount));
    for (int number = 1; number <= book.TopicCount; ++number) {
        const auto index = static_cast<std::size_t>(number);
        if (!book.TopicRecs(index).Deleted) {
            names.push_back({WithoutBrackets(book.TopicNames(index)), {}, number});
        }
    }
    return names;
}

// Without regard to case; names that differ only in case by their bytes, equal ones in the book's order.
void SortByName(std::vector<ShownName>& names)
{
    for (ShownName& shown : names) {
        shown.upper = UpperCase(shown.name);
    }
    std::sort(names.begin(), names.end(), [](const ShownName& a, const ShownName& b) {
        if (const int order = a.upper.compare(b.upper); order != 0) {
            return order < 0;
        }
        if (const int order = a.name.compare(b.name); order != 0) {
            return order < 0;
        }
        return a.number < b.number;
    });
}

int IndexToSelect(const Book& book, const std::vector<ShownName>& names)
{
    const std::string wanted = WithoutBrackets(book.CurrentTopicName);
    int first = -1;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].name != wanted) {
            continue;
        }
        if (names[i].number == book.CurrentTopicNo) {
            return static_cast<int>(i);
        }
        if (first < 0) {
            first = static_cast<int>(i);
        }
    }
    return first;
}

// "007. ": all numbers of one list are equally long, so that sorting them as texts keeps the book's order.
std::string Numbered(std::size_t count, std::size_t width)
{
    std::string number = std::to_string(count);
    number.insert(0, width - std::min(width, number.size()), '0');
    return number.append(AfterNumber);
}

} // namespace

TopicListModel FillTopicList(const Book& book, bool alphabetic)
{
    std::vector<ShownName> names = NamesToShow(book);
    if (alphabetic) {
        SortByName(names);
    }
    TopicListModel list;
    list.selected = IndexToSelect(book, names);
    list.items.reserve(names.size());
    // Deleted topics leave no gap in the numbering, but count for its width.
    const std::size_t width = std::to_string(static_cast<int>(book.TopicCount)).size();
    for (ShownName& shown : names) {
        std::string text = alphabetic ? std::string() : Numbered(list.items.size() + 1, width);
        text.append(shown.name);
        list.items.push_back({std::move(text), shown.number});
    }
    return list;
}

std::string TitleOfItem(const std::string& text, bool alphabetic)
{
    const std::size_t number = alphabetic ? std::string::npos : text.find(AfterNumber);
    return number == std::string::npos ? text : text.substr(number + AfterNumber.size());
}

} // namespace ls
