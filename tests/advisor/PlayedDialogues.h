#pragma once

#include "base/Seams.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ls {
struct Book;
}

namespace ls::test {

using Texts = std::vector<std::string>;

/// A dialogue to hold: its topic, the user's choices, and whether earlier answers count.
struct Dialogue
{
    int topic;
    std::vector<std::size_t> picks; ///< numbers of choices; 0 is the empty item
    bool reuse;
};

/// Holds the dialogues on the book in the program. Returns one line for each thing that a user would see.
[[nodiscard]] Texts Played(Book& book, const Seams& seams, const std::vector<Dialogue>& dialogues);

/// The same, held by the model on the book's bytes.
[[nodiscard]] Texts Modelled(const Book& book, const std::string& bytes,
                             const std::vector<Dialogue>& dialogues, bool& gaveUp);

} // namespace ls::test
