#pragma once

namespace ls {

/// The exit status of `lsbook`, for scripts.
enum class Status
{
    Done = 0,
    Fault = 1,      ///< the book or the command has a fault, which was reported
    Usage = 2,      ///< the command line is wrong
    FileFault = 3,  ///< a file cannot be read or written
    ProgramEnd = 4, ///< the dialogue ended the program: the rules have a fault
};

} // namespace ls
