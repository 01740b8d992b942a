#pragma once

#include <cstdint>

namespace ls {

struct RunningEdits;

/// A form that edits the book. Its pending edits go into the journal.
class EditSource
{
public:
    virtual ~EditSource() = default;

    /// Adds what was typed into the form and not accepted yet; adds nothing if nothing was changed. May be
    /// called while a box is open over the form, but not while the form handles an event of its own.
    virtual void AddRunningEdits(RunningEdits& edits) = 0;

    /// The number of the form's last edit. Numbers grow from edit to edit, across all forms.
    [[nodiscard]] std::uint64_t LastEdit() const { return m_lastEdit; }

protected:
    /// Call whenever something in the form may have been edited.
    void Edited()
    {
        static std::uint64_t count = 0;
        m_lastEdit = ++count;
    }

private:
    std::uint64_t m_lastEdit = 0;
};

} // namespace ls
