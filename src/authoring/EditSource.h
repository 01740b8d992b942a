#pragma once

#include <cstdint>

namespace ls {

struct RunningEdits;

/// A form in which a book is edited.
class EditSource
{
public:
    virtual ~EditSource() = default;

    /// Adds what was typed into the form and is not accepted yet; nothing where nothing was changed. May be
    /// asked whenever the form handles no event of its own, also while a box stands over it.
    virtual void AddRunningEdits(RunningEdits& edits) = 0;

    /// The number of the last edit in the form; every edit in any form has a greater one than those before.
    [[nodiscard]] std::uint64_t LastEdit() const { return m_lastEdit; }

protected:
    /// To be called whenever something in the form may have been edited.
    void Edited()
    {
        static std::uint64_t count = 0;
        m_lastEdit = ++count;
    }

private:
    std::uint64_t m_lastEdit = 0;
};

} // namespace ls
