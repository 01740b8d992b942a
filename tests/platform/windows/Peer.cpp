// The second program of tests with two processes.
//
//   peer dde library|messages narrow|wide SERVICE TOPIC COMMAND...
//       sends execute strings and writes a line for each answer
//   peer open shared|locked PATH
//       opens a file; the exit status is the error's number
//   peer write PATH
//       opens a file for writing and shares it for everything; the exit status is the error's number
//
// If LSTEST_REPORT names a file, it only writes there how it was started.

#include "DdeClient.h"

#include "base/CodePage.h"
#include "platform/Console.h"
#include "platform/ReadCommandLine.h"
#include "platform/SystemSeams.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsError.h"
#include "platform/windows/WindowsHandle.h"
#include "support/TestSeams.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

// Reports the whole line, what the program reads of it, its window and its folder. The file gets its name
// only when it is complete.
int Report(const std::string& path)
{
    STARTUPINFOW start = {};
    ::GetStartupInfoW(&start);
    test::TestSeams seams;
    const CommandLine read = ReadCommandLine(0, nullptr, seams.Get());
    const std::filesystem::path part = *ToWide(path + ".part");
    std::ofstream(part, std::ios::binary)
        << FromWide(::GetCommandLineW()) << '\n'
        << read.bookPath << '|' << read.iniDir << '|' << FromBook(read.startTopic) << '|'
        << (read.valid ? "valid" : "invalid") << '\n'
        << ((start.dwFlags & STARTF_USESHOWWINDOW) != 0 ? start.wShowWindow : -1) << '\n'
        << MakeFileSystem()->CurrentFolder() << '\n';
    std::filesystem::rename(part, *ToWide(path));
    return 0;
}

int AskByDde(const Strings& arguments)
{
    const test::DdeRequest request{arguments.at(2) == "wide",
                                   arguments.at(3),
                                   arguments.at(4),
                                   {arguments.begin() + 5, arguments.end()}};
    const Strings answers =
        arguments.at(1) == "library" ? test::AskByLibrary(request) : test::AskByMessages(request);
    for (const std::string& answer : answers) {
        std::cout << answer << '\n';
    }
    return 0;
}

int OpenFile(const Strings& arguments)
{
    std::unique_ptr<BookFile> file;
    const Sharing sharing = arguments.at(1) == "locked" ? Sharing::Locked : Sharing::Shared;
    return MakeFileSystem()->OpenForReading(arguments.at(2), sharing, file).number;
}

int WriteFile(const Strings& arguments)
{
    const WindowsHandle file(::CreateFileW(ToWide(arguments.at(1))->c_str(), GENERIC_WRITE,
                                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file.IsOpen() ? 0 : ErrorOfCode(::GetLastError()).number;
}

int Run(int argc, char** argv)
{
    PrepareConsole();
    if (const std::string path = MakeProcesses()->Environment("LSTEST_REPORT"); !path.empty()) {
        return Report(path);
    }
    const Strings arguments = ProgramArguments(argc, argv);
    const std::string& task = arguments.at(0);
    return task == "dde" ? AskByDde(arguments) : task == "open" ? OpenFile(arguments) : WriteFile(arguments);
}

} // namespace
} // namespace ls

int main(int argc, char** argv)
{
    return ls::Run(argc, argv);
}
