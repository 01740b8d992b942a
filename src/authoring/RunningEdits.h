#pragma once

#include "authoring/Properties.h"

#include <optional>
#include <string>
#include <vector>

namespace ls {

/// The text of one topic in an editor that is still open. UTF-8, because it may have characters that books
/// cannot hold.
struct RunningText
{
    int topic = 0;    ///< its number in the table, from 1
    std::string name; ///< its header line
    std::string utf8;

    friend bool operator==(const RunningText&, const RunningText&) = default;
};

/// A topic whose box in the open deletion form differs from the book.
struct RunningRemoval
{
    int topic = 0; ///< its number in the table, from 1
    std::string name;
    bool removed = false;

    friend bool operator==(const RunningRemoval&, const RunningRemoval&) = default;
};

/// What was typed into open forms and not accepted yet by Done or O.K.
struct RunningEdits
{
    std::optional<RunningText> text;
    std::optional<RunningText> logic; ///< the whole block as Done would write it
    std::optional<Properties> properties;
    std::vector<RunningRemoval> removals;

    [[nodiscard]] bool None() const { return !text && !logic && !properties && removals.empty(); }
};

} // namespace ls
