#include "bench/StartedProgram.h"

#include "bench/Measure.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ls::bench {

namespace {

[[noreturn]] void Become(const std::vector<std::string>& words, const std::vector<std::string>& environment)
{
    setpgid(0, 0);
    const int nowhere = open("/dev/null", O_RDWR);
    for (const int stream : {0, 1, 2}) {
        dup2(nowhere, stream);
    }
    for (const std::string& setting : environment) {
        const std::size_t equals = setting.find('=');
        setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
    }
    if (const char* home = getenv("HOME"); home == nullptr || chdir(home) != 0) {
        _exit(127); // elsewhere the program could write into the current folder
    }
    std::vector<char*> arguments;
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    _exit(127);
}

// Reads "VmHWM:   1234 kB" of a process; 0 if the process is gone.
long PeakOf(const std::string& process)
{
    std::ifstream status("/proc/" + process + "/status");
    std::string word;
    long kib = 0;
    while (status >> word) {
        if (word == "VmHWM:") {
            status >> kib;
        }
    }
    return kib;
}

} // namespace

pid_t StartProgram(const std::vector<std::string>& words, const std::vector<std::string>& environment)
{
    const pid_t program = fork();
    Require(program >= 0, "a process can be started");
    if (program == 0) {
        Become(words, environment);
    }
    setpgid(program, program); // both parent and child do this, as either may be first
    return program;
}

void EndProgram(pid_t program)
{
    kill(-program, SIGTERM);
    for (int i = 0; i < 100 && Runs(program); ++i) {
        usleep(10000);
    }
    kill(-program, SIGKILL);
    waitpid(program, nullptr, 0);
}

bool Runs(pid_t program)
{
    siginfo_t info{};
    const int asked = waitid(P_PID, static_cast<id_t>(program), &info, WEXITED | WNOHANG | WNOWAIT);
    return asked == 0 && info.si_pid == 0;
}

GroupMemory PeakMemoryOf(pid_t program)
{
    GroupMemory memory;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        const bool process = name.find_first_not_of("0123456789") == std::string::npos;
        if (!process || getpgid(static_cast<pid_t>(std::stol(name))) != program) {
            continue;
        }
        const long peak = PeakOf(name);
        memory.first = std::stol(name) == program ? peak : memory.first;
        memory.all += peak;
        ++memory.processes;
    }
    return memory;
}

} // namespace ls::bench
