#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace ls {

/// Whether, and why, a fault has ended the program. Nothing unwinds: the operation that met the fault returns
/// its failure value, later operations do the same at once, and the program then leaves its event loops.
class ProgramEnd
{
public:
    [[nodiscard]] bool Ended() const { return m_reason.has_value(); }

    /// The first reason given; empty while the program runs on.
    [[nodiscard]] std::string Reason() const { return m_reason.value_or(std::string()); }

    /// What to do when the first fault ends the program. It runs before anything closes, while the forms are
    /// still as the user left them. It must not show or ask anything.
    void SetLastAct(std::function<void()> act) { m_lastAct = std::move(act); }

private:
    friend void EndProgram(ProgramEnd& end, std::string_view reason);
    std::optional<std::string> m_reason;
    std::function<void()> m_lastAct;
};

/// Ends the program after a fault; every fault ends it this way. Returns to its caller. Only the first reason
/// counts.
void EndProgram(ProgramEnd& end, std::string_view reason);

} // namespace ls
