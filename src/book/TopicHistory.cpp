#include "book/TopicHistory.h"

#include "base/Text.h"
#include "book/Book.h"

#include <algorithm>

namespace ls {

namespace {

bool IsListed(const Book& book, int number)
{
    return number >= 1 && number <= book.TopicCount && !book.TopicRecs(number).Deleted;
}

bool HasTitle(const Book& book, int number, const std::string& title)
{
    return WithoutBrackets(book.TopicNames(number)) == title;
}

} // namespace

void TopicHistory::Clear()
{
    m_places.clear();
    m_current = 0;
}

// The number is 0 if no listed topic is on show: the pane is empty, or it shows a plain text file or a topic
// that was removed.
TopicHistory::Place TopicHistory::OnShow(const Book& book)
{
    const int number = book.CurrentTopicNo;
    if (book.CurrentTopicName.empty() || !IsListed(book, number)) {
        return {};
    }
    return {WithoutBrackets(book.CurrentTopicName), number, book.TopicOrder};
}

// A book may hold a title twice. So a topic that still has both the number and the title is preferred.
int TopicHistory::Find(const Book& book, const Place& place)
{
    if (IsListed(book, place.number) && HasTitle(book, place.number, place.title)) {
        return place.number;
    }
    if (place.order == book.TopicOrder) {
        return 0; // the numbers have not changed, so this topic was removed
    }
    for (int number = 1; number <= book.TopicCount; ++number) {
        if (IsListed(book, number) && HasTitle(book, number, place.title)) {
            return number;
        }
    }
    return 0;
}

void TopicHistory::Visit(const Book& book)
{
    Place shown = OnShow(book);
    if (shown.number == 0) {
        return;
    }
    if (!m_places.empty() && Find(book, m_places[m_current]) == shown.number) {
        m_places[m_current] = std::move(shown); // its number may have changed
        return;
    }
    if (!m_places.empty()) {
        m_places.resize(m_current + 1);
    }
    m_places.push_back(std::move(shown));
    if (m_places.size() > MostPlaces) {
        m_places.erase(m_places.begin());
    }
    m_current = m_places.size() - 1;
}

// Skips places of the topic on show: topics between two such places may have been removed.
std::size_t TopicHistory::IndexBefore(const Book& book) const
{
    const int onShow = OnShow(book).number;
    std::size_t above = m_places.empty() ? 0 : m_current + (onShow == 0 ? 1 : 0);
    for (; above > 0; --above) {
        const int number = Find(book, m_places[above - 1]);
        if (number != 0 && number != onShow) {
            return above - 1;
        }
    }
    return m_places.size();
}

std::size_t TopicHistory::IndexAhead(const Book& book) const
{
    const int onShow = OnShow(book).number;
    for (std::size_t index = m_current + 1; index < m_places.size(); ++index) {
        const int number = Find(book, m_places[index]);
        if (number != 0 && number != onShow) {
            return index;
        }
    }
    return m_places.size();
}

int TopicHistory::TopicAt(const Book& book, std::size_t index) const
{
    return index < m_places.size() ? Find(book, m_places[index]) : 0;
}

int TopicHistory::TopicBefore(const Book& book) const
{
    return TopicAt(book, IndexBefore(book));
}

int TopicHistory::TopicAhead(const Book& book) const
{
    return TopicAt(book, IndexAhead(book));
}

int TopicHistory::GoBack(const Book& book)
{
    return GoTo(book, IndexBefore(book));
}

int TopicHistory::GoForward(const Book& book)
{
    return GoTo(book, IndexAhead(book));
}

int TopicHistory::GoTo(const Book& book, std::size_t index)
{
    const int number = TopicAt(book, index);
    if (number != 0) {
        m_current = index;
    }
    return number;
}

void TopicHistory::DropCurrent()
{
    if (m_current < m_places.size()) {
        m_places.erase(m_places.begin() + static_cast<std::ptrdiff_t>(m_current));
        m_current = m_current > 0 ? m_current - 1 : 0;
    }
}

} // namespace ls
