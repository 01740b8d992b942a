#pragma once

#include "base/Progress.h"

#include <iosfwd>
#include <string>

namespace ls {

/// Long work on a terminal: one line "Reading 45%", which is rewritten in place and goes when it is erased.
class ProgressLine : public Progress
{
public:
    /// Writes nothing at all when `shown` is false.
    ProgressLine(std::ostream& stream, bool shown) : m_stream(&stream), m_shown(shown) {}
    ~ProgressLine() override { Erase(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    bool Step(std::int64_t done, std::int64_t total) override;

    /// The same for work whose end nobody knows: shows a text of one line instead.
    void Show(const std::string& text);

    /// Takes the line away, before anything else is written there.
    void Erase();

private:
    std::ostream* m_stream;
    bool m_shown;
    int m_percent = -1;    ///< what stands on the terminal; -1 for no percentage
    bool m_stands = false; ///< whether anything stands there
};

} // namespace ls
