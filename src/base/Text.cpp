#include "base/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace ls {

std::string_view TrimLeft(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view TrimRight(std::string_view text)
{
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text)
{
    return TrimLeft(TrimRight(text));
}

namespace {

constexpr char UpperCaseOf(unsigned char byte)
{
    if (byte >= 'a' && byte <= 'z') {
        return static_cast<char>(byte - 0x20);
    }
    switch (byte) {
    case 0x9A: // s, oe and z with accents: capitals are 16 lower
    case 0x9C:
    case 0x9E:
        return static_cast<char>(byte - 0x10);
    case 0xFF: // y with two dots: its capital is 9F
        return static_cast<char>(0x9F);
    case 0xF7: // the division sign is no letter
        return static_cast<char>(byte);
    default:
        return static_cast<char>(byte >= 0xE0 ? byte - 0x20 : byte);
    }
}

constexpr std::array<char, 256> UpperCases = [] {
    std::array<char, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        table[byte] = UpperCaseOf(static_cast<unsigned char>(byte));
    }
    return table;
}();

} // namespace

char UpperCase(char c)
{
    return UpperCases[static_cast<unsigned char>(c)];
}

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char c) { return UpperCases[static_cast<unsigned char>(c)]; });
    return upper;
}

bool EqualsUpper(std::string_view text, std::string_view upper)
{
    return text.size() == upper.size() && BeginsUpper(text, upper);
}

bool BeginsUpper(std::string_view text, std::string_view upper)
{
    return text.size() >= upper.size() && std::equal(upper.begin(), upper.end(), text.begin(),
                                                     [](char u, char c) { return u == UpperCase(c); });
}

double LeadingNumber(std::string_view text)
{
    text = TrimLeft(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') {
            return 0; // only one sign is allowed
        }
    }
    double value = 0;
    // "inf" and "nan" would parse too, so a number must begin with a digit, a point or a minus.
    if (!text.empty() && std::string_view("0123456789.-").find(text.front()) != std::string_view::npos) {
        const auto result =
            std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
        if (result.ec != std::errc() || !std::isfinite(value)) { // "-inf" parses
            return 0;
        }
    }
    return value;
}

std::string WithBrackets(std::string_view title)
{
    std::string name(title);
    if (name.empty() || name.front() != '[') {
        name.insert(name.begin(), '[');
    }
    if (name.back() != ']') {
        name += ']';
    }
    return name;
}

std::string WithoutBrackets(std::string_view name)
{
    if (!name.empty() && name.front() == '[') {
        name.remove_prefix(1);
    }
    if (!name.empty() && name.back() == ']') {
        name.remove_suffix(1);
    }
    return std::string(name);
}

} // namespace ls
