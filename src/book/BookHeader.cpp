#include "book/BookHeader.h"

#include "base/Text.h"
#include "book/BookWords.h"
#include "book/ParameterList.h"

#include <cmath>
#include <limits>

namespace ls {

namespace {

constexpr std::size_t VersionLetter = 14; ///< index of the "V", from 0
constexpr float FirstBookVersion = 4.0F;

// A number too large for the version field counts as 0.
float VersionOf(std::string_view text)
{
    const double number = LeadingNumber(text);
    return std::abs(number) <= std::numeric_limits<float>::max() ? static_cast<float>(number) : 0;
}

bool StoreField(BookHeader& header, const std::string& key, const std::string& value)
{
    if (key == AuthorKey) {
        header.BookAuthor = Unquote(value);
    } else if (key == CopyrightKey) {
        header.BookCopyright = Unquote(value);
    } else if (key == UrlKey) {
        header.BookUrl = Unquote(value);
    } else if (key == PostKey) {
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
    if (!BeginsUpper(magic, HeaderMagic)) {
        return true;
    }
    header.BookMagic = magic;
    if (magic.size() > VersionLetter + 1 && magic[VersionLetter] == 'V') {
        header.BookVersion = VersionOf(magic.substr(VersionLetter + 1));
        header.BookMagic = HeaderMagic;
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
    return EqualsUpper(header.BookMagic, HeaderMagic) && header.BookVersion >= FirstBookVersion;
}

std::string HeaderLine(const BookHeader& header)
{
    std::string line(HeaderMagic);
    line.append(" ").append(HeaderVersion);
    AppendField(line, AuthorKey, header.BookAuthor);
    AppendField(line, CopyrightKey, header.BookCopyright);
    AppendField(line, UrlKey, header.BookUrl);
    AppendField(line, PostKey, header.BookPost);
    return line;
}

} // namespace ls
