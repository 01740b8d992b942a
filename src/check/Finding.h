#pragma once

#include <string>

namespace ls {

/// An error keeps something from working. A warning is about something that works, but not as intended.
enum class Severity
{
    Error,
    Warning,
};

/// One thing in a book that would surprise its author. Texts are UTF-8.
struct Finding
{
    std::string file;  ///< the book's path as given; empty for a text in the editor
    int line = 0;      ///< from 1, as an editor counts the lines of the file or text
    std::string topic; ///< the title without brackets; empty outside of the topics
    Severity severity = Severity::Error;
    std::string rule; ///< a short name that never changes, such as "no-question"
    std::string text; ///< one sentence: the effect on the reader, and the correction

    friend bool operator==(const Finding&, const Finding&) = default;
};

/// "error" or "warning".
[[nodiscard]] constexpr const char* SeverityWord(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

} // namespace ls
