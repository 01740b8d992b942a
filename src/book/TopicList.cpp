#include "book/TopicList.h"

#include "base/Text.h"
#include "book/Book.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace ls {

namespace {

constexpr std::string_view AfterNumber = ". ";

// A topic with its sort key.
struct SortedName
{
    std::string name;
    std::string upper;
    int number = 0;
};

bool ComesBefore(const SortedName& a, const SortedName& b)
{
    if (const int order = a.upper.compare(b.upper); order != 0) {
        return order < 0;
    }
    if (const int order = a.name.compare(b.name); order != 0) {
        return order < 0;
    }
    return a.number < b.number;
}

std::vector<int> NumbersToShow(const Book& book)
{
    std::vector<int> numbers;
    for (int number = 1; number <= book.TopicCount; ++number) {
        if (!book.TopicRecs(number).Deleted) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

int IndexToSelect(const Book& book, const std::vector<int>& numbers)
{
    const std::string wanted = WithoutBrackets(book.CurrentTopicName);
    int first = -1;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (TitleOf(book, numbers[i]) != wanted) {
            continue;
        }
        if (numbers[i] == book.CurrentTopicNo) {
            return static_cast<int>(i);
        }
        if (first < 0) {
            first = static_cast<int>(i);
        }
    }
    return first;
}

} // namespace

void SortByName(const Book& book, std::vector<int>& numbers)
{
    std::vector<SortedName> names;
    names.reserve(numbers.size());
    for (const int number : numbers) {
        std::string name = TitleOf(book, number);
        std::string upper = UpperCase(name);
        names.push_back({std::move(name), std::move(upper), number});
    }
    std::sort(names.begin(), names.end(), ComesBefore);
    std::transform(names.begin(), names.end(), numbers.begin(),
                   [](const SortedName& sorted) { return sorted.number; });
}

std::string ItemNumber(int number, std::size_t width)
{
    std::string text = std::to_string(number);
    text.insert(0, width - std::min(width, text.size()), '0');
    return text.append(AfterNumber);
}

TopicListModel FillTopicList(const Book& book, bool alphabetic)
{
    std::vector<int> numbers = NumbersToShow(book);
    if (alphabetic) {
        SortByName(book, numbers);
    }
    TopicListModel list;
    list.selected = IndexToSelect(book, numbers);
    list.items.reserve(numbers.size());
    // Deleted topics get no number, but they count for the width of the numbers.
    const std::size_t width = std::to_string(static_cast<int>(book.TopicCount)).size();
    for (const int number : numbers) {
        const int count = static_cast<int>(list.items.size()) + 1;
        std::string text = alphabetic ? std::string() : ItemNumber(count, width);
        text.append(TitleOf(book, number));
        list.items.push_back({std::move(text), number});
    }
    return list;
}

std::string TitleOfItem(const std::string& text, bool alphabetic)
{
    const std::size_t number = alphabetic ? std::string::npos : text.find(AfterNumber);
    return number == std::string::npos ? text : text.substr(number + AfterNumber.size());
}

} // namespace ls
