#include "book/TopicEnd.h"

#include "book/Book.h"

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

} // namespace ls
