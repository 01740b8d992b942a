#pragma once

#include <streambuf>
#include <string>

namespace ls {

/// Console input as UTF-8 with "\n" line ends. Byte-wise reading would give letters with accents in the
/// console's own code page, and in some versions of the system not at all.
class ConsoleInput : public std::streambuf
{
protected:
    /// Waits for a line. Ctrl+Z at the start of a line ends the input.
    int_type underflow() override;

private:
    std::string m_line;
    std::wstring m_half; ///< the first half of a surrogate pair whose second half is not yet read
    bool m_ended = false;
};

} // namespace ls
