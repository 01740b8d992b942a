#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ls {

struct Book;

/// One entry of the topic list.
struct TopicListItem
{
    std::string text; ///< "007. Safety" in contents order, "Safety" in alphabetic order (book text)
    int itemData = 0; ///< the topic's number in the table

    friend bool operator==(const TopicListItem&, const TopicListItem&) = default;
};

/// The entries of the topic list.
struct TopicListModel
{
    std::vector<TopicListItem> items; ///< sorted
    int selected = -1;                ///< index of the entry to select, -1 for none
};

/// Builds the list of the topics that are not deleted, in alphabetic or contents order. Selects the entry of
/// `CurrentTopicName`: the one with `CurrentTopicNo` if several have that name, else the first.
[[nodiscard]] TopicListModel FillTopicList(const Book& book, bool alphabetic);

/// Sorts topic numbers as the alphabetic list does: without regard to case, then by bytes, then in the book's
/// order.
void SortByName(const Book& book, std::vector<int>& numbers);

/// "007. ": the number with at least `width` digits. All numbers of one list have the same length, so that
/// sorting them as texts keeps the book's order.
[[nodiscard]] std::string ItemNumber(int number, std::size_t width);

/// The title in an entry. In contents order it follows the first ". ".
[[nodiscard]] std::string TitleOfItem(const std::string& text, bool alphabetic);

} // namespace ls
