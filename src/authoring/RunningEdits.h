#pragma once

#include "authoring/Properties.h"

#include <optional>
#include <string>
#include <vector>

namespace ls {

/// What stands in an editor that is still open, for one topic of the table. It is UTF-8: what a book cannot
/// hold was typed all the same.
struct RunningText
{
    int topic = 0;    ///< its number in the table, from 1
    std::string name; ///< its header line
    std::string utf8;

    friend bool operator==(const RunningText&, const RunningText&) = default;
};

/// A topic whose box in the open deletion form says something else than the book does.
struct RunningRemoval
{
    int topic = 0; ///< its number in the table, from 1
    std::string name;
    bool removed = false;

    friend bool operator==(const RunningRemoval&, const RunningRemoval&) = default;
};

/// What stands in the forms that are still open: typed, but not accepted yet by Done or O.K.
struct RunningEdits
{
    std::optional<RunningText> text;
    std::optional<RunningText> logic; ///< the whole block, from its "<IXML>" line on, as it would be written
    std::optional<Properties> properties;
    std::vector<RunningRemoval> removals;

    [[nodiscard]] bool None() const { return !text && !logic && !properties && removals.empty(); }
};

} // namespace ls
