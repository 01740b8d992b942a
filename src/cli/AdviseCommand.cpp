#include "advisor/AdvisorRunner.h"
#include "advisor/AdvisorTables.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "check/AdvisorCoverage.h"
#include "cli/AdvisorOutput.h"
#include "cli/AnswerLists.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/ExploreOutput.h"
#include "cli/JsonWriter.h"

#include <algorithm>
#include <istream>
#include <limits>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace ls {

namespace {

using Kind = AdvisorEvent::Kind;

constexpr std::string_view Answers = "--answers";
constexpr std::string_view AnswersJson = "--answers-json";
constexpr std::string_view Reuse = "--reuse";
constexpr std::string_view Runs = "--runs";
constexpr std::string_view Trace = "--trace";
constexpr std::string_view Explore = "--explore";
constexpr std::string_view Limit = "--limit";
constexpr int UsualLimit = 10000;

// What to play: the dialogues, and the answers given in advance.
struct Plan
{
    std::vector<std::string> titles;
    AnswerLists answers;
    std::vector<Reply> reuse;
    int runs = 0;
    bool interactive = false;
};

// Reads a whole file. `WatchedFiles` remembers an error, and the verdict reports it.
bool ReadFile(CommandContext& context, const std::string& path, std::string& text)
{
    std::unique_ptr<BookFile> file;
    FilePos size = 0;
    if (!context.TheSeams().files.OpenForReading(path, Sharing::Shared, file).Ok() ||
        !file->Size(size).Ok()) {
        return false;
    }
    text.resize(static_cast<std::size_t>(size));
    std::size_t got = 0;
    if (!file->ReadAt(1, text.data(), text.size(), got).Ok()) {
        return false;
    }
    text.resize(got);
    return true;
}

Status ReadAnswers(CommandContext& context, Plan& plan)
{
    const Arguments& arguments = context.Args();
    if (arguments.Has(Answers) && arguments.Has(AnswersJson)) {
        return context.WrongUsage("--answers and --answers-json exclude each other");
    }
    if (arguments.Has(Answers)) {
        plan.answers = SplitAnswers(arguments.Values(Answers).front());
    }
    if (arguments.Has(AnswersJson)) {
        const std::string path = arguments.Values(AnswersJson).front();
        std::string text;
        if (!ReadFile(context, path, text)) {
            return Status::FileFault;
        }
        std::optional<AnswerLists> lists = ReadAnswersJson(text);
        if (!lists) {
            return context.WrongUsage("\"" + FromPath(path) + "\" holds no list of lists of texts");
        }
        plan.answers = std::move(*lists);
    }
    return Status::Done;
}

Status ReadReuse(CommandContext& context, Plan& plan)
{
    if (!context.Args().Has(Reuse)) {
        return Status::Done;
    }
    const AnswerLists words = SplitAnswers(context.Args().Values(Reuse).front());
    for (const std::string& word : words.front()) {
        if (word != "yes" && word != "no") {
            return context.WrongUsage("--reuse takes yes or no, parted by commas");
        }
        plan.reuse.push_back(word == "yes" ? Reply::Yes : Reply::No);
    }
    return Status::Done;
}

Status MakePlan(CommandContext& context, Plan& plan)
{
    const Arguments& arguments = context.Args();
    plan.titles.assign(arguments.Operands().begin() + 1, arguments.Operands().end());
    if (std::any_of(plan.titles.begin(), plan.titles.end(), [](const auto& t) { return t.empty(); })) {
        return context.WrongUsage("TITLE is empty");
    }
    if (const Status status = ReadAnswers(context, plan); status != Status::Done) {
        return status;
    }
    if (const Status status = ReadReuse(context, plan); status != Status::Done) {
        return status;
    }
    const bool scripted = arguments.Has(Answers) || arguments.Has(AnswersJson);
    plan.interactive = !scripted && context.Env().inIsTerminal;
    plan.runs = arguments.Number(Runs, static_cast<int>(std::max(plan.titles.size(), plan.answers.size())));
    return Status::Done;
}

// Plays the dialogues of a plan and writes their events.
class Session
{
public:
    Session(CommandContext& context, Plan plan, JsonWriter* json)
        : m_context(context), m_plan(std::move(plan)), m_json(json)
    {
        m_player.trace = context.Args().Has(Trace);
        m_player.event = [this](const AdvisorEvent& event) { Take(event); };
        m_player.answer = [this](const AdvisorEvent& question) { return Answer(question); };
        m_player.reply = [this](const std::string& text, Buttons buttons) {
            return AnswerBox(text, buttons);
        };
    }

