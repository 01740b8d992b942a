#include "platform/ReadCommandLine.h"

#include "platform/windows/CommandLineParts.h"
#include "platform/windows/WideText.h"

#include <windows.h>

namespace ls {

CommandLine ReadCommandLine(int /*argc*/, char** /*argv*/, const Seams& /*seams*/)
{
    return ParseCommandLine(WithQuotedValues(BehindProgramName(FromWide(::GetCommandLineW()))));
}

} // namespace ls
