#pragma once

#include "base/PathRules.h"

namespace ls {

class FileSystem;
class Messages;
class Processes;
class ProgramEnd;

/// What most operations of the core need from outside, handed on as one. The referents outlive it.
struct Seams
{
    FileSystem& files;
    Messages& messages;
    Processes& processes;
    ProgramEnd& end;
    PathRules paths;

    /// The same with other messages, for work that the user did not ask for.
    [[nodiscard]] Seams With(Messages& otherMessages) const { return With(otherMessages, end); }

    /// The same with other messages, and with an end that is not the program's.
    [[nodiscard]] Seams With(Messages& otherMessages, ProgramEnd& otherEnd) const
    {
        return {files, otherMessages, processes, otherEnd, paths};
    }
};

} // namespace ls
