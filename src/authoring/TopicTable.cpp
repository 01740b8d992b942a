#include "authoring/TopicTable.h"

#include "base/Text.h"
#include "book/Book.h"

#include <algorithm>
#include <utility>

namespace ls {

namespace {

// The name that would make a header line the end of the book.
constexpr std::string_view EndName = "EOF";

// Past their bound, the tables grow by ten when a topic is added.
constexpr std::size_t AddGrowthStep = 9;

bool IsTaken(const Book& book, const std::string& name)
{
    const auto end = book.TopicNames.begin() + book.TopicCount;
    return std::any_of(book.TopicNames.begin(), end,
                       [&name](const std::string& taken) { return WithoutBrackets(taken) == name; });
}

// The numbers of all topics in their new order.
std::vector<std::size_t> NewOrder(const Book& book, const std::vector<int>& selected, int after)
{
    const auto count = static_cast<std::size_t>(book.TopicCount);
    std::vector<bool> moves(count + 1, false);
    for (const int number : selected) {
        moves[static_cast<std::size_t>(number)] = true;
    }
    std::vector<std::size_t> order;
    order.reserve(count);
    const auto append = [&](std::size_t from, std::size_t to, bool moving) {
        for (std::size_t number = from; number <= to; ++number) {
            if (moves[number] == moving) {
                order.push_back(number);
            }
        }
    };
    append(1, static_cast<std::size_t>(after), false);
    append(1, count, true);
    append(static_cast<std::size_t>(after) + 1, count, false);
    return order;
}

template <typename T>
void Rearrange(Array1<T>& table, const std::vector<std::size_t>& order)
{
    std::vector<T> rearranged;
    rearranged.reserve(order.size());
    for (const std::size_t number : order) {
        rearranged.push_back(std::move(table(number)));
    }
    std::move(rearranged.begin(), rearranged.end(), table.begin());
}

} // namespace

std::string TopicNameFromText(std::string_view text)
{
    std::string name;
    for (const char c : text) {
        const bool lineEnd = c == '\r' || c == '\n';
        if (!lineEnd) {
            name.push_back(c);
        } else if (!name.ends_with(' ')) {
            name.push_back(' ');
        }
    }
    return std::string(Trim(name));
}

std::string NameRefusal(const Book& book, const std::string& name)
{
    if (name.find_first_of("[]") != std::string::npos) {
        return "You may not use brackets in the topic name.";
    }
    if (name == EndName) {
        return "You may not use EOF as a topic name, because it marks the end of a book.";
    }
    if (IsTaken(book, name)) {
        return "Sorry, you already have a chapter with this name.";
    }
    return {};
}

bool AddTopic(Book& book, const std::string& name)
{
    if (!book.TopicCount.Add()) {
        return false;
    }
    const auto number = static_cast<std::size_t>(book.TopicCount);
    book.TopicNames.Grow(number, AddGrowthStep);
    book.TopicPos.Grow(number, AddGrowthStep);
    book.TopicRecs.Grow(number, AddGrowthStep);
    book.TopicNames(number) = "[" + name + "]";
    book.TopicPos(number) = 0;
    book.TopicRecs(number) = TopicRec{};
    book.TopicRecs(number).Text = NewTopicText;
    book.CurrentTopicName = name;
    book.CurrentTopicNo = book.TopicCount;
    // Also when the text editor is then cancelled, the topic stays in the list: leaving must ask about it.
    book.BookChanged = true;
    return true;
}

void SetRemoved(Book& book, const std::vector<RemovalChoice>& choices)
{
    for (const RemovalChoice& choice : choices) {
        book.TopicRecs(static_cast<std::size_t>(choice.number)).Deleted = choice.removed;
    }
    book.BookChanged = true;
}

void MoveTopics(Book& book, const std::vector<int>& selected, int after)
{
    const std::vector<std::size_t> order = NewOrder(book, selected, after);
    Rearrange(book.TopicNames, order);
    Rearrange(book.TopicPos, order);
    Rearrange(book.TopicRecs, order);
    const auto current = std::find(order.begin(), order.end(), static_cast<std::size_t>(book.CurrentTopicNo));
    if (current != order.end()) {
        book.CurrentTopicNo = static_cast<int>(current - order.begin()) + 1;
    }
    ++book.TopicOrder;
    book.BookChanged = true;
}

} // namespace ls
