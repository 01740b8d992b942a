#pragma once

#include <cstdint>

namespace ls {

/// A "was changed" flag that is used like a bool. It also counts how often it was set to true. Code that
/// keeps a copy of the data compares the count instead of the data.
class ChangeFlag
{
public:
    ChangeFlag& operator=(bool changed)
    {
        m_changed = changed;
        m_changes += changed ? 1 : 0;
        return *this;
    }

    operator bool() const { return m_changed; } // not explicit: it reads as a bool

    /// How often it was set to true.
    [[nodiscard]] std::uint64_t Changes() const { return m_changes; }

private:
    std::uint64_t m_changes = 0;
    bool m_changed = false;
};

} // namespace ls
