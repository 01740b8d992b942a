#include "authoring/TopicTable.h"

#include "base/Text.h"
#include "book/Book.h"
#include "book/BookWords.h"

#include <algorithm>
#include <utility>

namespace ls {

namespace {

// A full table grows by the new topic and this number of spare elements.
constexpr int AddGrowthStep = 9;

bool IsTaken(const Book& book, const std::string& name)
{
    const auto end = book.TopicNames.begin() + book.TopicCount;
    return std::any_of(book.TopicNames.begin(), end,
                       [&name](const std::string& taken) { return WithoutBrackets(taken) == name; });
}

// The numbers of all topics, in the new order.
std::vector<int> NewOrder(const Book& book, const std::vector<int>& selected, int after)
{
    const int count = book.TopicCount;
    Array1<char> moves(count);
    for (const int number : selected) {
        moves(number) = 1;
    }
    std::vector<int> order;
    const auto append = [&](int from, int to, bool moving) {
        for (int number = from; number <= to; ++number) {
            if ((moves(number) != 0) == moving) {
                order.push_back(number);
            }
        }
    };
    append(1, after, false);
    append(1, count, true);
    append(after + 1, count, false);
    return order;
}

template <typename T>
void Rearrange(Array1<T>& table, const std::vector<int>& order)
{
    std::vector<T> rearranged;
    rearranged.reserve(order.size());
    for (const int number : order) {
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
    if (WithBrackets(name) == BookEnd) {
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
    book.TopicNames.Grow(book.TopicCount, AddGrowthStep);
    book.TopicPos.Grow(book.TopicCount, AddGrowthStep);
    book.TopicRecs.Grow(book.TopicCount, AddGrowthStep);
    book.TopicNames(book.TopicCount) = "[" + name + "]";
    book.TopicPos(book.TopicCount) = 0;
    book.TopicRecs(book.TopicCount) = TopicRec{};
    book.TopicRecs(book.TopicCount).Text = NewTopicText;
    book.CurrentTopicName = name;
    book.CurrentTopicNo = book.TopicCount;
    // Set here because the topic stays even if the text editor is cancelled; leaving must then ask to save.
    book.BookChanged = true;
    return true;
}

void SetRemoved(Book& book, const std::vector<RemovalChoice>& choices)
{
    for (const RemovalChoice& choice : choices) {
        book.TopicRecs(choice.number).Deleted = choice.removed;
    }
    book.BookChanged = true;
}

void MoveTopics(Book& book, const std::vector<int>& selected, int after)
{
    const std::vector<int> order = NewOrder(book, selected, after);
    Rearrange(book.TopicNames, order);
    Rearrange(book.TopicPos, order);
    Rearrange(book.TopicRecs, order);
    const auto current = std::find(order.begin(), order.end(), book.CurrentTopicNo);
    if (current != order.end()) {
        book.CurrentTopicNo = static_cast<int>(current - order.begin()) + 1;
    }
    ++book.TopicOrder;
    book.BookChanged = true;
}

} // namespace ls
