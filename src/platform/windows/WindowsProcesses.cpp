#include "platform/windows/WindowsProcesses.h"

#include "base/PathRules.h"
#include "platform/windows/CommandLineParts.h"
#include "platform/windows/GrownText.h"
#include "platform/windows/WidePath.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsError.h"
#include "platform/windows/WindowsHandle.h"

#include <windows.h>

namespace ls {

namespace {

std::wstring EnvironmentValue(const std::wstring& name)
{
    return GrownText([&name](wchar_t* buffer, DWORD size) {
        return ::GetEnvironmentVariableW(name.c_str(), buffer, size);
    });
}

std::wstring ProgramPath()
{
    return GrownText([](wchar_t* buffer, DWORD size) { return ::GetModuleFileNameW(nullptr, buffer, size); });
}

// The path without the prefix of the long form, which other programs do not accept.
std::wstring InUsualForm(const std::wstring& path)
{
    if (path.starts_with(L"\\\\?\\UNC\\")) {
        return L"\\\\" + path.substr(8);
    }
    return path.starts_with(L"\\\\?\\") ? path.substr(4) : path;
}

// The target of a link. Other files are left alone, because resolving a file on a network drive would lose
// its drive letter.
std::wstring LinkResolved(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return path;
    }
    const WindowsHandle file(::CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES,
                                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) {
        return path;
    }
    const std::wstring real = GrownText([&file](wchar_t* buffer, DWORD size) {
        return ::GetFinalPathNameByHandleW(file.Get(), buffer, size, FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    });
    return real.empty() ? path : InUsualForm(real);
}

// Searches a file in folders separated by ";". A full path is looked up by itself.
std::wstring SearchFile(const std::wstring& folders, const std::wstring& name)
{
    return GrownText([&](wchar_t* buffer, DWORD size) {
        return ::SearchPathW(folders.c_str(), name.c_str(), L".exe", size, buffer, nullptr);
    });
}

FileError FindProgramFile(const std::string& name, std::wstring& program)
{
    std::wstring wide;
    if (FileError bad = ToWidePath(name, wide); !bad.Ok()) {
        return bad;
    }
    const bool bare = name.find_first_of("\\/:") == std::string::npos;
    if (!bare) {
        wide = FullWidePath(wide);
    }
    const std::wstring folders = EnvironmentValue(L"PATH");
    if (bare && folders.empty()) {
        return MakeFileError(error::FileNotFound);
    }
    program = SearchFile(folders, wide);
    if (program.empty()) {
        // Starting needs no distinction between a missing file and a missing folder.
        return MakeFileError(error::FileNotFound);
    }
    return IsFolder(program) ? MakeFileError(error::PathFileAccess) : FileError{};
}

// Starts it with a normal window that may come to the front. Returns its process id, 0 for a failure.
DWORD StartProcess(const std::wstring& program, std::wstring line)
{
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process = {};
    // This program turns off the system's boxes about missing disks; the other program gets them back.
    if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_DEFAULT_ERROR_MODE,
                         nullptr, nullptr, &start, &process) == 0) {
        return 0;
    }
    ::AllowSetForegroundWindow(process.dwProcessId);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return process.dwProcessId;
}

} // namespace

std::string WindowsProcesses::Environment(const std::string& name)
{
    if (name.empty() || name.find('\0') != std::string::npos) {
        return {};
    }
    const std::optional<std::wstring> wide = ToWide(name);
    return wide ? FromWide(EnvironmentValue(*wide)) : std::string();
}

std::string WindowsProcesses::ProgramFolder()
{
    return FolderOf(WindowsPaths, FromWide(LinkResolved(ProgramPath())));
}

Processes::Started WindowsProcesses::Start(const std::string& commandLine)
{
    const LaunchLine launch = ToLaunchLine(commandLine);
    const std::optional<std::wstring> line = ToWide(launch.line);
    if (launch.line.empty() || !line || commandLine.find('\0') != std::string::npos) {
        return {MakeFileError(error::InvalidCall), 0};
    }
    std::wstring program;
    if (FileError missing = FindProgramFile(launch.program, program); !missing.Ok()) {
        return {missing, 0};
    }
    if (IsBatchFile(FromWide(program))) {
        return {MakeFileError(error::InvalidCall), 0};
    }
    const DWORD id = StartProcess(program, *line);
    return id == 0 ? Started{ErrorOfPath(::GetLastError(), program), 0} : Started{{}, static_cast<int>(id)};
}

} // namespace ls
