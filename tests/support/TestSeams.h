#pragma once

#include "base/ProgramEnd.h"
#include "base/Seams.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"

namespace ls::test {

/// A world of its own for one test: files in memory, recorded boxes and starts.
struct TestSeams
{
    ProgramEnd end;
    MemoryFileSystem files;
    RecordingMessages messages{end};
    RecordingProcesses processes;
    PathRules paths = UnixPaths;

    /// The seams as the core takes them; made anew, so that `paths` may be changed before.
    [[nodiscard]] Seams Get() { return {files, messages, processes, end, paths}; }
};

/// The lines joined by CR LF, each with its line end: a book from readable text.
inline std::string CrLf(std::initializer_list<const char*> lines)
{
    std::string text;
    for (const char* line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

} // namespace ls::test
