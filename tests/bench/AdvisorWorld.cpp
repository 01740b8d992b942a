#include "bench/AdvisorWorld.h"

#include "advisor/AdvisorDialog.h"
#include "advisor/AdvisorTables.h"
#include "advisor/AdvisorView.h"
#include "advisor/LogicLoader.h"
#include "bench/Measure.h"
#include "book/BookLoader.h"
#include "check/CheckBook.h"
#include "render/text/ShowTopic.h"

namespace ls::bench {

namespace {

// Records what a window would show.
class NotingView : public AdvisorView
{
public:
    void ShowQuestion(const Question& question) override { var = question.var; }
    void ShowAdvice(const std::string& identifier, const std::string& /*text*/) override
    {
        advice = identifier;
    }
    void ShowText(const std::string& text) override { Require(false, text.c_str()); }
    void SetButtonCaption(const std::string& /*caption*/) override {}
    void Unload() override {}

    std::string var;
    std::string advice;
};

} // namespace

AdvisorWorld::AdvisorWorld(const AdvisorBase& base, const std::string& folder) : m_base(base)
{
    m_book.BookPath = WriteAdvisorBook(base, folder);
    Require(OpenBook(m_book, m_world.Get()) && ScanBook(m_book, m_world.Get()), "the book is read");
    std::string name = "Advice";
    Count16 number = 0;
    ShownTopic shown;
    Require(ShowTopic(m_book, m_world.Get(), name, number, 80, shown) == ShowResult::Shown &&
                shown.advisorButton,
            "the topic has an advisor");
    m_book.CurrentTopicName = name;
    m_book.CurrentTopicNo = number;
    m_book.LogicPos = shown.logicPos;
}

double AdvisorWorld::Load()
{
    AdvisorTables tables;
    Inference inference(tables, m_world.Get());
    const double time = TimeOf([&] {
        LineCursor cursor(*m_book.File);
        cursor.Seek(m_book.LogicPos);
        AdvisorContext context{m_book, tables, m_world.Get(), cursor};
        std::string advice;
        Require(LoadLogic(context, inference, m_book.CurrentTopicNo, false, advice), "the logic loads");
    });
    Require(tables.RuleCount == static_cast<int>(m_base.rules.size()), "all rules are loaded");
    return time;
}

double AdvisorWorld::Question()
{
    AdvisorTables tables;
    NotingView view;
    AdvisorDialog dialog(m_book, tables, m_world.Get(), view);
    dialog.Form_Load();
    m_questions = 0;
    const double time = TimeOf([&] {
        for (; !dialog.Over(); ++m_questions) {
            dialog.NextButton_Click(m_base.AnswerTo(view.var));
        }
    });
    Require(view.advice == "ADVICE(" + m_base.advice + ")", "the reader gets the advice that agrees");
    m_answers.clear();
    for (const Answer& answer : Counted(tables.Answers, tables.AnswerCount)) {
        if (!answer.Derived) {
            m_answers.push_back({answer.Var, answer.Value});
        }
    }
    return time / m_questions;
}

void AdvisorWorld::Check()
{
    FileError error;
    (void)CheckBook(m_book, m_world.Get(), nullptr, error);
    Require(error.Ok(), "the book is checked to its end");
}

} // namespace ls::bench
