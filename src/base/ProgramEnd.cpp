#include "base/ProgramEnd.h"

namespace ls {

void EndProgram(ProgramEnd& end, std::string_view reason)
{
    if (!end.m_reason) {
        end.m_reason = reason;
    }
}

} // namespace ls
