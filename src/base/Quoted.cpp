#include "base/Quoted.h"

#include "base/CodePage.h"

namespace ls {

namespace {

constexpr std::size_t QuotedLength = 60;

} // namespace

std::string Quoted(std::string_view bookText)
{
    const bool cut = bookText.size() > QuotedLength;
    return "\"" + FromBook(bookText.substr(0, QuotedLength)) + (cut ? "...\"" : "\"");
}

std::string InAngles(const std::string& path)
{
    return "<<" + FromPath(path) + ">>";
}

} // namespace ls