    Status Run()
    {
        const Seams& seams = m_context.TheSeams();
        for (int run = 1; run <= m_plan.runs && !seams.end.Ended(); ++run) {
            const auto number = static_cast<std::size_t>(run);
            m_given = 0;
            m_list = number <= m_plan.answers.size() ? &m_plan.answers[number - 1] : nullptr;
            RunAdvisor(m_context.TheBook(), m_tables, seams, m_player, run,
                       m_plan.titles[std::min(number, m_plan.titles.size()) - 1]);
        }
        return seams.end.Ended() ? Status::Done : m_status; // the end of the program has a status of its own
    }

private:
    void Take(const AdvisorEvent& event)
    {
        if (event.kind == Kind::Box && !(m_plan.interactive && event.icon == Icon::Question)) {
            m_context.TheSeams().messages.MsgBox(event.name, event.icon);
        } else if (event.kind == Kind::NoAdvisor && m_status == Status::Done) {
            m_status = Status::Fault;
        } else if (event.kind == Kind::InvalidAnswer) {
            m_status = Status::Usage;
        }
        if (m_json != nullptr) {
            WriteEvent(*m_json, event);
            PrintPrompt(event);
        } else if (event.kind != Kind::Answer || !m_plan.interactive) { // a typed answer is on screen already
            PrintEvent(m_context, event);
        }
    }

    // The user must see the question even where the output is JSON for a program.
    void PrintPrompt(const AdvisorEvent& event)
    {
        if (!m_plan.interactive || event.kind != Kind::Question) {
            return;
        }
        std::ostream& err = m_context.Env().err;
        err << event.text << '\n';
        for (std::size_t i = 0; i < event.choices.size(); ++i) {
            err << "  " << i + 1 << ") " << event.choices[i] << '\n';
        }
    }

    std::optional<std::string> Answer(const AdvisorEvent& question)
    {
        if (m_plan.interactive) {
            return AskAtTerminal(question.choices);
        }
        if (m_list == nullptr || m_given == m_list->size()) {
            return std::nullopt;
        }
        return MeantAnswer((*m_list)[m_given++], question.choices);
    }

    std::optional<std::string> ReadLine(std::string_view prompt)
    {
        std::ostream& out = m_json != nullptr ? m_context.Env().err : m_context.Env().out;
        out << prompt << std::flush;
        std::string line;
        if (!std::getline(m_context.Env().in, line)) {
            out << '\n';
            return std::nullopt;
        }
        return std::string(Trim(line));
    }

    // Asks until the line is a choice, its number, or empty; a typing error must not end the dialogue.
    std::optional<std::string> AskAtTerminal(const std::vector<std::string>& choices)
    {
        for (;;) {
            const std::optional<std::string> line = ReadLine("Your Answer: ");
            if (!line || line->empty()) {
                return line;
            }
            for (const std::string& meant : {*line, UpperCase(*line), "#" + *line}) {
                const std::string answer = MeantAnswer(meant, choices);
                if (std::find(choices.begin(), choices.end(), answer) != choices.end()) {
                    return answer;
                }
            }
            m_context.Env().err << "Give one of the choices, or its number.\n";
        }
    }

    Reply AnswerBox(const std::string& text, Buttons buttons)
    {
        if (m_asked < m_plan.reuse.size()) {
            return m_plan.reuse[m_asked++];
        }
        if (!m_plan.interactive) {
            return SafeReply(buttons);
        }
        const std::optional<std::string> line = ReadLine(text + " [yes/no] ");
        return line && BeginsUpper(*line, "Y") ? Reply::Yes : Reply::No;
    }

    CommandContext& m_context;
    Plan m_plan;
    JsonWriter* m_json;
    AdvisorPlayer m_player;
    AdvisorTables m_tables;
    const std::vector<std::string>* m_list = nullptr;
    std::size_t m_given = 0;
    std::size_t m_asked = 0;
    Status m_status = Status::Done;
};

// Shows how many states were explored.
class StatesProgress : public Progress
{
public:
    explicit StatesProgress(ProgressLine& line) : m_line(line) {}

