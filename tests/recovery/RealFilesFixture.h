#pragma once

#include "RecoveryFixture.h"
#include "platform/SystemSeams.h"
#include "support/ScratchFolder.h"

#include <memory>

namespace ls {

/// A book of one new topic, and a folder for journals, in real files.
struct RealFilesFixture : testing::Test
{
    test::ScratchFolder scratch;
    std::unique_ptr<FileSystem> files = MakeFileSystem();
    ProgramEnd end;
    test::RecordingMessages messages{end};
    test::RecordingProcesses processes;
    std::string folder = JoinPath(NativePaths(), scratch / "state", "lodestar-advisor");
    Book book;

    [[nodiscard]] Seams Get() { return {*files, messages, processes, end, NativePaths()}; }

    void SetUp() override { ASSERT_TRUE(AddTopic(book, "One")); }

    /// The names of the files in the folder.
    [[nodiscard]] Strings Entries()
    {
        std::vector<FolderEntry> entries;
        EXPECT_TRUE(files->List(folder, entries).Ok());
        Strings names;
        for (const FolderEntry& entry : entries) {
            names.push_back(entry.name);
        }
        return names;
    }
};

} // namespace ls
