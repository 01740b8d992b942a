#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace ls {

/// Whether, and why, a fault has ended the program. Nothing unwinds: the operation that met the fault returns
/// its failure value, later ones do the same at once, and the program then leaves its event loops.
class ProgramEnd
{
public:
    [[nodiscard]] bool Ended() const { return m_reason.has_value(); }

    /// The first reason given; empty while the program goes on.
    [[nodiscard]] std::string Reason() const { return m_reason.value_or(std::string()); }

    /// What is still done when the first fault ends the program, before anything is closed: while the forms
    /// stand as the user left them. It must not ask or tell anything; an empty one does nothing.
    void SetLastAct(std::function<void()> act) { m_lastAct = std::move(act); }

private:
    friend void EndProgram(ProgramEnd& end, std::string_view reason);
    std::optional<std::string> m_reason;
    std::function<void()> m_lastAct;
};

/// The one door through which a fault ends the program. The first reason is kept; it returns to its caller.
void EndProgram(ProgramEnd& end, std::string_view reason);

} // namespace ls
