#pragma once

#include "base/FilePos.h"

#include <string_view>

namespace ls {

struct Book;

/// The position where a topic of the file ends: at the next topic, else where the scan stopped. A line that
/// begins with "[" but is no header ("[]", or a line of a note) does not end the topic.
[[nodiscard]] FilePos EndOfTopic(const Book& book, int number);

/// What a line of a topic means for its display, in any letter case.
enum class TopicLine
{
    Text,
    Reference,  ///< begins with "<XREF": no text follows
    LogicBlock, ///< "<IXML>" alone: the logic block follows
    Header,     ///< begins with "[": the topic ends
};

[[nodiscard]] TopicLine ClassifyTopicLine(std::string_view line);

/// Whether the text of the topic ends at this line. Only the display reads on after a reference, to find the
/// logic block.
[[nodiscard]] bool EndsText(std::string_view line);

/// Whether the line begins with "[". Such a line ends every scan of a topic's text or logic block, even if it
/// is no topic's header.
[[nodiscard]] bool StartsTopic(std::string_view line);

/// Whether the line opens a logic block: "<IXML>" between blanks, in any letter case.
[[nodiscard]] bool OpensBlock(std::string_view line);

} // namespace ls
