#include "PlayedDialogues.h"

#include "DialogueModel.h"
#include "advisor/AdvisorRunner.h"
#include "advisor/AdvisorTables.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"

namespace ls::test {

namespace {

std::string Joined(const Texts& texts, const char* before, const char* behind)
{
    std::string joined;
    for (const std::string& text : texts) {
        joined += before + text + behind;
    }
    return joined;
}

// An event in the form of the model's log.
std::string LogLine(const AdvisorEvent& event)
{
    using Kind = AdvisorEvent::Kind;
    switch (event.kind) {
    case Kind::NoAdvisor:
        return "no advisor";
    case Kind::Question:
        return "question " + event.name + (event.derived ? " derived" : "") +
               Joined(event.choices, " [", "]") + ": " + event.text;
    case Kind::Answer:
        return "answer " + event.name;
    case Kind::Waiting:
        return "waiting " + event.name;
    case Kind::Trace:
        return "trace" + Joined(event.rules, " ", "") + " |" + Joined(event.targets, " ", "");
    case Kind::Box:
        return "box " + std::string(IconWord(event.icon)) + "|" + event.name +
               (event.icon == Icon::Question ? "|" + std::string(ReplyWord(event.reply)) : "");
    case Kind::Text:
        return "text " + event.text;
    case Kind::Advice:
        return "advice " + event.name + ": " + event.text;
    case Kind::Button:
        return "button " + event.name;
    case Kind::ProgramEnds:
        return "ends " + event.name;
    case Kind::Run:
    case Kind::InvalidAnswer:
        break;
    }
    return "unexpected " + event.name;
}

} // namespace

Texts Played(Book& book, const Seams& seams, const std::vector<Dialogue>& dialogues)
{
    Texts log;
    AdvisorTables tables;
    for (const Dialogue& dialogue : dialogues) {
        std::size_t given = 0;
        AdvisorPlayer player;
        player.trace = true;
        player.event = [&log](const AdvisorEvent& event) {
            if (event.kind != AdvisorEvent::Kind::Run) {
                log.push_back(LogLine(event));
            }
        };
        player.reply = [&dialogue](const std::string&, Buttons) {
            return dialogue.reuse ? Reply::Yes : Reply::No;
        };
        player.answer = [&](const AdvisorEvent& question) -> std::optional<std::string> {
            if (given == dialogue.picks.size()) {
                return std::nullopt;
            }
            const std::size_t pick = dialogue.picks[given++];
            return pick == 0 ? "" : question.choices[pick % question.choices.size()];
        };
        const std::string& name = book.TopicNames(dialogue.topic);
        RunAdvisor(book, tables, seams, player, 1, name);
        if (seams.end.Ended()) {
            break;
        }
    }
    return log;
}

Texts Modelled(const Book& book, const std::string& bytes, const std::vector<Dialogue>& dialogues,
               bool& gaveUp)
{
    std::vector<DialogueModel::Topic> topics;
    for (int i = 1; i <= book.TopicCount; ++i) {
        topics.push_back({book.TopicNames(i), static_cast<std::size_t>(book.TopicPos(i) - 1)});
    }
    DialogueModel model(bytes, topics);
    for (const Dialogue& dialogue : dialogues) {
        if (!model.Ended() && !model.GaveUp()) {
            model.Run(dialogue.topic, dialogue.picks, dialogue.reuse);
        }
    }
    gaveUp = model.GaveUp();
    return model.log;
}

} // namespace ls::test
