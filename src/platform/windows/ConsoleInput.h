#pragma once

#include <streambuf>
#include <string>

namespace ls {

/// What a person types at the console, as UTF-8 with "\n" line ends. Read as bytes, letters with accents come
/// in the console's own code page, and with some versions of the system not at all.
class ConsoleInput : public std::streambuf
{
protected:
    /// Waits for a line. Ctrl+Z at the start of one is the end of the input.
    int_type underflow() override;

private:
    std::string m_line;
    std::wstring m_half; ///< the first half of a character whose second half is still to be read
    bool m_ended = false;
};

} // namespace ls
