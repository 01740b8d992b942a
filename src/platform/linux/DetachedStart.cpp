#include "platform/linux/DetachedStart.h"

#include "platform/linux/FileDescriptor.h"

#include <cerrno>
#include <climits>
#include <csignal>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

// Between a fork and the start of the other program, only calls that take no lock and allocate no memory are
// allowed. If another thread holds a lock during the fork, the lock is never released in the new process.

namespace ls {

namespace {

constexpr int FirstFreeDescriptor = 3;

enum class Told : int
{
    Id,
    Failure
};

// What the new processes write into the pipe; short enough for one uncut write.
struct Report
{
    Told told = Told::Id;
    int value = 0;
};

void Tell(int pipe, Told told, int value)
{
    const Report report{told, value};
    while (::write(pipe, &report, sizeof report) < 0 && errno == EINTR) {
    }
}

[[noreturn]] void TellFailure(int pipe)
{
    Tell(pipe, Told::Failure, errno);
    ::_exit(127);
}

// Resets all signals, because the other program would inherit those that are ignored or blocked.
void ResetSignals()
{
    for (int number = 1; number < NSIG; ++number) {
        std::signal(number, SIG_DFL);
    }
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

// Moves the pipe to the first free number and closes all higher ones; returns the pipe's number.
int CloseAllBut(int pipe)
{
    if (pipe != FirstFreeDescriptor) {
        if (::dup3(pipe, FirstFreeDescriptor, O_CLOEXEC) < 0) {
            TellFailure(pipe);
        }
    }
    if (::close_range(FirstFreeDescriptor + 1, UINT_MAX, 0) != 0) {
        // An older kernel: closes them one by one, up to the limit for this program.
        const long limit = ::sysconf(_SC_OPEN_MAX);
        for (int number = FirstFreeDescriptor + 1; number < (limit > 0 ? limit : 1024); ++number) {
            ::close(number);
        }
    }
    return FirstFreeDescriptor;
}

void UseNullDevice(int pipe)
{
    const int null = ::open("/dev/null", O_RDWR);
    if (null < 0) {
        TellFailure(pipe);
    }
    for (int number = 0; number < FirstFreeDescriptor; ++number) {
        if (::dup2(null, number) < 0) {
            TellFailure(pipe);
        }
    }
}

[[noreturn]] void Run(int pipe, const char* program, char* const* arguments, char* const* environment)
{
    ::setsid();
    UseNullDevice(pipe);
    pipe = CloseAllBut(pipe);
    ResetSignals();
    // The process between the two programs. When it ends, the system becomes the new program's parent and
    // collects its exit status.
    const pid_t child = ::fork();
    if (child < 0) {
        TellFailure(pipe);
    }
    if (child > 0) {
        Tell(pipe, Told::Id, child);
        ::_exit(0);
    }
    ::execve(program, arguments, environment);
    TellFailure(pipe);
}

// Reads until the pipe is closed; a successful start closes it.
DetachedProcess Collect(int pipe)
{
    DetachedProcess result;
    Report report;
    while (true) {
        const ssize_t count = ::read(pipe, &report, sizeof report);
        if (count == static_cast<ssize_t>(sizeof report)) {
            (report.told == Told::Id ? result.id : result.errnoValue) = report.value;
        } else if (count >= 0 || errno != EINTR) {
            break;
        }
    }
    if (result.errnoValue != 0) {
        result.id = 0;
    }
    return result;
}

// A pipe with both ends above the standard descriptors, even when those are closed.
int MakePipe(FileDescriptor& readEnd, FileDescriptor& writeEnd)
{
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        return errno;
    }
    readEnd = FileDescriptor(ends[0]);
    writeEnd = FileDescriptor(ends[1]);
    FileDescriptor high(::fcntl(writeEnd.Get(), F_DUPFD_CLOEXEC, FirstFreeDescriptor));
    if (!high.IsOpen()) {
        return errno;
    }
    writeEnd = std::move(high);
    return 0;
}

} // namespace

DetachedProcess StartDetached(const std::string& program, const std::vector<std::string>& words)
{
    std::vector<std::string> copies = words;
    std::vector<char*> arguments;
    for (std::string& word : copies) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    FileDescriptor readEnd;
    FileDescriptor writeEnd;
    if (const int failure = MakePipe(readEnd, writeEnd); failure != 0) {
        return {failure, 0};
    }
    const pid_t between = ::fork();
    if (between < 0) {
        return {errno, 0};
    }
    if (between == 0) {
        Run(writeEnd.Get(), program.c_str(), arguments.data(), environ);
    }
    writeEnd.Close();
    const DetachedProcess result = Collect(readEnd.Get());
    while (::waitpid(between, nullptr, 0) < 0 && errno == EINTR) {
    }
    return result;
}

} // namespace ls
