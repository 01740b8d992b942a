// The built program, ended by the system while it saves.

#include "platform/windows/WideText.h"
#include "platform/windows/WindowsHandle.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

namespace ls {
namespace {

std::string BookText()
{
    constexpr std::size_t BytesOfTopic = 40'000;
    std::string bytes = "LODESTAR BOOK V5.3\r\n";
    for (int i = 1; i <= 300; ++i) {
        bytes += "[Topic " + std::to_string(i) + "]\r\n" + std::string(BytesOfTopic, 'x') + "\r\n";
    }
    return bytes;
}

struct KilledSave : testing::Test
{
    test::ScratchFolder folder;
    std::string input = BookText();

    KilledSave() { folder.Write("In.IDA", input); }

    // Saves "In.IDA" as "Out.IDA" and ends the process when `now` says so, unless it ended by itself.
    void Round(const std::function<bool()>& now)
    {
        for (const char* name : {"Out.IDA", "Out.IDA.part"}) {
            std::filesystem::remove(folder / name);
        }
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        PROCESS_INFORMATION process = {};
        std::wstring line = L"lsbook save In.IDA Out.IDA";
        ASSERT_NE(::CreateProcessW(ToWide(LS_LSBOOK)->c_str(), line.data(), nullptr, nullptr, FALSE, 0,
                                   nullptr, ToWide(folder.Path())->c_str(), &start, &process),
                  0);
        const WindowsHandle thread(process.hThread);
        const WindowsHandle program(process.hProcess);
        while (!now() && ::WaitForSingleObject(program.Get(), 0) == WAIT_TIMEOUT) {
            ::SwitchToThread();
        }
        ::TerminateProcess(program.Get(), 1);
        ::WaitForSingleObject(program.Get(), INFINITE);
    }

    void ExpectAllWhole()
    {
        EXPECT_TRUE(folder.Read("In.IDA") == input) << "the book that was open is not whole";
        if (folder.Has("Out.IDA")) {
            EXPECT_TRUE(folder.Read("Out.IDA") == input) << "there is half a book";
            EXPECT_FALSE(folder.Has("Out.IDA.part"));
        }
    }
};

TEST_F(KilledSave, save_nobodyEndsIt_isWhole)
{
    Round([] { return false; });
    ASSERT_TRUE(folder.Has("Out.IDA"));
    ExpectAllWhole();
}

TEST_F(KilledSave, save_endedWhileItWrites_leavesAPartOnly)
{
    int parts = 0;
    for (const std::uintmax_t size : {0U, 1U, 1'000'000U, 3'000'000U, 6'000'000U, 9'000'000U, 11'000'000U}) {
        Round([this, size] {
            std::error_code missing;
            const std::uintmax_t written = std::filesystem::file_size(folder / "Out.IDA.part", missing);
            return !missing && written >= size;
        });
        ExpectAllWhole();
        parts += folder.Has("Out.IDA.part") ? 1 : 0;
    }
    EXPECT_GT(parts, 0) << "it was always too fast to be ended in the middle";
}

} // namespace
} // namespace ls
