#include "book/BookHeader.h"

#include "base/Text.h"
#include "book/ParameterList.h"

#include <cmath>
#include <limits>

namespace ls {

namespace {

constexpr std::string_view Magic = "LODESTAR BOOK";
constexpr std::size_t VersionLetter = 14; ///< where the "V" stands, counted from 0
constexpr float FirstBookVersion = 4.0F;

// A number that the version cannot hold counts as none.
float VersionOf(std::string_view text)
{
    const double number = LeadingNumber(text);
    return std::abs(number) <= std::numeric_limits<float>::max() ? static_cast<float>(number) : 0;
}

bool StoreField(BookHeader& header, const std::string& key, const std::string& value)
{
    if (key == "AUTHOR") {
        header.BookAuthor = Unquote(value);
    } else if (key == "COPYRIGHT") {
        header.BookCopyright = Unquote(value);
    } else if (key == "URL") {
        header.BookUrl = Unquote(value);
    } else if (key == "POST") {
        header.BookPost = Unquote(UpperCase(value));
    } else {
        return false;
    }
    return true;
}

void AppendField(std::string& line, std::string_view key, const std::string& value)
{
    if (!value.empty()) {
        line.append(" /").append(key).append("=\"").append(value).append("\"");
    }
}

} // namespace

bool ParseBookHeader(std::string_view line, BookHeader& header)
{
    header = {};
    const std::size_t slash = line.find('/');
    const std::string_view magic = Trim(line.substr(0, slash));
    if (!BeginsUpper(magic, Magic)) {
        return true;
    }
    header.BookMagic = magic;
    if (magic.size() > VersionLetter + 1 && magic[VersionLetter] == 'V') {
        header.BookVersion = VersionOf(magic.substr(VersionLetter + 1));
        header.BookMagic = Magic;
    }
    if (slash == std::string_view::npos) {
        return true;
    }
    return WalkParameters(line.substr(slash), [&header](const std::string& key, const std::string& value) {
        return StoreField(header, key, value);
    });
}

bool IsBook(const BookHeader& header)
{
    return EqualsUpper(header.BookMagic, Magic) && header.BookVersion >= FirstBookVersion;
}

std::string HeaderLine(const BookHeader& header)
{
    std::string line = "LODESTAR BOOK V5.3";
    AppendField(line, "AUTHOR", header.BookAuthor);
    AppendField(line, "COPYRIGHT", header.BookCopyright);
    AppendField(line, "URL", header.BookUrl);
    AppendField(line, "POST", header.BookPost);
    return line;
}

} // namespace ls
