// The fixture with the built program: the tests of commands in process also run against it.

#include "CliFixture.h"

#include "support/RunProgram.h"
#include "support/ScratchFolder.h"

#include <filesystem>

namespace ls::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* Folder = "/work";

void WriteAll(MemoryFileSystem& files, const ScratchFolder& folder)
{
    std::vector<FolderEntry> entries;
    EXPECT_TRUE(files.List(Folder, entries).Ok());
    for (const FolderEntry& entry : entries) {
        folder.Write(entry.name, files[std::string(Folder) + "/" + entry.name]);
    }
}

void ReadAll(MemoryFileSystem& files, const ScratchFolder& folder)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(folder.Path())) {
        const std::string name = entry.path().filename().string();
        files[std::string(Folder) + "/" + name] = folder.Read(name);
    }
}

} // namespace

int CliFixture::Run(const std::vector<std::string>& arguments)
{
    EXPECT_TRUE(in.empty() && !inIsTerminal && !outIsTerminal && !errIsTerminal);
    const ScratchFolder folder;
    WriteAll(files, folder);
    const ProgramRun run = RunProgram(LS_LSBOOK, arguments, folder.Path());
    ReadAll(files, folder);
    out = run.out;
    err = run.err;
    EXPECT_NE(run.status, -1) << err;
    return run.status;
}

std::vector<Json> CliFixture::Asked(const std::vector<Json>& entries)
{
    return {entries.begin(), entries.begin() + (entries.empty() ? 0 : 1)};
}

} // namespace ls::test
