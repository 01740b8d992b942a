// The built program, killed while it saves.

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

    // Saves "In.IDA" as "Out.IDA" and kills the process when `now` returns true, unless it has ended before.
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
        EXPECT_TRUE(folder.Read("In.IDA") == input) << "the open book is damaged";
        if (folder.Has("Out.IDA")) {
            EXPECT_TRUE(folder.Read("Out.IDA") == input) << "the new book is incomplete";
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
    EXPECT_GT(parts, 0) << "no save was killed in the middle";
}

} // namespace
} // namespace ls
