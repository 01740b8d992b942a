// The program's command line, as one string and as separate arguments, and command lines that it starts.

#include "reader/settings/CommandLine.h"
#include "World.h"
#include "base/CodePage.h"
#include "base/SplitCommandLine.h"
#include "base/Text.h"
#include "platform/windows/CommandLineParts.h"

#include <algorithm>

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

// A text without the command line's special characters, and without blanks at its ends.
std::string PlainPart(const std::string& text)
{
    std::string plain;
    for (const char c : text) {
        plain += c == '"' || c == '/' ? '_' : c;
    }
    return std::string(Trim(plain));
}

void RequireRead(const CommandLine& read, const std::string& path, const std::string& folder,
                 const std::string& topic)
{
    Require(read.valid, "a command line that was put together is valid");
    RequireEqual(read.bookPath, path, "the path reads back");
    RequireEqual(read.iniDir, folder, "the folder reads back");
    RequireEqual(read.startTopic, ToBook(topic).value_or(topic), "the topic reads back");
}

// A command line that is built from its parts reads back as the same parts, in the form of either system.
void TakeParts(Input& input, World& world)
{
    const std::vector<std::string> lines = input.Lines();
    const std::string path = PlainPart(lines[0]);
    std::string folder = lines[lines.size() / 2];
    std::replace(folder.begin(), folder.end(), '"', '_');
    const std::string topic = PlainPart(lines.back());
    if (path.empty()) {
        return;
    }
    RequireRead(ParseCommandLine(path + " /INIDIR=\"" + folder + "\"  /Topic=" + topic), path, folder, topic);
    RequireRead(ParseCommandLine("\"" + path + "\" /topic=\"" + topic + "\" /IniDir=\"" + folder + "\""),
                path, folder, topic);
    std::vector<std::string> arguments = {path, "/INIDIR=" + folder, "/TOPIC="};
    for (const char c : topic) {
        if (c == ' ') {
            arguments.emplace_back();
        } else {
            arguments.back() += c;
        }
    }
    RequireRead(ParseArguments(arguments, world.Get()), path, folder, topic);
}

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
    TakeParts(input, world);
    TakeOneString(input.Text());
    TakeLaunch(input.Text());
    TakeArguments(input, world);
}

} // namespace ls::fuzz
