// The command line, as one string and as separate arguments, and command lines to be started.

#include "reader/CommandLine.h"
#include "World.h"
#include "base/SplitCommandLine.h"
#include "platform/windows/CommandLineParts.h"

namespace ls::fuzz {

namespace {

void TakeOneString(const std::string& line)
{
    const std::string behind = BehindProgramName(line);
    Require(line.ends_with(behind), "what follows the program's name is the end of the line");
    Require(behind.empty() || (behind.front() != ' ' && behind.front() != '\t'), "blanks between are passed");
    const CommandLine read = ParseCommandLine(behind);
    RequireUtf8(read.text);
    Require(read.bookPath.empty() || behind.find(read.bookPath) != std::string::npos,
            "the path is a part of the line");
    if (behind.find('/') == std::string::npos) {
        Require(read.valid && read.iniDir.empty() && read.startTopic.empty(),
                "without a slash there are no parameters");
    }
}

// The classic form, put together from parts that need no quotes, reads back.
void TakeArguments(Input& input, World& world)
{
    std::vector<std::string> arguments;
    for (const std::string& line : input.Lines()) {
        arguments.push_back(line);
        if (input.Choose(3) == 2) {
            world.files["/work/" + line];
        }
    }
    const CommandLine read = ParseArguments(arguments, world.Get());
    RequireUtf8(read.text);
    if (arguments.size() == 1 && world.files.Exists(arguments.front())) {
        RequireEqual(read.bookPath, arguments.front(), "a file that exists is the book");
    }
    ReportInvalidParameters(read, world.Get());
    Require(world.messages.texts.size() == (read.valid ? 0U : 1U), "invalid parameters are told once");
}

void TakeLaunch(const std::string& line)
{
    const std::vector<std::string> words = SplitCommandLine(line);
    const LaunchLine launch = ToLaunchLine(line);
    RequireEqual(launch.program, words.empty() ? "" : words.front(), "the program is the first word");
    if (!words.empty()) {
        Require(launch.line.starts_with('"' + launch.program + '"'), "the program stands in quotes");
    }
    std::size_t length = 0;
    for (const std::string& word : words) {
        length += word.size();
    }
    Require(length <= line.size(), "the words are no longer than the line");
}

} // namespace

void TestInput(Input& input)
{
    World world(input);
    TakeOneString(input.Text());
    TakeLaunch(input.Text());
    TakeArguments(input, world);
}

} // namespace ls::fuzz
