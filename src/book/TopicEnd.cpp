#include "book/TopicEnd.h"

#include "base/Text.h"
#include "book/Book.h"
#include "book/BookWords.h"

#include <algorithm>

namespace ls {

FilePos EndOfTopic(const Book& book, int number)
{
    const FilePos own = book.TopicPos(number);
    FilePos end = book.ScanEndPos;
    for (int i = 1; i <= book.TopicCount; ++i) {
        const FilePos pos = book.TopicPos(i);
        if (pos > own) {
            end = std::min(end, pos);
        }
    }
    return end;
}

TopicLine ClassifyTopicLine(std::string_view line)
{
    if (StartsTopic(line)) {
        return TopicLine::Header;
    }
    if (BeginsUpper(line, XrefTag)) {
        return TopicLine::Reference;
    }
    return OpensBlock(line) ? TopicLine::LogicBlock : TopicLine::Text;
}

bool EndsText(std::string_view line)
{
    return ClassifyTopicLine(line) != TopicLine::Text;
}

bool StartsTopic(std::string_view line)
{
    return line.starts_with('[');
}

bool OpensBlock(std::string_view line)
{
    // The first character decides for most lines. So the last blanks of a long line are not scanned.
    line = TrimLeft(line);
    return line.starts_with(BlockOpening.front()) && EqualsUpper(TrimRight(line), BlockOpening);
}

} // namespace ls
