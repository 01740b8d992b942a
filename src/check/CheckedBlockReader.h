#pragma once

#include "check/CheckedBlock.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ls {

/// Reads the lines of a logic block, from the line after "<IXML>" on, and records what is on which line.
///
/// It recognises rules, commands, registered questions and searchable texts as the advisor's own loader does.
/// Tests compare the two.
class CheckedBlockReader
{
public:
    CheckedBlockReader(int topic, int line)
    {
        m_block.topic = topic;
        m_block.line = line;
    }

    void Take(std::string_view line, int number);

    /// Whether "</IXML>" was read.
    [[nodiscard]] bool Closed() const { return m_block.blockEnd != 0; }

    /// The block. Call it after the last line.
    [[nodiscard]] CheckedBlock Finish();

private:
    enum class Part
    {
        BeforeLogic,
        Logic,
        Definitions,
        After, ///< after "</IXML>"
    };

    void TakeBeforeLogic(std::string_view trimmed, int number);
    void TakeLogic(std::string_view trimmed, int number);
    void TakeCommand(std::string line, int number);
    void TakeRule(const std::string& line, int number);
    void TakeDefinitions(std::string_view line, int number);
    void OpenEntries(std::string_view line, const std::string& upper, std::size_t from, int number);
    std::size_t TakeText(std::string_view line, std::size_t from);
    void ResolveStrayWords();

    CheckedBlock m_block;
    Part m_part = Part::BeforeLogic;
    bool m_first = true;
    bool m_registers = true;  ///< the loader still finds questions here
    bool m_searched = true;   ///< texts are still found here
    bool m_open = false;      ///< the last entry is not closed yet
    std::size_t m_length = 0; ///< the length of its text so far
    std::string m_assumption; ///< the text that ASSUME inserts into rules
    std::vector<BlockTerm> m_assumedTerms;
};

/// Reads conditions, `A(X) B(Y)`, in upper case. `stray` gets the last text that is no condition, such as a
/// comma.
void ReadTerms(std::string_view source, std::vector<BlockTerm>& terms, RuleFault& fault, std::string& stray);

} // namespace ls
