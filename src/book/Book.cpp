#include "book/Book.h"
#include "base/Text.h"

namespace ls {

namespace {

constexpr std::size_t FirstBound = 100;
constexpr float NewBookVersion = 5.0F;

} // namespace

Book::Book() : TopicNames(FirstBound), TopicPos(FirstBound), TopicRecs(FirstBound), Xrefs(FirstBound)
{
    BookVersion = NewBookVersion;
}

std::string TitleOf(const Book& book, int number)
{
    return WithoutBrackets(book.TopicNames(number));
}

void GrowTopicTables(Book& book, int number)
{
    book.TopicNames.Grow(number, TopicGrowthStep);
    book.TopicPos.Grow(number, TopicGrowthStep);
    book.TopicRecs.Grow(number, TopicGrowthStep);
}

void ResetBook(Book& book)
{
    book.BookStartPos = 0;
    book.ScanEndPos = 0;
    book.StartTopic.clear();
    book.CurrentTopicName.clear();
    book.CurrentTopicNo = 0;
    static_cast<BookHeader&>(book) = BookHeader{};
    book.BookVersion = NewBookVersion;
    book.TopicCount = 0;
    ++book.TopicOrder;
    book.XrefCount = 0;
    book.BackCount = 0;
    book.LogicPos = 0;
    book.TopicNames.ClearElements();
    book.TopicPos.ClearElements();
    book.TopicRecs.ClearElements();
    book.Xrefs.ClearElements();
    book.BackHistory.ClearElements();
}

} // namespace ls
