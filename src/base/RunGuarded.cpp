#include "base/RunGuarded.h"

#include "base/FileError.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"

#include <exception>
#include <new>

namespace ls {

void RunGuarded(const std::function<void()>& command, const Seams& seams)
{
    try {
        command();
    } catch (const std::bad_alloc&) {
        seams.messages.MsgBox(MakeFileError(error::OutOfMemory).description, Icon::Critical);
    } catch (const std::exception& fault) {
        EndProgram(seams.end, fault.what());
    }
}

} // namespace ls
