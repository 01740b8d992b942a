// PDF files that cannot be written, or only in part.

#include "gui/PrintPdfFixture.h"
#include "support/MemoryFileSystem.h"
#include "support/RowName.h"

#include <csignal>

#include <sys/resource.h>

namespace ls {
namespace {

TEST_F(PrintPdfTest, fileOfThatName_isReplacedOnlyWhenAgreed)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    const std::string path = folder.Write("b.pdf", "precious");
    printer.SetFile(path, false);
    EXPECT_EQ(PrintTopic(book, seams, printer, settings, "A", 1).error,
              MakeFileError(error::FileAlreadyExists));
    EXPECT_EQ(folder.Read("b.pdf"), "precious");
    printer.SetFile(path, true);
    EXPECT_EQ(PrintTopic(book, seams, printer, settings, "A", 1).error, FileError{});
    EXPECT_EQ(test::PdfPages(path), (PageRows{{"A", "x"}}));
}

TEST_F(PrintPdfTest, fileThatComesWhileThePagesAreStored_isKept)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    test::MemoryFileSystem memory;
    memory.fail = [&memory](const std::string& operation) {
        if (operation.starts_with("finish")) {
            memory["/work/a.pdf"] = "somebody else's";
        }
        return 0;
    };
    SystemPrinter onMemory(memory, service);
    onMemory.SetFile("/work/a.pdf", false);
    EXPECT_EQ(PrintTopic(book, seams, onMemory, settings, "A", 1).error,
              MakeFileError(error::FileAlreadyExists));
    EXPECT_EQ(memory["/work/a.pdf"], "somebody else's");
    EXPECT_FALSE(memory.Has("/work/a.pdf.new"));
}

struct BadPlace
{
    const char* name;
    const char* path;
    int error;
};

class PrintPdfBadPlace : public PrintPdfTest, public testing::WithParamInterface<BadPlace>
{
};

TEST_P(PrintPdfBadPlace, fileThatCannotBeWritten_isAnErrorAndLeavesNothing)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    folder.MakeFolder("folder.pdf");
    std::string path = GetParam().path;
    if (path.front() != '/') {
        path = folder / path;
    }
    printer.SetFile(path, true);
    EXPECT_EQ(PrintTopic(book, seams, printer, settings, "A", 1).error.number, GetParam().error);
    // The next print succeeds.
    EXPECT_EQ(test::PdfPages(Print(1, "good")), (PageRows{{"A", "x"}}));
}

INSTANTIATE_TEST_SUITE_P(Places, PrintPdfBadPlace,
                         testing::Values(BadPlace{"missingFolder", "none/a.pdf", error::PathNotFound},
                                         BadPlace{"aFolder", "folder.pdf", error::PathFileAccess},
                                         BadPlace{"fullDevice", "/dev/full", error::DeviceUnavailable},
                                         BadPlace{"systemFolder", "/proc/a.pdf", error::FileNotFound}),
                         test::RowName());

TEST_F(PrintPdfTest, noRoomForTheWork_isAnErrorAndNotDone)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc"); // nothing can be made there
    const std::string path = folder / "a.pdf";
    printer.SetFile(path, true);
    const FileError error = PrintTopic(book, seams, printer, settings, "A", 1).error;
    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    EXPECT_EQ(error, MakeFileError(error::PathFileAccess));
    EXPECT_FALSE(folder.Has("a.pdf"));
    EXPECT_EQ(test::PdfPages(Print(1)), (PageRows{{"A", "x"}}));
}

// The limit acts like a full disk: the toolkit writes only a part of the file and reports no error.
TEST_F(PrintPdfTest, pagesCutWhileTheyAreMade_areNotTakenForDone)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    const std::string path = folder.Write("a.pdf", "precious");
    printer.SetFile(path, true);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit small = before;
    small.rlim_cur = 2000;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const FileError error = PrintTopic(book, seams, printer, settings, "A", 1).error;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(error, MakeFileError(error::DiskFull));
    EXPECT_EQ(folder.Read("a.pdf"), "precious");
    EXPECT_EQ(test::PdfPages(Print(1)), (PageRows{{"A", "x"}}));
}

// Each call fails in turn, for a new file and for one that is replaced.
TEST_F(PrintPdfTest, eachCallFailingWhileTheFileIsStored_keepsTheOldOneAndLeavesNoHalfOne)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    for (const bool replace : {false, true}) {
        std::string error = "first";
        for (int failAt = 1; !error.empty() && failAt < 50; ++failAt) {
            test::MemoryFileSystem memory;
            if (replace) {
                memory["/work/a.pdf"] = "precious";
            }
            int calls = 0;
            error.clear();
            memory.fail = [&](const std::string& operation) {
                error = ++calls == failAt ? operation : error;
                return calls == failAt ? error::DeviceIo : 0;
            };
            SystemPrinter onMemory(memory, service);
            onMemory.SetFile("/work/a.pdf", replace);
            const FileError told = PrintTopic(book, seams, onMemory, settings, "A", 1).error;
            SCOPED_TRACE(error);
            EXPECT_EQ(told, error.empty() ? FileError{} : MakeFileError(error::DeviceIo));
            EXPECT_FALSE(memory.Has("/work/a.pdf.new"));
            if (error.empty()) {
                EXPECT_GT(failAt, 4) << "creating, writing, finishing and naming failed";
                EXPECT_TRUE(memory["/work/a.pdf"].starts_with("%PDF"));
            } else {
                EXPECT_EQ(memory.Has("/work/a.pdf"), replace);
                EXPECT_TRUE(!replace || memory["/work/a.pdf"] == "precious");
            }
        }
        EXPECT_EQ(error, "");
    }
}

struct StoreFault
{
    const char* name;
    const char* operation;
};

class PrintPdfStore : public PrintPdfTest, public testing::WithParamInterface<StoreFault>
{
};

TEST_P(PrintPdfStore, diskFullWhileTheFileIsStored_keepsTheOldOne)
{
    Open(folder.Write("a.IDA", "LODESTAR BOOK V5.3\r\n[A]\r\nx\r\n"));
    test::MemoryFileSystem memory;
    memory["/work/a.pdf"] = "precious";
    memory.fail = [](const std::string& operation) {
        return operation.starts_with(GetParam().operation) ? error::DiskFull : 0;
    };
    SystemPrinter onMemory(memory, service);
    onMemory.SetFile("/work/a.pdf", true);
    EXPECT_EQ(PrintTopic(book, seams, onMemory, settings, "A", 1).error, MakeFileError(error::DiskFull));
    EXPECT_EQ(memory["/work/a.pdf"], "precious");
    EXPECT_FALSE(memory.Has("/work/a.pdf.new"));
    memory.fail = nullptr;
    EXPECT_EQ(PrintTopic(book, seams, onMemory, settings, "A", 1).error, FileError{});
    EXPECT_TRUE(memory["/work/a.pdf"].starts_with("%PDF"));
}

INSTANTIATE_TEST_SUITE_P(Steps, PrintPdfStore,
                         testing::Values(StoreFault{"create", "create"}, StoreFault{"write", "write"},
                                         StoreFault{"finish", "finish"}, StoreFault{"rename", "rename"}),
                         test::RowName());

} // namespace
} // namespace ls
