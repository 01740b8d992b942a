#pragma once

namespace ls {

/// What `lsbook` ends with, as scripts read it.
enum class Status
{
    Done = 0,
    Fault = 1,      ///< the book or the command has a fault, which was reported
    Usage = 2,      ///< the command line is wrong
    FileFault = 3,  ///< a file cannot be read or written
    ProgramEnd = 4, ///< the dialogue ended the program: a fault of the rules
};

} // namespace ls
