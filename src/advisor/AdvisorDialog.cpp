#include "advisor/AdvisorDialog.h"

#include "advisor/AdvisorTables.h"
#include "advisor/AdvisorView.h"
#include "advisor/LogicLoader.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "book/BookWords.h"

#include <cassert>
#include <string_view>

namespace ls {

namespace {

BookFile& OpenFile(const Book& book)
{
    assert(book.File != nullptr);
    return *book.File;
}

// The items of the list: an empty one, "? - unsure" if offered, then the values between the commas.
std::vector<std::string> Choices(const CollectedValues& values, const std::string& unsure)
{
    std::vector<std::string> choices{std::string()};
    if (values.IsDerived) {
        choices.push_back(unsure);
    }
    std::string_view rest = values.Values;
    while (!rest.empty()) {
        const std::size_t comma = rest.find(',');
        choices.emplace_back(rest.substr(0, comma));
        rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
    }
    return choices;
}

} // namespace

AdvisorDialog::AdvisorDialog(const Book& book, AdvisorTables& tables, const Seams& seams, AdvisorView& view)
    : m_book(book), m_tables(tables), m_seams(seams), m_view(view),
      m_cursor(OpenFile(book)), m_context{book, tables, seams, m_cursor}, m_inference(tables, seams),
      m_definitions(m_context, m_inference)
{
    ClearRules(m_tables);
    m_cursor.Seek(book.LogicPos);
}

void AdvisorDialog::Form_Load()
{
    m_tables.UnsureAnswer = UnsureText;
    std::string advice;
    const bool loaded = LoadLogic(m_context, m_inference, m_book.CurrentTopicNo, false, advice);
    if (m_seams.end.Ended()) {
        return;
    }
    if (!loaded) {
        m_view.ShowText("Failure loading logic section for topic <<" + m_book.CurrentTopicName +
                        ">>; I can't proceed.");
        Close();
    } else if (!advice.empty()) {
        DispA(advice);
    } else {
        AskNext();
    }
}

void AdvisorDialog::NextButton_Click(const std::string& answer)
{
    if (m_seams.end.Ended()) {
        return;
    }
    if (m_over) {
        m_view.Unload();
        return;
    }
    if (answer.empty()) {
        m_seams.messages.MsgBox("Please select an answer before pressing NEXT", Icon::None);
        return;
    }
    const std::string advice =
        m_inference.RecordAnswer(m_tables.CurrentVar, answer, m_tables.CurrentVarTopic);
    if (Stopped()) {
        return;
    }
    m_view.AnswerTaken();
    if (advice.empty()) {
        AskNext();
    } else {
        DispA(advice);
    }
}

void AdvisorDialog::Resume(FilePos position)
{
    m_cursor.Seek(position);
    m_over = false;
}

void AdvisorDialog::Close()
{
    m_over = true;
    m_view.SetButtonCaption("Close");
}

// Whether the dialogue cannot go on, because the program has ended or a table is full.
bool AdvisorDialog::Stopped()
{
    if (m_seams.end.Ended()) {
        return true;
    }
    if (m_inference.Overflowed()) {
        Close();
        return true;
    }
    return false;
}

void AdvisorDialog::AskNext()
{
    Round round = Round::MadeGoal;
    // The loop ends: each round that does not stop it stores an answer or pushes a goal, and both tables hold
    // at most 32,767 elements. Rounds never remove answers, and they remove a goal only when an answer
    // settles it. So it ends even if a load fails in each round and adds rules again.
    while (round != Round::Stop) {
        m_tables.CurrentVar = m_inference.PickNextVariable();
        if (Stopped()) {
            return;
        }
        if (!m_tables.CurrentVar.empty()) {
            round = TryVariable();
            continue;
        }
        if (round == Round::Answered) {
            EndProgram(m_seams.end, fault::NoNextVariable);
            return;
        }
        Close();
        const int goal = m_tables.TargetCount;
        m_view.ShowText("I can't find a question to ask for target " +
                        (goal == 0 ? std::string() : m_tables.Targets(goal)) + ".");
        return;
    }
}

// Asks the current variable, or settles it without asking: a single value becomes the answer, and a variable
// with rules but without a question becomes a goal.
AdvisorDialog::Round AdvisorDialog::TryVariable()
{
    const std::string& var = m_tables.CurrentVar;
    std::string advice;
    m_tables.CurrentVarTopic = m_definitions.GotoTopicForVar(var, advice);
    if (Stopped()) {
        return Round::Stop;
    }
    if (!advice.empty()) {
        DispA(advice);
        return Round::Stop;
    }
    if (m_tables.CurrentVarTopic == 0) {
        Close();
        return Round::Stop;
    }
    const CollectedValues values = m_inference.CollectValues(var);
    if (values.Values.empty()) {
        EndProgram(m_seams.end, fault::NoValue);
        return Round::Stop;
    }
    if (values.Count < 2) {
        return AnswerForReader(values.Values.substr(0, values.Values.size() - 1), Round::Answered);
    }
    const std::string text = m_definitions.ReadTaggedText(std::string(QuestionOpening) + var + ">");
    if (!text.empty()) {
        DispQ(text, values);
        return Round::Stop;
    }
    if (values.IsDerived) {
        return AnswerForReader(m_tables.UnsureAnswer, Round::MadeGoal);
    }
    Close();
    m_view.ShowText("Can't find text for " + var);
    return Round::Stop;
}

AdvisorDialog::Round AdvisorDialog::AnswerForReader(const std::string& value, Round outcome)
{
    const std::string advice = m_inference.RecordAnswer(m_tables.CurrentVar, value, m_tables.CurrentVarTopic);
    if (Stopped()) {
        return Round::Stop;
    }
    if (!advice.empty()) {
        DispA(advice);
        return Round::Stop;
    }
    return outcome;
}

void AdvisorDialog::DispQ(const std::string& text, const CollectedValues& values)
{
    m_view.ShowQuestion(
        {m_tables.CurrentVar, text, Choices(values, m_tables.UnsureAnswer), values.IsDerived});
}

// Intended: the advice of the default goal "AV" is a bare value without a variable, so the topic's name is
// used as the variable. A variable of that name is rarely registered. If it is not, the user sees a message
// that it cannot be found, and the advice is searched from where the last read left the file. Books rely on
// this.
void AdvisorDialog::DispA(const std::string& advice)
{
    const std::size_t open = advice.find('(');
    const std::string var = open == std::string::npos ? m_book.CurrentTopicName : advice.substr(0, open);
    std::string ignored; // the advice on show stays
    m_definitions.GotoTopicForVar(var, ignored);
    if (m_seams.end.Ended()) {
        return;
    }
    m_view.ShowAdvice(advice, m_definitions.ReadTaggedText(std::string(AdviceOpening) + advice + ">"));
    Close();
}

} // namespace ls
