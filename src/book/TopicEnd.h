#pragma once

#include "base/FilePos.h"

#include <string_view>

namespace ls {

struct Book;

/// Where a topic of the file ends: at the next topic, else where the scan stopped. A line in between that
/// begins with "[" but is no header ("[]", a line of a note) belongs to the topic and must not cut it short.
[[nodiscard]] FilePos EndOfTopic(const Book& book, int number);

/// What a line of a topic is to those who show it, in any letter case.
enum class TopicLine
{
    Text,
    Reference,  ///< begins with "<XREF": no text follows
    LogicBlock, ///< "<IXML>" alone: the logic block follows
    Header,     ///< begins with "[": the topic ends
};

[[nodiscard]] TopicLine ClassifyTopicLine(std::string_view line);

/// Whether no text follows in the topic. The display alone reads on after a reference, for the logic block.
[[nodiscard]] bool EndsText(std::string_view line);

/// Whether the line begins with "[". That ends every scan of a topic's text or logic block, also where the
/// line is no topic's header.
[[nodiscard]] bool StartsTopic(std::string_view line);

/// Whether the line opens a logic block: "<IXML>" between blanks, in any letter case.
[[nodiscard]] bool OpensBlock(std::string_view line);

} // namespace ls
