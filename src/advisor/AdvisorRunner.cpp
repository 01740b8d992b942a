#include "advisor/AdvisorRunner.h"

#include "advisor/AdvisorDialog.h"
#include "advisor/AdvisorTables.h"
#include "base/CodePage.h"
#include "book/Book.h"
#include "render/text/ShowTopic.h"

#include <utility>

namespace ls {

namespace {

using Kind = AdvisorEvent::Kind;

AdvisorEvent MakeEvent(Kind kind, std::string name, std::string text = {})
{
    AdvisorEvent event;
    event.kind = kind;
    event.name = std::move(name);
    event.text = std::move(text);
    return event;
}

// Reports boxes as events.
class PlayerMessages : public Messages
{
public:
    PlayerMessages(const ProgramEnd& end, AdvisorPlayer& player) : Messages(end), m_player(player) {}

protected:
    Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string&) override
    {
        AdvisorEvent event = MakeEvent(Kind::Box, text);
        event.icon = icon;
        event.reply = buttons == Buttons::Ok ? Reply::Ok : m_player.reply(text, buttons);
        m_player.event(event);
        return event.reply;
    }

    std::optional<std::string> ShowInputBox(const std::string&, const std::string&,
                                            const std::string&) override
    {
        return std::nullopt; // the advisor never asks for a text
    }

private:
    AdvisorPlayer& m_player;
};

// Reports as events what the window would show, and keeps the current question.
class PlayerView : public AdvisorView
{
public:
    PlayerView(AdvisorPlayer& player, const AdvisorTables& tables) : m_player(player), m_tables(tables) {}

    void ShowQuestion(const Question& question) override
    {
        m_question = MakeEvent(Kind::Question, FromBook(question.var), FromBook(question.text));
        m_question.derived = question.derived;
        m_bookChoices.assign(question.choices.begin() + 1, question.choices.end());
        for (const std::string& choice : m_bookChoices) {
            m_question.choices.push_back(FromBook(choice));
        }
        m_player.event(m_question);
    }

    void ShowAdvice(const std::string& identifier, const std::string& text) override
    {
        m_player.event(MakeEvent(Kind::Advice, FromBook(identifier), FromBook(text)));
    }

    void ShowText(const std::string& text) override
    {
        m_player.event(MakeEvent(Kind::Text, {}, FromBook(text)));
    }

    void SetButtonCaption(const std::string& caption) override
    {
        m_player.event(MakeEvent(Kind::Button, caption));
    }

    void AnswerTaken() override
    {
        if (!m_player.trace) {
            return;
        }
        AdvisorEvent event = MakeEvent(Kind::Trace, {});
        for (const std::string& rule : Counted(m_tables.LogicRules, m_tables.RuleCount)) {
            event.rules.push_back(FromBook(rule));
        }
        for (const std::string& target : Counted(m_tables.Targets, m_tables.TargetCount)) {
            event.targets.push_back(FromBook(target));
        }
        m_player.event(event);
    }

    void Unload() override {}

    [[nodiscard]] const AdvisorEvent& Shown() const { return m_question; }

    // The choice with that text, as in the book; an empty text selects the empty item.
    [[nodiscard]] std::optional<std::string> Choose(const std::string& answer) const
    {
        if (answer.empty()) {
            return std::string();
        }
        for (std::size_t i = 0; i < m_bookChoices.size(); ++i) {
            if (m_question.choices[i] == answer) {
                return m_bookChoices[i];
            }
        }
        return std::nullopt;
    }

private:
    AdvisorPlayer& m_player;
    const AdvisorTables& m_tables;
    AdvisorEvent m_question;
    std::vector<std::string> m_bookChoices; ///< those of m_question, as book text
};

// Answers until the dialogue is over, or has no more or no valid answer.
void Play(AdvisorDialog& dialog, const PlayerView& view, AdvisorPlayer& player, const ProgramEnd& end)
{
    while (!dialog.Over() && !end.Ended()) {
        const AdvisorEvent& question = view.Shown();
        const std::optional<std::string> answer = player.answer(question);
        if (!answer) {
            player.event(MakeEvent(Kind::Waiting, question.name));
            return;
        }
        const std::optional<std::string> choice = view.Choose(*answer);
        if (!choice) {
            AdvisorEvent event = MakeEvent(Kind::InvalidAnswer, *answer);
            event.choices = question.choices;
            player.event(event);
            return;
        }
        player.event(MakeEvent(Kind::Answer, *answer));
        dialog.NextButton_Click(*choice);
    }
}

} // namespace

bool ShowForAdvisor(Book& book, const Seams& seams, const std::string& title)
{
    constexpr int anyWidth = 80; // any, since the lines are not used
    const std::optional<std::string> bookTitle = ToBook(title);
    book.LogicPos = 0;
    if (!bookTitle && !book.IsPlainText()) {
        // A name with characters that books cannot hold belongs to no topic.
        seams.messages.MsgBox("Topic [" + FromPath(title) + "] was not found.", Icon::Warning);
        return false;
    }
    std::string name = bookTitle.value_or(std::string());
    Count16 number = 0;
    ShownTopic shown;
    if (book.IsPlainText() || ShowTopic(book, seams, name, number, anyWidth, shown) != ShowResult::Shown) {
        return false;
    }
    book.CurrentTopicName = name;
    book.CurrentTopicNo = number;
    book.LogicPos = shown.logicPos;
    return shown.advisorButton;
}

void RunAdvisor(Book& book, AdvisorTables& tables, const Seams& seams, AdvisorPlayer& player, int run,
                const std::string& title)
{
    AdvisorEvent begin = MakeEvent(Kind::Run, title);
    begin.run = run;
    player.event(begin);
    PlayerMessages messages(seams.end, player);
    const Seams own = seams.With(messages);
    if (!ShowForAdvisor(book, own, title)) {
        player.event(MakeEvent(Kind::NoAdvisor, title));
        return;
    }
    PlayerView view(player, tables);
    AdvisorDialog dialog(book, tables, own, view);
    dialog.Form_Load();
    Play(dialog, view, player, seams.end);
    if (seams.end.Ended()) {
        player.event(MakeEvent(Kind::ProgramEnds, seams.end.Reason()));
    }
}

} // namespace ls
