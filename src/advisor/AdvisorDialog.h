#pragma once

#include "advisor/AdvisorContext.h"
#include "advisor/Definitions.h"
#include "advisor/Inference.h"
#include "base/LineCursor.h"

#include <string>

namespace ls {

class AdvisorView;
struct AdvisorTables;
struct Book;
struct Question;

/// A question-and-answer dialogue for the topic on show.
///
/// It is made when the window opens and lives as long as the window. Its constructor clears the rule table.
/// Once a fault of the rules has ended the program (`seams.end`), it shows nothing and ignores every event.
class AdvisorDialog
{
public:
    /// The book's file must be open, and its current topic must have a logic block (`LogicPos`). All
    /// referents must outlive the dialogue.
    AdvisorDialog(const Book& book, AdvisorTables& tables, const Seams& seams, AdvisorView& view);
    AdvisorDialog(const AdvisorDialog&) = delete;
    AdvisorDialog& operator=(const AdvisorDialog&) = delete;

    /// Loads the topic's logic and shows the first question, the advice, or the reason why there is neither.
    void Form_Load();

    /// Takes the selected choice, as book text. If the dialogue is over, closes the window.
    void NextButton_Click(const std::string& answer);

    /// Whether the dialogue is over and its button reads "Close".
    [[nodiscard]] bool Over() const { return m_over; }

    /// Where the last read left the file. This and a copy of the tables are the whole state of the dialogue.
    [[nodiscard]] FilePos Position() const { return m_cursor.Position(); }

    /// Goes back to a state in which a question was on show. The caller has restored the tables of that
    /// state; `position` belongs to it. Call only while the program has not ended.
    void Resume(FilePos position);

private:
    /// The result of a round of AskNext.
    enum class Round
    {
        Stop,     ///< a question, advice or another text is on show, or a fault ended the dialogue
        Answered, ///< the variable's only value was asserted
        MadeGoal, ///< the variable is to be derived
    };

    void AskNext();
    Round TryVariable();
    Round AnswerForReader(const std::string& value, Round outcome);
    bool Stopped();
    void DispQ(const std::string& text, const CollectedValues& values);
    void DispA(const std::string& advice);
    void Close();

    const Book& m_book;
    AdvisorTables& m_tables;
    Seams m_seams;
    AdvisorView& m_view;
    LineCursor m_cursor;
    AdvisorContext m_context;
    Inference m_inference;
    Definitions m_definitions;
    bool m_over = false;
};

} // namespace ls
