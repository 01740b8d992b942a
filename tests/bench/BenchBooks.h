#pragma once

#include "base/Messages.h"
#include "base/Processes.h"
#include "base/ProgramEnd.h"
#include "base/Seams.h"
#include "book/Book.h"
#include "platform/linux/LinuxFileSystem.h"

#include <cstddef>
#include <string>

namespace ls::bench {

constexpr std::size_t MiB = 1024 * 1024;
constexpr int TopicsOfABook = 30000;

/// Prose of at least `size` characters in one line: words, blanks, a few tags and entities.
[[nodiscard]] std::string Prose(std::size_t size);

/// How large a made-up book is. Each topic refers to one other.
struct BookShape
{
    std::size_t size = 200 * MiB; ///< in bytes, about
    int topics = TopicsOfABook;
};

/// The path of such a book in `folder`; makes the book if it is missing. The last topics of all books have
/// the same size.
[[nodiscard]] std::string BookOf(const std::string& folder, BookShape shape);
[[nodiscard]] std::string BookOfSize(const std::string& folder, std::size_t size);

/// Real files. A message box ends the program, because then the measured work was not the intended one.
class BenchWorld
{
public:
    [[nodiscard]] Seams Get() { return {m_files, m_messages, m_processes, m_end, UnixPaths}; }

    /// Opens and scans a book of that many topics with one reference each.
    void Load(Book& book, const std::string& path, int topics = TopicsOfABook);

private:
    class NoMessages : public Messages
    {
    public:
        using Messages::Messages;

    protected:
        Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title) override;
        std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                                const std::string& initial) override;
    };

    class NoProcesses : public Processes
    {
    public:
        std::string Environment(const std::string& /*name*/) override { return {}; }
        std::string ProgramFolder() override { return {}; }
        Started Start(const std::string& /*commandLine*/) override { return {}; }
    };

    ProgramEnd m_end;
    LinuxFileSystem m_files;
    NoMessages m_messages{m_end};
    NoProcesses m_processes;
};

} // namespace ls::bench
