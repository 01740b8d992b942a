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

/// One question-and-answer dialogue for the topic on show.
///
/// It is made when the window opens (the rule table is cleared then) and lives as long as the window does.
/// When a fault of the rules has ended the program (`seams.end`), nothing is shown any more, and every event
/// returns at once.
class AdvisorDialog
{
public:
    /// The book's file must be open, and the book's current topic have a logic block (`LogicPos`). All
    /// referents outlive the dialogue.
    AdvisorDialog(const Book& book, AdvisorTables& tables, const Seams& seams, AdvisorView& view);
    AdvisorDialog(const AdvisorDialog&) = delete;
    AdvisorDialog& operator=(const AdvisorDialog&) = delete;

    /// Loads the topic's logic and shows the first question, the advice, or why there is neither.
    void Form_Load();

    /// Takes the selected choice, as book text, or closes the window when the dialogue is over.
    void NextButton_Click(const std::string& answer);

    /// Whether the dialogue is over and its button reads "Close".
    [[nodiscard]] bool Over() const { return m_over; }

    /// Where the dialogue's last read left the file. With a copy of the tables that is all of its state.
    [[nodiscard]] FilePos Position() const { return m_cursor.Position(); }

    /// Goes on from a state in which a question was on show: the tables have been put back to what they were
    /// then, and this is the position of that moment. To be called before the program has ended only.
    void Resume(FilePos position);

private:
    /// What a round of AskNext came to.
    enum class Round
    {
        Stop,     ///< a question, advice or a text is on show, or a fault ended the dialogue
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
