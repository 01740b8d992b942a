#pragma once

#include "base/Progress.h"

#include <iosfwd>
#include <string>

namespace ls {

/// Shows long work on a terminal as one line, "Reading 45%". It is rewritten in place and erased at the end.
class ProgressLine : public Progress
{
public:
    /// Writes nothing when `shown` is false.
    ProgressLine(std::ostream& stream, bool shown) : m_stream(&stream), m_shown(shown) {}
    ~ProgressLine() override { Erase(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    bool Step(std::int64_t done, std::int64_t total) override;

    /// Shows one line of text, for work of unknown length.
    void Show(const std::string& text);

    /// Erases the line. Call it before writing anything else there.
    void Erase();

private:
    std::ostream* m_stream;
    bool m_shown;
    int m_percent = -1;    ///< the percentage on the terminal; -1 for none
    bool m_stands = false; ///< whether the line is on the terminal
};

} // namespace ls
