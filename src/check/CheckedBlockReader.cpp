#include "check/CheckedBlockReader.h"

#include "advisor/Definitions.h"
#include "advisor/LogicLine.h"
#include "base/Text.h"
#include "book/BookWords.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace ls {

namespace {

constexpr auto None = std::string_view::npos;

bool NamesTarget(std::string_view line)
{
    const LogicCommand command = SplitCommand(line);
    return command.kind == LogicCommand::Kind::Target && !command.argument.empty();
}

void Fault(BlockRule& rule, RuleFault fault)
{
    if (rule.fault == RuleFault::None || fault < rule.fault) {
        rule.fault = fault;
    }
}

// Reads the part before the "=", which must be `VAR(VALUE)`.
void ReadConclusion(std::string_view source, BlockRule& rule)
{
    std::vector<BlockTerm> terms;
    RuleFault fault = RuleFault::None;
    std::string stray;
    ReadTerms(source, terms, fault, stray);
    if (fault != RuleFault::None || terms.size() != 1) {
        rule.fault = RuleFault::Conclusion;
    }
    if (!terms.empty()) {
        rule.conclusion = terms.front();
    }
}

} // namespace

void CheckedBlockReader::Take(std::string_view line, int number)
{
    const std::string_view trimmed = Trim(line);
    switch (m_part) {
    case Part::BeforeLogic:
        TakeBeforeLogic(trimmed, number);
        break;
    case Part::Logic:
        TakeLogic(trimmed, number);
        break;
    case Part::Definitions:
        TakeDefinitions(line, number);
        break;
    case Part::After:
        if (m_block.textAfter == 0 && !trimmed.empty()) {
            m_block.textAfter = number;
        }
        break;
    }
    m_first = false;
}

void CheckedBlockReader::TakeBeforeLogic(std::string_view trimmed, int number)
{
    if (EqualsUpper(trimmed, LogicOpening)) {
        m_part = Part::Logic;
        m_block.logicLine = number;
        m_block.logicIsNext = m_first;
    } else if (EqualsUpper(trimmed, BlockClosing)) {
        m_block.blockEnd = number; // the loader reads on: a later "<LOGIC>" still counts
    }
}

void CheckedBlockReader::TakeLogic(std::string_view trimmed, int number)
{
    std::string line = UpperCase(trimmed);
    switch (ClassifyLogicLine(line)) {
    case LogicLine::Definitions:
        m_part = Part::Definitions;
        m_block.definitionsLine = number;
        m_block.definitionsAlone = line == DefinitionsOpening;
        m_block.definitionsTag = line.starts_with('<');
        break;
    case LogicLine::LogicEnd:
        m_block.logicEnd = number;
        break;
    case LogicLine::BlockEnd: // an unknown command to the loader
        m_block.blockEnd = number;
        m_part = Part::After;
        break;
    case LogicLine::Rule:
        TakeRule(line, number);
        break;
    case LogicLine::Empty:
    case LogicLine::Comment:
        break;
    default: // other words of the format are unknown commands, too
        TakeCommand(std::move(line), number);
    }
}

void CheckedBlockReader::TakeCommand(std::string line, int number)
{
    BlockCommand command;
    command.line = number;
    const LogicCommand parts = SplitCommand(line);
    command.kind = parts.kind;
    command.argument = parts.argument;
    command.text = std::move(line);
    if (command.kind == BlockCommand::Kind::Assume) {
        RuleFault fault = RuleFault::None;
        ReadTerms(command.argument, command.terms, fault, command.stray);
        if (fault == RuleFault::Brackets) {
            command.stray = command.argument;
        } else if (command.stray.empty() && Contains(command.argument, " ")) {
            command.stray = " ";
        }
        m_assumption = command.argument;
        m_assumedTerms = command.terms;
    } else if (command.kind == BlockCommand::Kind::Define) {
        const std::size_t at = command.argument.find('@');
        if (at != None) {
            command.var = command.argument.substr(0, at);
            command.title = Trim(std::string_view(command.argument).substr(at + 1));
        }
    }
    m_block.commands.push_back(std::move(command));
}

void CheckedBlockReader::TakeRule(const std::string& line, int number)
{
    BlockRule rule;
    rule.line = number;
    rule.text = line;
    RemoveBlanks(rule.text);
    rule.text.insert(rule.text.find('=') + 1, m_assumption);
    rule.conditions = m_assumedTerms;
    rule.assumed = m_assumedTerms.size();
    const std::size_t equals = line.find('=');
    const std::size_t second = line.find('=', equals + 1);
    const std::string_view source(line);
    ReadConclusion(source.substr(0, equals), rule);
    RuleFault fault = RuleFault::None;
    ReadTerms(source.substr(equals + 1, second == None ? None : second - equals - 1), rule.conditions, fault,
              rule.stray);
    if (fault != RuleFault::None) {
        Fault(rule, fault);
    }
    if (second != None) {
        Fault(rule, RuleFault::Equals);
    }
    m_block.rules.push_back(std::move(rule));
}

