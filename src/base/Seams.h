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
};

} // namespace ls
