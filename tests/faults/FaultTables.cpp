#include "FaultRow.h"

#include "base/FileError.h"

#include <fstream>

namespace ls::test {

namespace {

std::string Part(const std::string& text)
{
    std::string line = text.empty() ? "-" : text;
    for (std::size_t at = line.find('\n'); at != std::string::npos; at = line.find('\n')) {
        line.replace(at, 1, "/");
    }
    return line;
}

} // namespace

std::string TableText(const std::vector<Outcome>& outcomes)
{
    std::string text;
    for (const Outcome& outcome : outcomes) {
        text += Part(outcome.call) + " -> " + Part(outcome.told) + " -> " + Part(outcome.left) + " -> " +
                Part(outcome.disk) + "\n";
    }
    return text;
}

std::string ReadTable(const std::string& file, const std::string& name)
{
    std::ifstream stream(LS_TEST_DATA "/faults/" + file);
    std::string text;
    bool inside = false;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with('#')) {
            inside = line == "# " + name;
        } else if (inside && !line.empty()) {
            text += line + "\n";
        }
    }
    return text;
}

std::string WithError(std::string text, int number)
{
    const auto replace = [&text](const std::string& from, const std::string& to) {
        for (std::size_t at = text.find(from); at != std::string::npos;
             at = text.find(from, at + to.size())) {
            text.replace(at, from.size(), to);
        }
    };
    replace("57: Device I/O error", std::to_string(number) + ": " + MakeFileError(number).description);
    replace("57Error", std::to_string(number) + "Error");
    return text;
}

} // namespace ls::test
