#pragma once

#include "book/BookLoader.h"
#include "gui/PdfTools.h"
#include "platform/SystemSeams.h"
#include "render/print/PrintSettings.h"
#include "render/print/PrintTopic.h"
#include "render/print/SystemPrinter.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace ls {

using Strings = std::vector<std::string>;
using PageRows = std::vector<Strings>;

/// Prints into PDF files in a scratch folder, on a system without printers.
class PrintPdfTest : public testing::Test
{
protected:
    PrintPdfTest() { qputenv("CUPS_SERVER", "/nonexistent/socket"); }

    void Open(const std::string& path, bool plain = false)
    {
        bookPath = path;
        book.BookPath = path;
        if (plain) {
            messages.replies = {Reply::Ok};
        }
        ASSERT_TRUE(OpenBook(book, seams));
        messages.Take();
        if (!plain) {
            ASSERT_TRUE(ScanBook(book, seams));
        }
    }

    /// Prints a topic (0 is the plain text file) into NAME.pdf and returns its path.
    std::string Print(int number, const std::string& name = "a")
    {
        const std::string path = folder / (name + ".pdf");
        printer.SetFile(path, true);
        const std::string title = number == 0 ? "" : book.TopicNames(number);
        const Printed printed = PrintTopic(book, seams, printer, settings, title, number);
        EXPECT_EQ(printed.error, FileError{});
        EXPECT_TRUE(printed.located);
        EXPECT_EQ(messages.Take(), Strings{});
        return path;
    }

    /// The pages that `lsbook pages` prints for the same sheet.
    PageRows BookPages(int number)
    {
        const PrinterState state = printer.State();
        const auto text = [](double length) { return QString::number(static_cast<int>(length)); };
        QStringList arguments = {QStringLiteral("pages"), QString::fromStdString(bookPath)};
        if (number == 0) {
            arguments << QStringLiteral("--plain");
        } else {
            arguments << QStringLiteral("--number") << QString::number(number);
        }
        arguments << QStringLiteral("--page") << text(state.width) << text(state.height)
                  << QStringLiteral("--printable") << text(state.scaleWidth) << text(state.scaleHeight)
                  << QStringLiteral("--line-height") << text(printer.Surface().TextHeight("_"))
                  << QStringLiteral("--cpi") << QString::number(settings.CharsPerInch);
        if (state.landscape) {
            arguments << QStringLiteral("--landscape");
        }
        return test::FoldedPages(test::OutputOf(QStringLiteral(LS_LSBOOK), arguments));
    }

    test::ScratchFolder folder;
    std::unique_ptr<FileSystem> files = MakeFileSystem();
    ProgramEnd end;
    test::RecordingMessages messages{end};
    test::RecordingProcesses processes;
    Seams seams{*files, messages, processes, end, NativePaths()};
    PrintService service;
    SystemPrinter printer{*files, service};
    PrintSettings settings;
    Book book;
    std::string bookPath;
};

} // namespace ls
