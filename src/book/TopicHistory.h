#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ls {

struct Book;

/// The topics shown so far, in order. Go Back and Go Forward move along them as in a web browser. (Previous
/// and next topic follow the topic list instead.)
///
/// A topic is found again by its number, or by its title after a move or a save. A topic that is removed or
/// renamed is skipped until its title comes back.
class TopicHistory
{
public:
    /// The oldest places are dropped beyond this number.
    static constexpr std::size_t MostPlaces = 100;

    /// Forgets all topics, for another book.
    void Clear();

    /// Adds the topic on show. Nothing changes if it is the current place; otherwise the places ahead are
    /// dropped.
    void Visit(const Book& book);

    /// The number of the topic that Go Back or Go Forward leads to; 0 for none. If no topic is on show, Go
    /// Back leads to the last topic shown.
    [[nodiscard]] int TopicBefore(const Book& book) const;
    [[nodiscard]] int TopicAhead(const Book& book) const;

    /// Makes that topic the current place and returns its number, to be shown next; 0 for none.
    [[nodiscard]] int GoBack(const Book& book);
    [[nodiscard]] int GoForward(const Book& book);

    /// Removes the current place because its topic cannot be shown. The next step then leads past it.
    void DropCurrent();

    [[nodiscard]] std::size_t Count() const { return m_places.size(); }

private:
    struct Place
    {
        std::string title; ///< without brackets
        int number = 0;
        std::uint32_t order = 0; ///< the book's `TopicOrder` when the number was recorded
    };

    [[nodiscard]] static Place OnShow(const Book& book);
    [[nodiscard]] static int Find(const Book& book, const Place& place);
    [[nodiscard]] std::size_t IndexBefore(const Book& book) const;
    [[nodiscard]] std::size_t IndexAhead(const Book& book) const;
    [[nodiscard]] int TopicAt(const Book& book, std::size_t index) const;
    int GoTo(const Book& book, std::size_t index);

    std::vector<Place> m_places;
    std::size_t m_current = 0; ///< index of the current place; no meaning without places
};

} // namespace ls
