#include "platform/ReadCommandLine.h"

#include "platform/Console.h"

namespace ls {

CommandLine ReadCommandLine(int argc, char** argv, const Seams& seams)
{
    return ParseArguments(ProgramArguments(argc, argv), seams);
}

} // namespace ls
