#include "advisor/LogicLoader.h"

#include "advisor/AdvisorTables.h"
#include "advisor/Inference.h"
#include "advisor/LogicLine.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookWords.h"
#include "book/TopicEnd.h"

#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace ls {

namespace {

// Loads one topic's logic.
class Loader
{
public:
    Loader(AdvisorContext& context, Inference& inference, Count16 topic, bool additional)
        : m_book(context.book), m_tables(context.tables), m_seams(context.seams), m_cursor(context.cursor),
          m_inference(inference), m_topic(topic), m_additional(additional)
    {
    }

    bool Run(std::string& firstAdvice)
    {
        if (m_seams.end.Ended()) {
            return false;
        }
        if (!m_additional) {
            StartOver();
        }
        return FindLogicSection() && ReadLogicSection() && ReadDefinitions() && NoteLoaded() &&
               ReplayAnswers(firstAdvice);
    }

private:
    void StartOver();
    bool FindLogicSection();
    bool ReadLogicSection();
    bool TakeLine(LogicLine kind, std::string line);
    bool TakeCommand(const std::string& line);
    bool TakeDefine(const std::string& line, std::string_view argument);
    bool TakeRule(std::string line);
    bool ReadDefinitions();
    bool TakeQuestion(std::string_view line);
    bool NoteLoaded();
    bool ReplayAnswers(std::string& firstAdvice);

    int TopicNumber(const std::string& title);
    bool AddVariable(std::string name, int topic);
    bool Fail(const std::string& message);
    bool ReadFailed(const FileError& error);
    bool OverflowFails();

    const Book& m_book;
    AdvisorTables& m_tables;
    const Seams& m_seams;
    LineCursor& m_cursor;
    Inference& m_inference;
    Count16 m_topic;
    bool m_additional;

