#pragma once

#include "book/TopicList.h"

#include <string>
#include <vector>

namespace ls {

struct Book;

/// An entry in the form that removes topics.
struct RemovalEntry
{
    std::string text; ///< "007. Safety" in contents order, "Safety" in alphabetic order (book text)
    int itemData = 0; ///< the topic's number in the book's table
    bool checked = false;

    friend bool operator==(const RemovalEntry&, const RemovalEntry&) = default;
};

/// Every topic of the book; removed ones are checked. In contents order each text has the topic's number in
/// the table. The main window's numbers may differ, because it counts only the topics that it lists.
[[nodiscard]] std::vector<RemovalEntry> RemovalEntries(const Book& book, bool alphabetic);

/// The topics that may be moved, in contents order and without numbers.
[[nodiscard]] std::vector<TopicListItem> MovableTopics(const Book& book);

/// The places to which topics can be moved: "** Start **", with item data 0, and the topics of `movable` that
/// are not selected.
[[nodiscard]] std::vector<TopicListItem> MoveTargets(const std::vector<TopicListItem>& movable,
                                                     const std::vector<int>& selected);

/// The message why those topics cannot be moved; empty if they can.
[[nodiscard]] std::string SelectionRefusal(const std::vector<TopicListItem>& movable,
                                           const std::vector<int>& selected);

} // namespace ls
