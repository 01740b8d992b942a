#pragma once

#include <cassert>
#include <cstddef>
#include <utility>
#include <vector>

namespace ls {

/// A growable array whose first element is number 1.
///
/// Bounds are 1..UpperBound(). Numbers and bounds are `int`, as the counts of the tables are; only this class
/// converts them for the vector.
template <typename T>
class Array1
{
public:
    Array1() = default;
    explicit Array1(int upperBound) : m_items(static_cast<std::size_t>(upperBound)) {}

    [[nodiscard]] int UpperBound() const { return static_cast<int>(m_items.size()); }

    T& operator()(int number) { return m_items[Index(number)]; }
    const T& operator()(int number) const { return m_items[Index(number)]; }

    /// Makes element `number` exist. If it is past the bound, the new bound is `number + step`.
    void Grow(int number, int step)
    {
        if (number > UpperBound()) {
            Redim(number + step);
        }
    }

    /// Sets the bounds to 1..upperBound. Elements inside the new bounds keep their values.
    void Redim(int upperBound) { m_items.resize(static_cast<std::size_t>(upperBound)); }

    /// Empties every element. The bounds stay.
    void ClearElements()
    {
        for (T& item : m_items) {
            item = T{};
        }
    }

    /// Elements 1..count as a range, for loops and algorithms.
    [[nodiscard]] auto begin() { return m_items.begin(); }
    [[nodiscard]] auto begin() const { return m_items.begin(); }
    [[nodiscard]] auto end() { return m_items.end(); }
    [[nodiscard]] auto end() const { return m_items.end(); }

private:
    [[nodiscard]] std::size_t Index(int number) const
    {
        assert(number >= 1 && number <= UpperBound());
        return static_cast<std::size_t>(number) - 1;
    }

    std::vector<T> m_items;
};

} // namespace ls
