#pragma once

#include "base/PathRules.h"

namespace ls {

class FileSystem;
class Messages;
class Processes;
class ProgramEnd;

/// What most operations of the core need from outside, passed as one. The objects must outlive it.
struct Seams
{
    FileSystem& files;
    Messages& messages;
    Processes& processes;
    ProgramEnd& end;
    PathRules paths;

    /// The same seams with other messages, for work that the user did not ask for.
    [[nodiscard]] Seams With(Messages& otherMessages) const { return With(otherMessages, end); }

    /// The same seams with other messages and another program end.
    [[nodiscard]] Seams With(Messages& otherMessages, ProgramEnd& otherEnd) const
    {
        return {files, otherMessages, processes, otherEnd, paths};
    }
};

} // namespace ls
