#pragma once

#include "Fuzz.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/Seams.h"
#include "book/Book.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"

#include <string>
#include <vector>

namespace ls::fuzz {

/// Answers every box by a choice of the input, and requires that its text can be shown.
class ChoosingMessages : public Messages
{
public:
    ChoosingMessages(const ProgramEnd& end, Input& input) : Messages(end), m_input(&input) {}

    std::vector<std::string> texts; ///< the texts of the boxes, in their order

protected:
    Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title) override;
    std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                            const std::string& initial) override;

private:
    Input* m_input;
};

/// The seams of one run: files in memory, chosen answers, and no started programs.
struct World
{
    explicit World(Input& input) : messages(end, input) {}

    ProgramEnd end;
    test::MemoryFileSystem files;
    ChoosingMessages messages;
    test::RecordingProcesses processes;
    PathRules paths = UnixPaths;

    [[nodiscard]] Seams Get() { return {files, messages, processes, end, paths}; }

    /// Writes the bytes to a file, opens it as a book and scans it. False if that fails or if it is no book.
    bool OpenBookOf(Book& book, const std::string& bytes, const std::string& path = "/work/Book.IDA");
};

/// A line of a file, without its line end.
struct SourceLine
{
    std::size_t pos = 0; ///< where it begins, from 1
    std::string text;
};

/// The lines of a book's bytes: CR and CR LF end a line.
[[nodiscard]] std::vector<SourceLine> LinesOf(const std::string& bytes);

/// Requires that a text is valid UTF-8.
void RequireUtf8(std::string_view text);

/// The text without its blanks, to compare texts whose lines break at different places.
[[nodiscard]] std::string WithoutBlanks(std::string_view text);

/// The header line of books that targets make.
inline constexpr char HeaderLine5[] = "LODESTAR BOOK V5.3\r\n";

/// Puts a header line before a text, unless the text begins with one.
[[nodiscard]] std::string AsBook(const std::string& text);

} // namespace ls::fuzz
