#pragma once

#include "check/CheckedBlock.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ls {

/// Reads the lines of a logic block, the one behind "<IXML>" first, and remembers where things stand.
///
/// What is a rule, a command, a registered question or a findable text is decided as the advisor's own
/// loader decides it; tests hold the two against each other.
class CheckedBlockReader
{
public:
    CheckedBlockReader(int topic, int line)
    {
        m_block.topic = topic;
        m_block.line = line;
    }

    void Take(std::string_view line, int number);

    /// Whether "</IXML>" was passed.
    [[nodiscard]] bool Closed() const { return m_block.blockEnd != 0; }

    /// The block, when its last line has been taken.
    [[nodiscard]] CheckedBlock Finish();

private:
    enum class Part
    {
        BeforeLogic,
        Logic,
        Definitions,
        Behind, ///< "</IXML>" was passed
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
    bool m_registers = true;  ///< questions are still registered
    bool m_searched = true;   ///< texts are still found
    bool m_open = false;      ///< the last entry still takes text
    std::size_t m_length = 0; ///< of that text so far
    std::string m_assumption; ///< as it is put into rules
    std::vector<BlockTerm> m_assumedTerms;
};

/// Reads a text of conditions, `A(X) B(Y)`, in upper case. `stray` gets the last text that is no condition,
/// such as a comma.
void ReadTerms(std::string_view source, std::vector<BlockTerm>& terms, RuleFault& fault, std::string& stray);

} // namespace ls
