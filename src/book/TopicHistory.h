#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ls {

struct Book;

/// The topics that were shown, in the order in which they were: what Go Back and Go Forward walk along, as in
/// a web browser. (Previous and next topic are something else: they follow the list.)
///
/// A topic is remembered by its number as long as numbers keep their meaning, and by its title after a move
/// or a save. One that is gone, removed or called otherwise, is passed over; it comes back with its title.
class TopicHistory
{
public:
    /// More are not remembered; the oldest go first.
    static constexpr std::size_t MostPlaces = 100;

    /// Another book: nothing was shown yet.
    void Clear();

    /// The topic on show, just shown. The same one again changes nothing; another one ends what lay ahead.
    void Visit(const Book& book);

    /// The number of the topic that going back or forward leads to; 0 for none. With no topic on show, back
    /// is the one that was shown last.
    [[nodiscard]] int TopicBehind(const Book& book) const;
    [[nodiscard]] int TopicAhead(const Book& book) const;

    /// Takes the place of that topic. What it returns is to be shown next; 0 when there is none.
    [[nodiscard]] int GoBack(const Book& book);
    [[nodiscard]] int GoForward(const Book& book);

    /// The topic whose place was taken cannot be shown: its place is forgotten, so that the next step leads
    /// on.
    void DropCurrent();

    [[nodiscard]] std::size_t Count() const { return m_places.size(); }

private:
    struct Place
    {
        std::string title; ///< without brackets
        int number = 0;
        std::uint32_t order = 0; ///< of the book when the number was taken down
    };

    [[nodiscard]] static Place OnShow(const Book& book);
    [[nodiscard]] static int Find(const Book& book, const Place& place);
    [[nodiscard]] std::size_t IndexBehind(const Book& book) const;
    [[nodiscard]] std::size_t IndexAhead(const Book& book) const;
    [[nodiscard]] int TopicAt(const Book& book, std::size_t index) const;
    int GoTo(const Book& book, std::size_t index);

    std::vector<Place> m_places;
    std::size_t m_current = 0; ///< the place that was taken last; means nothing without places
};

} // namespace ls
