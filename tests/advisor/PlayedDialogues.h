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

/// A dialogue that is to be held: on which topic, what the reader picks, and whether earlier answers count.
struct Dialogue
{
    int topic;
    std::vector<std::size_t> picks; ///< counted through the choices; 0 is the empty item
    bool reuse;
};

/// What the program's dialogues on the book come to, a line for each thing that a reader would see.
[[nodiscard]] Texts Played(Book& book, const Seams& seams, const std::vector<Dialogue>& dialogues);

/// What the model's dialogues on the book's bytes come to.
[[nodiscard]] Texts Modelled(const Book& book, const std::string& bytes,
                             const std::vector<Dialogue>& dialogues, bool& gaveUp);

} // namespace ls::test