    bool Step(std::int64_t done, std::int64_t /*total*/) override
    {
        constexpr std::int64_t Between = 100;
        if (done % Between == 0) {
            m_line.Show("Exploring: " + std::to_string(done) + " states");
        }
        return true;
    }

private:
    ProgressLine& m_line;
};

SearchLimits ExploreLimits(const CommandContext& context)
{
    SearchLimits limits;
    limits.states = context.Args().Number(Limit, UsualLimit);
    // no limit: the user sees the progress
    limits.ruleBytes = std::numeric_limits<std::size_t>::max();
    limits.heldBytes = std::size_t{1024} * 1024 * 1024;
    limits.everyWay = true;
    return limits;
}

// The one title to explore; nothing after wrong usage.
std::optional<std::string> ExploredTitle(CommandContext& context)
{
    const Arguments& arguments = context.Args();
    for (const std::string_view option : {Answers, AnswersJson, Reuse, Runs, Trace}) {
        if (arguments.Has(option)) {
            context.WrongUsage("--explore and " + std::string(option) + " exclude each other");
            return std::nullopt;
        }
    }
    if (arguments.Operands().size() > 2) {
        context.WrongUsage("--explore takes one TITLE");
        return std::nullopt;
    }
    if (arguments.Operands()[1].empty()) {
        context.WrongUsage("TITLE is empty");
        return std::nullopt;
    }
    return arguments.Operands()[1];
}

Status RunExplore(CommandContext& context)
{
    const std::optional<std::string> title = ExploredTitle(context);
    if (!title) {
        return Status::Usage;
    }
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    const std::size_t told = context.MessageCount();
    if (!ShowForAdvisor(context.TheBook(), context.TheSeams(), *title)) {
        if (context.MessageCount() == told) {
            context.Fail("The topic has no advisor.");
        }
        return context.GiveUp();
    }
    StatesProgress progress(context.TheProgress());
    const AdvisorCoverage coverage =
        ExploreAdvisor(context.TheBook(), context.TheSeams(), ExploreLimits(context), &progress);
    context.TheProgress().Erase();
    WriteCoverage(context, *title, coverage);
    const auto isFault = [](const DialogueEnd& end) {
        return end.kind == DialogueEnd::Kind::ProgramEnds || end.kind == DialogueEnd::Kind::LoadFailed;
    };
    const std::vector<DialogueEnd>& ends = coverage.map.ends;
    return std::any_of(ends.begin(), ends.end(), isFault) ? Status::Fault : Status::Done;
}

Status Run(CommandContext& context)
{
    if (context.Args().Has(Explore)) {
        return RunExplore(context);
    }
    if (context.Args().Has(Limit)) {
        return context.WrongUsage("--limit goes with --explore");
    }
    Plan plan;
    if (const Status status = MakePlan(context, plan); status != Status::Done) {
        // `GiveUp` returns Fault, and `Verdict` turns that into FileFault again
        return status == Status::FileFault ? context.GiveUp() : status;
    }
    if (context.OpenTheBook() != Opening::Done) {
        return context.GiveUp();
    }
    if (!context.Json()) {
        return Session(context, std::move(plan), nullptr).Run();
    }
    JsonWriter json(context.Env().out);
    json.BeginArray();
    const Status status = Session(context, std::move(plan), &json).Run();
    json.EndArray();
    return status;
}

} // namespace

CommandSpec AdviseCommand()
{
    return {
        "advise",
        "BOOK TITLE [TITLE...]",
        2,
        1000,
        "Runs a topic's advisor: at a terminal with you, else with the answers given",
        "One dialogue runs for each TITLE; the last one serves further runs. When the answers run out the\n"
        "dialogue is closed. An answer is a choice, \"?\" for \"? - unsure\", \"#2\" for the second choice, "
        "or\nempty for Next without an answer; \"-\" alone stands for no answers.\n\n"
        "With --explore every dialogue is held that begins without earlier answers: each advice is told\n"
        "with the fewest answers that lead to it, each advice that none reaches, each end without advice,\n"
        "and each fault that would end the program. The status is 1 when there is such a fault. In JSON\n"
        "these are \"advice\", \"never_reached\", \"dead_ends\" and \"program_ends\".",
        {{Answers, "LISTS", "answers parted by \",\", the runs' lists by \";\""},
         {AnswersJson, "FILE", "the answers from a file: a list of lists"},
         {Reuse, "REPLIES", "yes or no, parted by \",\": whether earlier answers are used again"},
         {Runs, "N", "so many runs", 1, 1000},
         {Trace, "", "show the rules and goals after each answer"},
         {Explore, "", "hold every dialogue, and tell what they come to"},
         {Limit, "N", "look at so many states of the dialogue; else 10000", 1, 10000000},
         JsonOption,
         PlainOption},
        Run};
}

} // namespace ls
