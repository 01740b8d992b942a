#pragma once

#include "book/TopicList.h"

#include <string>
#include <vector>

namespace ls {

struct Book;

/// An entry of the form that removes topics.
struct RemovalEntry
{
    std::string text; ///< "007. Safety" in contents order, "Safety" in alphabetic order (book text)
    int itemData = 0; ///< the topic's number in the table
    bool checked = false;

    friend bool operator==(const RemovalEntry&, const RemovalEntry&) = default;
};

/// Every topic of the book, removed ones included and checked. In contents order they carry their numbers in
/// the table, so these may differ from the main window's, which counts what it lists.
[[nodiscard]] std::vector<RemovalEntry> RemovalEntries(const Book& book, bool alphabetic);

/// The topics that may be moved, in contents order and without numbers.
[[nodiscard]] std::vector<TopicListItem> MovableTopics(const Book& book);

/// What a move may be made behind: "** Start **", with the item data 0, and the topics of `movable` that are
/// not selected.
[[nodiscard]] std::vector<TopicListItem> MoveTargets(const std::vector<TopicListItem>& movable,
                                                     const std::vector<int>& selected);

/// Why those topics cannot be moved: the message for the user, empty when they can.
[[nodiscard]] std::string SelectionRefusal(const std::vector<TopicListItem>& movable,
                                           const std::vector<int>& selected);

} // namespace ls
