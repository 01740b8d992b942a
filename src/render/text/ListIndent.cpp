#include "render/text/ListIndent.h"

namespace ls {

namespace {

// Both limits are positions in the line, counted from 1. They are not lengths.
constexpr std::size_t NumberLimit = 10; ///< a number's ". " or ") " begins before it
constexpr std::size_t TagLimit = 6;     ///< text after a leading tag begins before it

constexpr auto None = std::string_view::npos;

// The position, from 0, where the text begins: after a leading tag of at most 4 characters.
std::size_t TextStart(std::string_view line)
{
    if (line.empty() || line.front() != '<') {
        return 0;
    }
    const std::size_t end = line.find('>');
    return end == None || end + 2 >= TagLimit ? 0 : end + 1;
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

int ListIndent(std::string_view line)
{
    line = line.substr(0, NumberLimit); // the rest of a long line does not matter
    const std::size_t start = TextStart(line);
    const std::string_view text = line.substr(start);
    if (text.starts_with(" - ")) {
        return 3;
    }
    if (text.starts_with("- ")) {
        return 2;
    }
    // "A1. " is a number too: only the last character must be a digit.
    const std::size_t point = text.find(". ");
    if (point != None && point > 0 && IsDigit(text[point - 1])) {
        return static_cast<int>(point) + 2;
    }
    // "a) " and "1) ", but not "10) ": one character before the bracket, of any kind.
    return text.find(") ") == 1 ? 3 : 0;
}

} // namespace ls
