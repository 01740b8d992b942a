#pragma once

#include "base/Processes.h"

#include <map>
#include <string>
#include <vector>

namespace ls::test {

/// Starts nothing and records the command lines.
class RecordingProcesses : public Processes
{
public:
    std::string Environment(const std::string& name) override
    {
        const auto found = environment.find(name);
        return found == environment.end() ? std::string() : found->second;
    }
    std::string ProgramFolder() override { return programFolder; }
    Started Start(const std::string& commandLine) override
    {
        started.push_back(commandLine);
        return result;
    }

    std::map<std::string, std::string> environment;
    std::string programFolder = "/program";
    std::vector<std::string> started;
    Started result{{}, 1};
};

} // namespace ls::test
