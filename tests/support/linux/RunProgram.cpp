#include "support/RunProgram.h"

#include "support/ScratchFolder.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ls::test {

namespace {

void Redirect(int descriptor, const std::string& path, int flags)
{
    const int file = ::open(path.c_str(), flags, 0600);
    ::dup2(file, descriptor);
    ::close(file);
}

} // namespace

ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                      const std::string& folder)
{
    const ScratchFolder output;
    const std::string out = output.Write("out", "");
    const std::string err = output.Write("err", "");
    std::vector<std::string> words = arguments;
    words.insert(words.begin(), program);
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        Redirect(STDIN_FILENO, "/dev/null", O_RDONLY);
        Redirect(STDOUT_FILENO, out, O_WRONLY | O_APPEND);
        Redirect(STDERR_FILENO, err, O_WRONLY | O_APPEND);
        if (::chdir(folder.c_str()) == 0) {
            ::execv(program.c_str(), argv.data());
        }
        ::_exit(127);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output.Read("out"), output.Read("err")};
}

} // namespace ls::test
