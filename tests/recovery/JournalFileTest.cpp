#include "RecoveryFixture.h"

namespace ls {
namespace {

struct JournalFileTest : testing::Test
{
    test::MemoryFileSystem files;
    std::string path = "/state/j.journal";
    JournalReading reading;

    JournalFileTest() { files.AddFolder("/state"); }
};

TEST_F(JournalFileTest, writeJournal_newAndAgain_holdsTheLastBytes)
{
    ASSERT_EQ(WriteJournal(files, path, "one"), FileError{});
    ASSERT_EQ(WriteJournal(files, path, "two"), FileError{});
    EXPECT_EQ(files[path], "two");
    EXPECT_FALSE(files.Has("/state/j.journal.new"));
}

// This order ensures that a whole journal exists at every moment.
TEST_F(JournalFileTest, writeJournal_writesBesideAndRenames)
{
    ASSERT_EQ(WriteJournal(files, path, "one"), FileError{});
    EXPECT_EQ(files.log, (Strings{"remove /state/j.journal.new", "create /state/j.journal.new",
                                  "write /state/j.journal.new", "finish /state/j.journal.new",
                                  "rename /state/j.journal.new /state/j.journal"}));
}

TEST_F(JournalFileTest, writeJournal_anyFault_isToldAndKeepsTheOlder)
{
    for (const char* operation : {"create", "write", "finish", "rename"}) {
        files[path] = "older";
        files.fail = [operation](const std::string& is) {
            return is.starts_with(operation) ? error::DiskFull : 0;
        };
        EXPECT_EQ(WriteJournal(files, path, "newer").number, error::DiskFull) << operation;
        EXPECT_EQ(files[path], "older") << operation;
        EXPECT_FALSE(files.Has("/state/j.journal.new")) << operation;
    }
}

TEST_F(JournalFileTest, writeJournal_halfWrittenOneLeft_isReplaced)
{
    files["/state/j.journal.new"] = "half";
    ASSERT_EQ(WriteJournal(files, path, "one"), FileError{});
    EXPECT_EQ(files[path], "one");
    EXPECT_FALSE(files.Has("/state/j.journal.new"));
}

TEST_F(JournalFileTest, readJournal_longOne_isReadWhole)
{
    Journal journal;
    journal.recs = {{1, "[A]", false, std::string(3 * 1024 * 1024 + 7, 'x'), "l"}};
    for (const std::size_t size :
         {std::size_t{1}, std::size_t{256 * 1024}, std::size_t{3 * 1024 * 1024 + 7}}) {
        journal.recs.front().text.assign(size, 'x');
        ASSERT_EQ(WriteJournal(files, path, JournalText(journal)), FileError{});
        ASSERT_EQ(ReadJournal(files, path, reading), FileError{});
        EXPECT_EQ(reading.state, JournalState::Whole);
        EXPECT_TRUE(reading.journal.recs == journal.recs) << size;
    }
}

TEST_F(JournalFileTest, readJournal_faults_areToldAndReadNothing)
{
    EXPECT_EQ(ReadJournal(files, path, reading).number, error::FileNotFound);
    files[path] = JournalText(FullJournal());
    for (const char* operation : {"open", "read"}) {
        files.fail = [operation](const std::string& is) {
            return is.starts_with(operation) ? error::DeviceIo : 0;
        };
        EXPECT_EQ(ReadJournal(files, path, reading).number, error::DeviceIo) << operation;
        EXPECT_EQ(reading.state, JournalState::Unreadable) << operation;
        EXPECT_TRUE(reading.journal.recs.empty()) << operation;
    }
}

} // namespace
} // namespace ls
