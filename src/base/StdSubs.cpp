#include "base/StdSubs.h"

#include "base/Text.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace ls {

namespace {

constexpr std::size_t NumberWidth = 3;
constexpr double LargestNumber = 1e15; ///< up to here counting by ones is exact

// Cuts the type from a file name. A name whose only dot is its first character has no type.
std::string_view WithoutType(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos || dot == 0 ? name : name.substr(0, dot);
}

std::string NextNumber(std::string_view text)
{
    const double number = std::clamp(std::floor(LeadingNumber(text)), 0.0, LargestNumber);
    std::string next = std::to_string(static_cast<long long>(number) + 1);
    next.insert(0, NumberWidth - std::min(NumberWidth, next.size()), '0');
    return next;
}

} // namespace

std::string NumberedName(PathRules rules, const std::string& bookPath)
{
    if (bookPath.empty()) {
        return "Ideas (001).ida";
    }
    const std::string name = NameOf(rules, bookPath);
    const std::string_view bare = WithoutType(name);
    std::string numbered = bookPath.substr(0, bookPath.size() - name.size());
    const std::size_t open = bare.find('(');
    const std::size_t close = open == std::string_view::npos ? open : bare.find(')', open);
    if (close == std::string_view::npos) {
        numbered.append(bare).append(" (001)");
    } else {
        numbered.append(bare.substr(0, open + 1));
        numbered.append(NextNumber(bare.substr(open + 1, close - open - 1))).append(")");
    }
    return numbered.append(BookType);
}

} // namespace ls
