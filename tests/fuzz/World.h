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

/// Answers every box by a choice of the input, and requires that what it says can be shown.
class ChoosingMessages : public Messages
{
public:
    ChoosingMessages(const ProgramEnd& end, Input& input) : Messages(end), m_input(&input) {}

    std::vector<std::string> texts; ///< of the boxes, in their order

protected:
    Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title) override;
    std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                            const std::string& initial) override;

private:
    Input* m_input;
};

/// Seams of a run's own: files in memory, chosen answers, nothing that is started.
struct World
{
    explicit World(Input& input) : messages(end, input) {}

    ProgramEnd end;
    test::MemoryFileSystem files;
    ChoosingMessages messages;
    test::RecordingProcesses processes;
    PathRules paths = UnixPaths;

    [[nodiscard]] Seams Get() { return {files, messages, processes, end, paths}; }

    /// Puts the bytes into a file, opens it as a book and scans it. False when it cannot be, or is no book.
    bool OpenBookOf(Book& book, const std::string& bytes, const std::string& path = "/work/Book.IDA");
};

/// A line of a file, without its line end.
struct SourceLine
{
    std::size_t pos = 0; ///< where it begins, from 1
    std::string text;
};

/// The lines of a book's bytes: CR and CR LF end one.
[[nodiscard]] std::vector<SourceLine> LinesOf(const std::string& bytes);

/// Requires that a text is UTF-8 from end to end.
void RequireUtf8(std::string_view text);

/// Where a text's words may be parted: everything but blanks.
[[nodiscard]] std::string WithoutBlanks(std::string_view text);

/// The header line of the books that targets make.
inline constexpr char HeaderLine5[] = "LODESTAR BOOK V5.3\r\n";

/// A text with a header line in front, unless it begins with one itself.
[[nodiscard]] std::string AsBook(const std::string& text);

} // namespace ls::fuzz
