#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ls {

struct Book;

/// The text of a new topic.
inline constexpr std::string_view NewTopicText = "Insert text here.";

/// The topic name for a typed text: trimmed and on one line. A line end in a pasted name would break the
/// topic's header line in two.
[[nodiscard]] std::string TopicNameFromText(std::string_view text);

/// The message why no topic of that name may be added; empty if it may. `name` is book text without brackets,
/// not empty. A removed topic keeps its name until the book is saved.
[[nodiscard]] std::string NameRefusal(const Book& book, const std::string& name);

/// Adds a topic with `NewTopicText` at the end of the book, makes it the current one and marks the book as
/// changed. False, with nothing changed, if the book has as many topics as it can count.
[[nodiscard]] bool AddTopic(Book& book, const std::string& name);

/// Whether one topic is to be removed.
struct RemovalChoice
{
    int number = 0; ///< the topic's number in the table
    bool removed = false;
};

/// Removes and restores topics, and marks the book as changed.
void SetRemoved(Book& book, const std::vector<RemovalChoice>& choices);

/// Moves the topics `selected` (in any order, each once) to the place after the topic `after`, which is not
/// one of them; 0 puts them first. They keep their order, and so do all others, removed ones included.
///
/// Names, file positions and edits move along, and the current topic stays current. The advisor's answers are
/// forgotten, because they refer to topics by number.
void MoveTopics(Book& book, const std::vector<int>& selected, int after);

} // namespace ls
