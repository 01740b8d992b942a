#include "book/OldNames.h"

#include "base/Text.h"
#include "book/Book.h"

#include <algorithm>
#include <string_view>

namespace ls {

namespace {

constexpr int BackHistoryBound = 1000;

} // namespace

OldNames::OldNames() : BackHistory(BackHistoryBound) {}

std::string NextTopicLine(const Book& book, int topicIndex, std::size_t& position, int& doneFlag)
{
    const bool inTable = topicIndex >= 1 && topicIndex <= book.TopicRecs.UpperBound();
    const std::string_view text =
        inTable ? std::string_view(book.TopicRecs(topicIndex).Text) : std::string_view();
    const std::size_t from = position > 0 ? position - 1 : 0;
    if (from >= text.size()) {
        doneFlag = -1;
        return {};
    }
    const std::size_t end = std::min(text.find(LineEnd, from), text.size());
    position = std::min(end + LineEnd.size(), text.size()) + 1;
    return std::string(text.substr(from, end - from));
}

} // namespace ls
