#pragma once

#include <cstdint>

namespace ls {

/// A count or an index of a table: 16 bits, signed, checked.
///
/// It never wraps around: past 32,767 `Add` returns false and leaves the count unchanged. The caller then
/// drops the work and shows the "Overflow" box once (see `ShowOverflow`).
class Count16
{
public:
    static constexpr int Max = 32767;

    constexpr Count16() = default;
    // Not explicit: a count reads as a number.
    constexpr Count16(int value) : m_value(static_cast<std::int16_t>(value)) {}
    constexpr operator int() const { return m_value; }

    [[nodiscard]] constexpr bool Add(int n = 1)
    {
        if (m_value + n > Max) {
            return false;
        }
        m_value = static_cast<std::int16_t>(m_value + n);
        return true;
    }

private:
    std::int16_t m_value = 0;
};

} // namespace ls
