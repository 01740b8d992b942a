#include "platform/linux/LinuxProcesses.h"

#include "base/PathRules.h"
#include "base/SplitCommandLine.h"
#include "platform/linux/DetachedStart.h"
#include "platform/linux/ErrnoError.h"
#include "platform/linux/FindProgram.h"

#include <cerrno>
#include <cstdlib>

#include <unistd.h>

namespace ls {

namespace {

FileError ErrorOfStart(int errnoValue)
{
    switch (errnoValue) {
    case ENOEXEC:
    case E2BIG:
        return MakeFileError(error::InvalidCall);
    case EAGAIN:
        return MakeFileError(error::OutOfMemory);
    default:
        return ErrorOfErrno(errnoValue);
    }
}

} // namespace

std::string LinuxProcesses::Environment(const std::string& name)
{
    if (name.find('\0') != std::string::npos) {
        return {};
    }
    const char* value = std::getenv(name.c_str());
    return value != nullptr ? value : std::string();
}

std::string LinuxProcesses::ProgramFolder()
{
    std::string path(256, '\0');
    while (true) {
        const ssize_t size = ::readlink("/proc/self/exe", path.data(), path.size());
        if (size < 0) {
            return {};
        }
        if (const auto length = static_cast<std::size_t>(size); length < path.size()) {
            path.resize(length);
            return FolderOf(UnixPaths, path);
        }
        path.resize(path.size() * 2);
    }
}

Processes::Started LinuxProcesses::Start(const std::string& commandLine)
{
    const std::vector<std::string> words = SplitCommandLine(commandLine);
    if (words.empty() || commandLine.find('\0') != std::string::npos) {
        return {MakeFileError(error::InvalidCall), 0};
    }
    std::string program;
    if (const FileError missing = FindProgram(words.front(), Environment("PATH"), program); !missing.Ok()) {
        return {missing, 0};
    }
    const DetachedProcess process = StartDetached(program, words);
    if (process.errnoValue != 0) {
        return {ErrorOfStart(process.errnoValue), 0};
    }
    return {{}, process.id};
}

} // namespace ls