    std::string m_assumption;
    std::size_t m_ruleBytes = 0;
    std::unordered_map<std::string, int> m_topicNumbers; ///< by title in upper case; filled when needed
};

bool Loader::Fail(const std::string& message)
{
    m_seams.messages.MsgBox(message, Icon::Critical);
    return false;
}

bool Loader::ReadFailed(const FileError& error)
{
    return Fail(std::string(AppTitle) + ": " + std::to_string(error.number) + "Error reading file <<" +
                FromPath(m_book.BookPath) + ">>" + DueTo(error, ErrorForm::Unnamed));
}

bool Loader::OverflowFails()
{
    ShowOverflow(m_seams.messages);
    return false;
}

void Loader::StartOver()
{
    m_tables.CandidateCount = 0;
    m_tables.TargetCount = 0;
    m_tables.VarTopicCount = 0;
    m_tables.LogicTopicCount = 0;
    m_tables.FirstTopic = m_topic;
    if (m_tables.AnswersOrder != m_book.TopicOrder) {
        ForgetAnswers(m_tables);
        m_tables.AnswersOrder = m_book.TopicOrder;
    }
    if (m_tables.AnswerCount > 0 &&
        m_seams.messages.MsgBox("You have already answered some questions.  In case your answers are "
                                "relevant to this topic, do you wish me to re-use those answers?",
                                Icon::Question, Buttons::YesNo) == Reply::No) {
        ForgetAnswers(m_tables);
    }
}

bool Loader::FindLogicSection()
{
    // The cursor is at the topic's own "[Title]" line, which must not end the search.
    bool ownHeader = m_additional;
    std::string line;
    for (;;) {
        const FileError error = m_cursor.ReadLine(line);
        if (!error.Ok()) {
            return ReadFailed(error);
        }
        if (EqualsUpper(Trim(line), LogicOpening)) {
            return true;
        }
        if ((StartsTopic(line) && !ownHeader) || m_cursor.AtEnd()) {
            return Fail("Logic section missing for current topic");
        }
        ownHeader = false;
    }
}

bool Loader::ReadLogicSection()
{
    for (const std::string& rule : Counted(m_tables.LogicRules, m_tables.RuleCount)) {
        m_ruleBytes += rule.size();
    }
    std::string line;
    while (!m_cursor.AtEnd()) {
        const FileError error = m_cursor.ReadLine(line);
        if (!error.Ok()) {
            return ReadFailed(error);
        }
        if (StartsTopic(line)) {
            break;
        }
        line = UpperCase(Trim(line));
        const LogicLine kind = ClassifyLogicLine(line);
        if (kind == LogicLine::Definitions) {
            if (!m_additional) {
                m_tables.DefinitionsPos = m_cursor.Position();
            }
            return true;
        }
        if (!TakeLine(kind, std::move(line))) {
            return false;
        }
    }
    return Fail("Can't find <DEFINITIONS> section for the current topic");
}

bool Loader::TakeLine(LogicLine kind, std::string line)
{
    switch (kind) {
    case LogicLine::Empty:
    case LogicLine::Comment:
    case LogicLine::LogicEnd:
        return true;
    case LogicLine::Rule:
        return TakeRule(std::move(line));
    // A command. Another word of the book format fails here as an unknown command.
    default:
        return TakeCommand(line);
    }
}

bool Loader::TakeRule(std::string line)
{
    RemoveBlanks(line);
    line.insert(line.find('=') + 1, m_assumption);
    m_ruleBytes += line.size();
    if (m_ruleBytes > MaxRuleBytes) {
        return Fail(MakeFileError(error::OutOfMemory).description);
    }
    return Append(m_tables.LogicRules, m_tables.RuleCount, std::move(line), RuleGrowthStep) ||
           OverflowFails();
}

bool Loader::TakeCommand(const std::string& line)
{
    const LogicCommand command = SplitCommand(line);
    switch (command.kind) {
    case LogicCommand::Kind::Assume:
        m_assumption = command.argument;
        return true;
    case LogicCommand::Kind::Target:
        if (!m_additional) {
            m_tables.TargetCount = 0;
            return Append(m_tables.Targets, m_tables.TargetCount, std::string(command.argument),
                          TargetGrowthStep);
        }
        return true;
    case LogicCommand::Kind::Define:
        return TakeDefine(line, command.argument);
    case LogicCommand::Kind::Unknown:
        break;
    }
    return Fail("Invalid command in <LOGIC> section for the current topic");
}

bool Loader::TakeDefine(const std::string& line, std::string_view argument)
{
    if (m_book.TopicCount == 0) {
        return Fail("No topics are defined; can't load logic.");
    }
    const std::size_t at = argument.find('@');
    if (at == std::string_view::npos || at + 1 == argument.size()) {
        return Fail("Invalid command <<" + FromBook(line) + ">>; can't load logic.");
    }
    const int topic = TopicNumber(std::string(Trim(argument.substr(at + 1))));
    return topic == 0 || AddVariable(std::string(argument.substr(0, at)), topic);
}

// The first topic with that title (upper case), or 0. The upper-case titles are made once for all DEFINE
// lines.
int Loader::TopicNumber(const std::string& title)
{
    if (m_topicNumbers.empty()) {
        for (int i = 1; i <= m_book.TopicCount; ++i) {
            const std::string& name = m_book.TopicNames(i);
            m_topicNumbers.emplace(UpperCase(WithoutBrackets(name)), i);
        }
    }
    const auto found = m_topicNumbers.find(title);
    return found == m_topicNumbers.end() ? 0 : found->second;
}

bool Loader::AddVariable(std::string name, int topic)
{
    return Append(m_tables.VarTopics, m_tables.VarTopicCount, VarTopic{std::move(name), topic},
                  AdvisorGrowthStep) ||
           OverflowFails();
}

bool Loader::ReadDefinitions()
{
    if (m_tables.DefinitionsPos == 0) {
        return Fail("Can't find <DEFINITIONS> section for the current topic");
    }
    std::string line;
    while (!m_cursor.AtEnd()) {
        const FileError error = m_cursor.ReadLine(line);
        if (!error.Ok()) {
            return ReadFailed(error);
        }
        const std::string_view trimmed = Trim(line);
        if (trimmed.empty()) {
            continue;
        }
        if (trimmed.front() == '[' || Contains(UpperCase(trimmed), DefinitionsClosing)) {
            break;
        }
        if (!TakeQuestion(trimmed)) {
            return false;
        }
    }
    return true;
}

bool Loader::TakeQuestion(std::string_view line)
{
    const std::size_t close = line.find('>');
    if (!BeginsUpper(line, QuestionOpening) || close == std::string_view::npos) {
        return true;
    }
    const std::size_t from = QuestionOpening.size();
    return AddVariable(UpperCase(line.substr(from, close - from)), m_topic);
}

bool Loader::NoteLoaded()
{
    // Indexed here, so that the first answer is not slower.
    m_tables.Index.Follow(m_tables.LogicRules, m_tables.RuleCount);
    if (m_tables.TargetCount == 0 &&
        !Append(m_tables.Targets, m_tables.TargetCount, std::string(DefaultGoal), TargetGrowthStep)) {
        return OverflowFails();
    }
    return Append(m_tables.LogicTopics, m_tables.LogicTopicCount, m_topic, AdvisorGrowthStep) ||
           OverflowFails();
}

bool Loader::ReplayAnswers(std::string& firstAdvice)
{
    if (m_tables.AnswerCount == 0) {
        return true;
    }
    std::set<std::pair<std::string_view, int>> registered;
    for (const VarTopic& entry : Counted(m_tables.VarTopics, m_tables.VarTopicCount)) {
        registered.emplace(entry.Name, entry.Topic);
    }
    // Conclusions that the loop appends to the answers are asserted already, so it stops before them.
    const int earlier = m_tables.AnswerCount;
    for (int i = 1; i <= earlier; ++i) {
        const Answer answer = m_tables.Answers(i);
        if (answer.Topic != m_topic && registered.count({answer.Var, answer.Topic}) == 0) {
            continue;
        }
        const std::string advice = m_inference.AssertFact(answer.Var, answer.Topic, UpperCase(answer.Value));
        if (firstAdvice.empty()) {
            firstAdvice = advice;
        }
    }
    return !m_inference.Overflowed();
}

} // namespace

bool LoadLogic(AdvisorContext& context, Inference& inference, Count16 topic, bool additionalTopic,
               std::string& firstAdvice)
{
    return Loader(context, inference, topic, additionalTopic).Run(firstAdvice);
}

} // namespace ls
