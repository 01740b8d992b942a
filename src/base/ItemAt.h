#pragma once

#include <cstddef>
#include <vector>

namespace ls {

/// The item at a row of a list, from 0; nullptr for a row outside the list, such as -1 for "none".
template <typename Item>
[[nodiscard]] Item* ItemAt(std::vector<Item>& items, int row)
{
    return row >= 0 && static_cast<std::size_t>(row) < items.size() ? items.data() + row : nullptr;
}

template <typename Item>
[[nodiscard]] const Item* ItemAt(const std::vector<Item>& items, int row)
{
    return row >= 0 && static_cast<std::size_t>(row) < items.size() ? items.data() + row : nullptr;
}

} // namespace ls
