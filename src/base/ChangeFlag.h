#pragma once

#include <cstdint>

namespace ls {

/// A "was changed" that also tells one change from the next: it reads and is set like a bool, and counts how
/// often it was set. Whoever keeps a copy of what changes compares the count instead of the whole.
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

    /// How often it was set.
    [[nodiscard]] std::uint64_t Changes() const { return m_changes; }

private:
    std::uint64_t m_changes = 0;
    bool m_changed = false;
};

} // namespace ls