void CheckedBlockReader::TakeDefinitions(std::string_view line, int number)
{
    const std::string_view trimmed = Trim(line);
    const std::string upper = UpperCase(line);
    const std::string_view upperTrimmed = Trim(upper);
    const bool opens = upperTrimmed.starts_with(QuestionOpening) || upperTrimmed.starts_with(AdviceOpening);
    const bool ends = upperTrimmed == DefinitionsClosing || upperTrimmed == BlockClosing;
    if (!trimmed.empty() && trimmed.front() == '[' && m_block.bracketLine == 0) {
        m_block.bracketLine = number;
        m_registers = false;
    }
    if (upperTrimmed == DefinitionsClosing && m_block.definitionsEnd == 0) {
        m_block.definitionsEnd = number;
        m_searched = false;
    }
    std::size_t from = 0;
    if (m_open && !opens && !ends) {
        from = TakeText(line, 0);
    } else if (m_open) {
        m_block.entries.back().hasText = true; // the text from here on runs into the open entry
        m_open = false;
    }
    const bool comment = from == 0 && !upperTrimmed.empty() && upperTrimmed.front() == '*';
    if (from != None && !comment) {
        OpenEntries(line, upper, from, number);
        if (from == 0 && !opens && !m_open && m_block.targetInDefinitions == 0 && NamesTarget(upperTrimmed)) {
            m_block.targetInDefinitions = number;
        }
    }
    m_registers = m_registers && !Contains(upperTrimmed, DefinitionsClosing);
    if (upperTrimmed == BlockClosing) {
        m_block.blockEnd = number;
        m_part = Part::After;
    }
}

void CheckedBlockReader::OpenEntries(std::string_view line, const std::string& upper, std::size_t from,
                                     int number)
{
    const std::size_t start = upper.find_first_not_of(' ');
    while (from != None) {
        const std::size_t question = upper.find(QuestionOpening, from);
        const std::size_t advice = upper.find(AdviceOpening, from);
        const std::size_t at = std::min(question, advice);
        const std::size_t close = at == None ? None : upper.find('>', at);
        if (close == None) {
            return;
        }
        BlockEntry entry;
        entry.line = number;
        entry.question = question == at;
        const std::size_t idFrom = at + (entry.question ? QuestionOpening : AdviceOpening).size();
        entry.id = upper.substr(idFrom, close - idFrom);
        entry.atStart = at == start;
        entry.registered = entry.question && entry.atStart && m_registers;
        entry.searched = m_searched;
        m_block.entries.push_back(std::move(entry));
        m_open = true;
        m_length = 0;
        from = TakeText(line, close + 1);
    }
}

// Takes text of the open entry. Returns the position after its closing tag, or none if it stays open.
std::size_t CheckedBlockReader::TakeText(std::string_view line, std::size_t from)
{
    BlockEntry& entry = m_block.entries.back();
    const std::string_view closing = entry.question ? QuestionClosing : AdviceClosing;
    const std::size_t end = line.find(closing, from);
    std::string_view piece = line.substr(from, end == None ? None : end - from);
    entry.tooLong = entry.tooLong || m_length + piece.size() > MaxEntryText;
    entry.closedInLowerCase = entry.closedInLowerCase || (end == None && Contains(UpperCase(piece), closing));
    piece = Trim(piece);
    entry.hasText = entry.hasText || !piece.empty();
    m_length += piece.size() + (m_length == 0 || (end != None && piece.empty()) ? 0 : 2);
    entry.closed = end != None;
    m_open = !entry.closed;
    return end == None ? None : end + closing.size();
}

// In `A(X) AND B(Y)` the loader reads a variable "ANDB". If that name is unknown but "B" is known, "AND" is
// stray text.
void CheckedBlockReader::ResolveStrayWords()
{
    std::unordered_set<std::string> known;
    for (const BlockEntry& entry : m_block.entries) {
        if (entry.question) {
            known.insert(entry.id);
        }
    }
    for (const BlockCommand& command : m_block.commands) {
        known.insert(command.var);
    }
    for (const BlockRule& rule : m_block.rules) {
        known.insert(rule.conclusion.var);
    }
    for (BlockRule& rule : m_block.rules) {
        for (BlockTerm& term : rule.conditions) {
            const std::size_t last = term.words.find_last_of(" &+|:");
            if (last == None || known.count(term.var) != 0 || known.count(term.words.substr(last + 1)) == 0) {
                continue;
            }
            term.var = term.words.substr(last + 1);
            if (rule.fault == RuleFault::None) {
                rule.fault = RuleFault::Stray;
                rule.stray = Trim(std::string_view(term.words).substr(0, last + 1));
            }
        }
    }
}

CheckedBlock CheckedBlockReader::Finish()
{
    ResolveStrayWords();
    return std::move(m_block);
}

} // namespace ls
