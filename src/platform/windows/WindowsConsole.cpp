#include "platform/Console.h"

#include "platform/windows/ConsoleInput.h"
#include "platform/windows/WideText.h"

#include <cstdio>
#include <iostream>
#include <memory>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace ls {

namespace {

HANDLE HandleOf(StandardStream stream)
{
    const DWORD name = stream == StandardStream::Input    ? STD_INPUT_HANDLE
                       : stream == StandardStream::Output ? STD_OUTPUT_HANDLE
                                                          : STD_ERROR_HANDLE;
    return ::GetStdHandle(name);
}

// The mode of a console; false for a file, a pipe and the null device.
bool ConsoleMode(HANDLE handle, DWORD& mode)
{
    return ::GetConsoleMode(handle, &mode) != 0;
}

// Sets the console to UTF-8 while the program runs. The code page belongs to the window, so the destructor
// restores it for the next program.
class ConsoleCodePage
{
public:
    ConsoleCodePage() : m_before(::GetConsoleOutputCP())
    {
        if (m_before != 0) {
            ::SetConsoleOutputCP(CP_UTF8);
        }
    }
    ~ConsoleCodePage()
    {
        if (m_before != 0) {
            std::cout.flush();
            std::cerr.flush();
            ::SetConsoleOutputCP(m_before);
        }
    }
    ConsoleCodePage(const ConsoleCodePage&) = delete;
    ConsoleCodePage& operator=(const ConsoleCodePage&) = delete;

private:
    UINT m_before;
};

// Makes a console obey the escape sequences of bold, underlined and coloured text.
void ObeyEscapeSequences(StandardStream stream)
{
    const HANDLE handle = HandleOf(stream);
    if (DWORD mode = 0; ConsoleMode(handle, mode)) {
        ::SetConsoleMode(handle, mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
}

} // namespace

void PrepareConsole()
{
    static const ConsoleCodePage codePage;
    static ConsoleInput typed;
    for (std::FILE* stream : {stdin, stdout, stderr}) {
        ::_setmode(::_fileno(stream), _O_BINARY);
    }
    ObeyEscapeSequences(StandardStream::Output);
    ObeyEscapeSequences(StandardStream::Error);
    if (ConsoleOf(StandardStream::Input).isTerminal) {
        std::cin.rdbuf(&typed);
    }
}

ConsoleStream ConsoleOf(StandardStream stream)
{
    const HANDLE handle = HandleOf(stream);
    ConsoleStream console;
    DWORD mode = 0;
    console.isTerminal = ConsoleMode(handle, mode);
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (console.isTerminal && ::GetConsoleScreenBufferInfo(handle, &info) != 0) {
        console.columns = info.srWindow.Right - info.srWindow.Left + 1;
    }
    return console;
}

// Ignores the arguments of `main`: they are in the system's old code page, which lacks characters of some
// names.
std::vector<std::string> ProgramArguments(int /*argc*/, char** /*argv*/)
{
    int count = 0;
    const std::unique_ptr<LPWSTR[], decltype(&::LocalFree)> words(
        ::CommandLineToArgvW(::GetCommandLineW(), &count), ::LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; words && i < count; ++i) {
        arguments.push_back(FromWide(words[static_cast<std::size_t>(i)]));
    }
    return arguments;
}

} // namespace ls
