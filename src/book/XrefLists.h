#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ls {

struct Book;

/// One entry of a list of references.
struct XrefEntry
{
    std::string topic; ///< the other topic's title
    int itemData = 0;  ///< the number of its record in the book's table

    friend bool operator==(const XrefEntry&, const XrefEntry&) = default;
};

/// The references from and to one topic, in the order of the book's table, doubles included. A reference of a
/// topic to itself is in both lists.
struct XrefLists
{
    std::vector<XrefEntry> to; ///< topics that it refers to
    std::vector<XrefEntry> in; ///< topics that refer to it
};

/// The lists for a topic's bare title; letter case counts.
[[nodiscard]] XrefLists FindXrefs(const Book& book, std::string_view title);

} // namespace ls
