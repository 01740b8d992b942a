#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ls {

struct Book;

/// The body of a topic that was just added.
inline constexpr std::string_view NewTopicText = "Insert text here.";

/// The name that a typed text means: trimmed, and on one line, as a name that was pasted with its line end
/// would otherwise cut the topic's header line in two.
[[nodiscard]] std::string TopicNameFromText(std::string_view text);

/// Why a topic of that name (without brackets, not empty, book text) may not be added: the message for the
/// user, empty when it may. A removed topic keeps its name until the book is saved.
[[nodiscard]] std::string NameRefusal(const Book& book, const std::string& name);

/// Adds a topic at the end of the book, with `NewTopicText` for its text, makes it the current one and marks
/// the book as changed. False, and nothing is done, when the book holds as many topics as can be counted.
[[nodiscard]] bool AddTopic(Book& book, const std::string& name);

/// Whether one topic is to be removed.
struct RemovalChoice
{
    int number = 0; ///< the topic's, in the table
    bool removed = false;
};

/// Removes and restores topics, and marks the book as changed.
void SetRemoved(Book& book, const std::vector<RemovalChoice>& choices);

/// Moves the topics of those numbers (in any order, each once) behind the topic `after`, which is none of
/// them; 0 puts them first. They keep their order among themselves, and so do all others, removed ones
/// included. Names, places in the file and edits move together, the current topic keeps being the current
/// one, and the advisor's answers, which name topics by numbers, are forgotten.
void MoveTopics(Book& book, const std::vector<int>& selected, int after);

} // namespace ls
