#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// What a line in a topic's text would do when the saved book is opened again.
enum class LineMeaning
{
    StartsTopic,  ///< "[Name]"
    HidesRest,    ///< "[]": begins no topic, but ends the display
    EndsBook,     ///< "[EOF]"
    OpensIndex,   ///< "<INDEX>"
    BeginsLogic,  ///< "<IXML>" in any letter case
    OpensEndless, ///< a cross reference without an end: its note would include the next topics
};

struct SpecialLine
{
    int line = 0; ///< from 1
    std::string text;
    LineMeaning meaning = LineMeaning::StartsTopic;
};

/// The lines of a topic's text (separated by CR LF) that would not be read back as text, in order.
/// Inside the note of a cross reference only "<IXML>" counts, because the scan reads all other lines as part
/// of the note.
[[nodiscard]] std::vector<SpecialLine> FindSpecialLines(std::string_view text);

/// The effect of such a line, for example "would start a new topic".
[[nodiscard]] std::string_view Consequence(LineMeaning meaning);

/// The question before such lines are stored, UTF-8. It names the first five of them.
[[nodiscard]] std::string SpecialLinesQuestion(const std::vector<SpecialLine>& lines);

} // namespace ls
