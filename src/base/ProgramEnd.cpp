#include "base/ProgramEnd.h"

namespace ls {

void EndProgram(ProgramEnd& end, std::string_view reason)
{
    if (end.m_reason) {
        return;
    }
    end.m_reason = reason;
    if (end.m_lastAct) {
        end.m_lastAct();
    }
}

} // namespace ls
