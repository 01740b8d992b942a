// docs/failures.md names every message that a failing file causes.

#include "FaultRow.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace ls {
namespace {

std::string ReadAll(const std::string& path)
{
    std::ifstream stream(path);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

// A message as the page writes it: "Failed to fetch topic TOPIC due to error #N: WHY".
std::string General(std::string text)
{
    const std::pair<const char*, const char*> names[] = {
        {"57: Device I/O error", "N: WHY"},        {"57Error", "NError"},
        {"<<(?!HKEY)[^>]*>>", "<<FILE>>"},         {"<<HKEY[^>]*>>", "<<KEY>>"},
        {"fetch topic \\S+", "fetch topic TOPIC"}, {"cannot choose \\S+", "cannot choose FOLDER"},
    };
    for (const auto& [pattern, name] : names) {
        text = std::regex_replace(text, std::regex(pattern), name);
    }
    return text;
}

// Every message of a table that names an error.
std::set<std::string> MessagesOf(const std::string& file)
{
    const std::string text = ReadAll(std::string(LS_TEST_DATA "/faults/") + file);
    std::set<std::string> found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t told = line.find(" -> ");
        const std::size_t end = line.find(" -> ", told == std::string::npos ? told : told + 4);
        if (line.starts_with('#') || end == std::string::npos) {
            continue;
        }
        std::string all = General(line.substr(told + 4, end - told - 4));
        const std::regex one(
            "(critical|warning|exclamation): (.*?)(?= \\+ |/?(critical|warning|exclamation): |/?$)");
        for (std::sregex_iterator at(all.begin(), all.end(), one), last; at != last; ++at) {
            found.insert((*at)[2].str());
        }
    }
    return found;
}

TEST(FaultDocs, failuresPage_namesEveryMessage)
{
    const std::string page = ReadAll(LS_DOCS "/failures.md");
    const std::pair<const char*, std::size_t> tables[] = {
        {"window.txt", 6}, {"lsbook.txt", 6}, {"system.txt", 1}};
    for (const auto& [file, atLeast] : tables) {
        const std::set<std::string> messages = MessagesOf(file);
        EXPECT_GE(messages.size(), atLeast) << file;
        for (const std::string& message : messages) {
            EXPECT_NE(page.find(message), std::string::npos) << message;
        }
    }
}

} // namespace
} // namespace ls
