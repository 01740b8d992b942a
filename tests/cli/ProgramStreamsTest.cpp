// The built program on streams of this system: a terminal, and a device that is always full.

#include "support/ScratchFolder.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace ls {
namespace {

struct ProgramStreams : testing::Test
{
    test::ScratchFolder scratch;
};

// Runs `lsbook show a.IDA A` in a folder, on a terminal 20 characters wide; returns the terminal's content.
std::string ShowOnTerminal(const std::string& folder)
{
    winsize size{};
    size.ws_row = 25;
    size.ws_col = 20;
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        unsetenv("NO_COLOR");
        setenv("TERM", "xterm", 1);
        if (chdir(folder.c_str()) == 0) {
            execl(LS_LSBOOK, "lsbook", "show", "a.IDA", "A", nullptr);
        }
        _exit(127);
    }
    std::string shown;
    std::array<char, 4096> block{};
    for (ssize_t got = 0; (got = read(terminal, block.data(), block.size())) > 0;) {
        shown.append(block.data(), static_cast<std::size_t>(got));
    }
    close(terminal);
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    return shown;
}

TEST_F(ProgramStreams, terminal_givesStylesAndItsWidth)
{
    scratch.Write("a.IDA", test::CrLf({"LODESTAR BOOK V5.3", "[A]", "<B>one</B> two three four five"}));
    EXPECT_EQ(ShowOnTerminal(scratch.Path()), "\033[1mone\033[0m two three four\r\nfive\r\n");
}

} // namespace
} // namespace ls
