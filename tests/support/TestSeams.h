#pragma once

#include "base/ProgramEnd.h"
#include "base/Seams.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"

namespace ls::test {

/// The outside world of one test: files in memory, recorded boxes and recorded starts.
struct TestSeams
{
    ProgramEnd end;
    MemoryFileSystem files;
    RecordingMessages messages{end};
    RecordingProcesses processes;
    PathRules paths = UnixPaths;

    /// The seams for the core. Built at each call, so that a test can change `paths` first.
    [[nodiscard]] Seams Get() { return {files, messages, processes, end, paths}; }
};

/// The lines joined, each with CR LF: makes a book from readable text.
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
