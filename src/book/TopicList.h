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

/// The topic list as it is shown.
struct TopicListModel
{
    std::vector<TopicListItem> items; ///< sorted
    int selected = -1;                ///< index of the entry to select, -1 for none
};

/// Builds the list of the topics that are not deleted, in alphabetic or contents order, with the entry of
/// `CurrentTopicName` selected (of several with that name the one with `CurrentTopicNo`, else the first).
[[nodiscard]] TopicListModel FillTopicList(const Book& book, bool alphabetic);

/// Sorts the numbers of topics as the alphabetic list does: without regard to case, names that differ only in
/// case by their bytes, equal ones in the book's order.
void SortByName(const Book& book, std::vector<int>& numbers);

/// "007. ": a number in `width` digits at least. All numbers of one list are equally long, so that sorting
/// them as texts keeps the book's order.
[[nodiscard]] std::string ItemNumber(int number, std::size_t width);

/// The title that an entry stands for: in contents order what follows the first ". ".
[[nodiscard]] std::string TitleOfItem(const std::string& text, bool alphabetic);

} // namespace ls
