#pragma once

#include <cassert>
#include <cstddef>
#include <utility>
#include <vector>

namespace ls {

/// A growable array whose first element is number 1.
///
/// Bounds are 1..UpperBound(). `Grow` works as the tables of a book do: when a new element's number passes
/// the upper bound, the bound becomes that number plus a step of the table's own, and what is there is kept.
template <typename T>
class Array1
{
public:
    Array1() = default;
    explicit Array1(std::size_t upperBound) : m_items(upperBound) {}

    [[nodiscard]] std::size_t UpperBound() const { return m_items.size(); }

    T& operator()(std::size_t number)
    {
        assert(number >= 1 && number <= m_items.size());
        return m_items[number - 1];
    }
    const T& operator()(std::size_t number) const
    {
        assert(number >= 1 && number <= m_items.size());
        return m_items[number - 1];
    }

    /// Makes element `number` exist: past the bound, the new bound is `number + step`.
    void Grow(std::size_t number, std::size_t step)
    {
        if (number > m_items.size()) {
            m_items.resize(number + step);
        }
    }

    /// Sets the bounds to 1..upperBound; what lies inside them is kept.
    void Redim(std::size_t upperBound) { m_items.resize(upperBound); }

    /// Empties every element and keeps the bounds.
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
    std::vector<T> m_items;
};

} // namespace ls
