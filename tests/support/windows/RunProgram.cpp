#include "support/RunProgram.h"

#include "platform/windows/WideText.h"
#include "platform/windows/WindowsHandle.h"
#include "support/ScratchFolder.h"

#include <windows.h>

namespace ls::test {

namespace {

// Quotes an argument so that a program's start-up code splits the line correctly. Backslashes are special
// only before a double quote.
std::string Quoted(const std::string& argument)
{
    std::string quoted = "\"";
    std::size_t backslashes = 0;
    for (const char c : argument) {
        backslashes = c == '\\' ? backslashes + 1 : 0;
        if (c == '"') {
            quoted.append(backslashes + 1, '\\');
        }
        quoted += c;
        backslashes = c == '"' ? 0 : backslashes;
    }
    return quoted.append(backslashes, '\\') + '"';
}

std::wstring CommandLine(const std::string& program, const std::vector<std::string>& arguments)
{
    std::string line = Quoted(program);
    for (const std::string& argument : arguments) {
        line += " " + Quoted(argument);
    }
    return ToWide(line).value_or(std::wstring());
}

WindowsHandle OpenStream(const std::string& path, DWORD access, DWORD disposition)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return WindowsHandle(::CreateFileW(ToWide(path).value_or(L"").c_str(), access,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, disposition,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
}

int WaitForEnd(const PROCESS_INFORMATION& process)
{
    const WindowsHandle thread(process.hThread);
    const WindowsHandle program(process.hProcess);
    DWORD status = 0;
    ::WaitForSingleObject(program.Get(), INFINITE);
    return ::GetExitCodeProcess(program.Get(), &status) != 0 ? static_cast<int>(status) : -1;
}

// Returns the system's error code, or 0. On a busy machine Wine fails to start about one program in some
// thousand, with an internal error and before the program runs. So this repeats the start after that error.
DWORD Start(const std::string& program, const std::wstring& commandLine, const std::string& folder,
            STARTUPINFOW start, PROCESS_INFORMATION& process)
{
    DWORD error = ERROR_INTERNAL_ERROR;
    for (int tries = 0; error == ERROR_INTERNAL_ERROR && tries < 3; ++tries) {
        std::wstring line = commandLine;
        const BOOL started =
            ::CreateProcessW(ToWide(program).value_or(L"").c_str(), line.data(), nullptr, nullptr, TRUE, 0,
                             nullptr, ToWide(folder).value_or(L"").c_str(), &start, &process);
        error = started != 0 ? 0 : ::GetLastError();
    }
    return error;
}

} // namespace

ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                      const std::string& folder)
{
    const ScratchFolder output;
    ProgramRun run;
    DWORD error = 0;
    {
        const WindowsHandle in = OpenStream("NUL", GENERIC_READ, OPEN_EXISTING);
        const WindowsHandle out = OpenStream(output / "out", GENERIC_WRITE, CREATE_NEW);
        const WindowsHandle err = OpenStream(output / "err", GENERIC_WRITE, CREATE_NEW);
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdInput = in.Get();
        start.hStdOutput = out.Get();
        start.hStdError = err.Get();
        PROCESS_INFORMATION process = {};
        error = Start(program, CommandLine(program, arguments), folder, start, process);
        run.status = error == 0 ? WaitForEnd(process) : -1;
    }
    run.out = output.Read("out");
    run.err = output.Read("err");
    if (error != 0) {
        run.err += program + " was not started: error " + std::to_string(error);
    }
    return run;
}

} // namespace ls::test
