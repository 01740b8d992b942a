#include "render/pane/FindInText.h"

#include "base/Text.h"

#include <algorithm>
#include <string>

namespace ls {

namespace {

bool IsGap(char c)
{
    return c == ' ' || c == '\n' || c == '\t';
}

// In capital letters, with one blank for each gap.
std::string Folded(std::string_view sought)
{
    std::string folded;
    for (const char c : sought) {
        if (!IsGap(c)) {
            folded.push_back(UpperCase(c));
        } else if (folded.empty() || folded.back() != ' ') {
            folded.push_back(' ');
        }
    }
    return folded;
}

// The end of a match that begins at `at`; npos if none begins there.
std::size_t MatchEnd(std::string_view text, std::size_t at, std::string_view folded)
{
    for (const char c : folded) {
        if (at >= text.size()) {
            return std::string_view::npos;
        }
        if (c != ' ') {
            if (UpperCase(text[at]) != c) {
                return std::string_view::npos;
            }
            ++at;
            continue;
        }
        const std::size_t gap = at;
        while (at < text.size() && IsGap(text[at])) {
            ++at;
        }
        if (at == gap) {
            return std::string_view::npos;
        }
    }
    return at;
}

} // namespace

std::vector<TextRange> FindAll(std::string_view text, std::string_view sought)
{
    std::vector<TextRange> matches;
    const std::string folded = Folded(sought);
    if (folded.empty()) {
        return matches;
    }
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = MatchEnd(text, at, folded);
        if (end != std::string_view::npos) {
            matches.push_back({at, end});
            at = end;
            continue;
        }
        // A gap is skipped whole: what does not match from its start does not match from its middle. So a
        // long gap is walked only once.
        const bool passGap = IsGap(text[at]);
        do {
            ++at;
        } while (passGap && at < text.size() && IsGap(text[at]));
    }
    return matches;
}

std::optional<std::size_t> NextMatch(std::span<const TextRange> matches, std::size_t from)
{
    if (matches.empty()) {
        return std::nullopt;
    }
    const auto next = std::partition_point(matches.begin(), matches.end(),
                                           [from](const TextRange& match) { return match.begin < from; });
    return next == matches.end() ? 0 : static_cast<std::size_t>(next - matches.begin());
}

std::optional<std::size_t> PreviousMatch(std::span<const TextRange> matches, std::size_t from)
{
    if (matches.empty()) {
        return std::nullopt;
    }
    const auto next = std::partition_point(matches.begin(), matches.end(),
                                           [from](const TextRange& match) { return match.begin < from; });
    return next == matches.begin() ? matches.size() - 1
                                   : static_cast<std::size_t>(next - matches.begin()) - 1;
}

} // namespace ls
