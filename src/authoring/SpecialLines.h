#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// What a line of a topic's text would do when the saved book is opened again.
enum class LineMeaning
{
    StartsTopic,  ///< "[Name]"
    HidesRest,    ///< "[]": no topic, but the display stops there
    EndsBook,     ///< "[EOF]"
    OpensIndex,   ///< "<INDEX>"
    BeginsLogic,  ///< "<IXML>" in any letter case
    OpensEndless, ///< a cross reference without its end: it would take the topics behind it into its note
};

struct SpecialLine
{
    int line = 0; ///< from 1
    std::string text;
    LineMeaning meaning = LineMeaning::StartsTopic;
};

/// The lines of a topic's text, parted by CR LF, that would not be read back as text, in their order.
/// Inside a cross reference's note only "<IXML>" counts: the scan takes every other line as note.
[[nodiscard]] std::vector<SpecialLine> FindSpecialLines(std::string_view text);

/// What becomes of such a line: "would start a new topic".
[[nodiscard]] std::string_view Consequence(LineMeaning meaning);

/// What the author is asked before such lines are kept, as UTF-8; it names the first five of them.
[[nodiscard]] std::string SpecialLinesQuestion(const std::vector<SpecialLine>& lines);

} // namespace ls
