#pragma once

#include "advisor/AdvisorContext.h"
#include "advisor/AdvisorDialog.h"
#include "advisor/AdvisorTables.h"
#include "advisor/AdvisorView.h"
#include "advisor/Definitions.h"
#include "advisor/Inference.h"
#include "advisor/LogicLoader.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "render/text/ShowTopic.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ls::test {

/// Records what the dialogue shows, one line for each event.
class RecordingView : public AdvisorView
{
public:
    void ShowQuestion(const Question& question) override
    {
        std::string line = "question " + question.var + (question.derived ? " derived" : "");
        for (const std::string& choice : question.choices) {
            line += " [" + choice + "]";
        }
        log.push_back(line + ": " + question.text);
    }
    void ShowAdvice(const std::string& identifier, const std::string& text) override
    {
        log.push_back("advice " + identifier + ": " + text);
    }
    void ShowText(const std::string& text) override { log.push_back("text " + text); }
    void SetButtonCaption(const std::string& caption) override { log.push_back("button " + caption); }
    void Unload() override { log.push_back("unload"); }

    std::vector<std::string> Take() { return std::exchange(log, {}); }

    std::vector<std::string> log;
};

/// An open book in memory, with all that the advisor needs.
class AdvisorWorld
{
public:
    /// Opens a book of these lines, after a header line.
    void Open(const std::string& body)
    {
        seams.files[path] = "LODESTAR BOOK V5.3\r\n" + body;
        book.BookPath = path;
        ASSERT_TRUE(OpenBook(book, seams.Get()));
        ASSERT_TRUE(ScanBook(book, seams.Get()));
    }

    /// Opens a book with one topic, "[Topic]", that has this logic section and these definitions.
    void OpenTopic(std::initializer_list<const char*> logic, std::initializer_list<const char*> definitions)
    {
        Open("[Topic]\r\n<IXML>\r\n<LOGIC>\r\n" + CrLf(logic) + "<DEFINITIONS>\r\n" + CrLf(definitions) +
             "</DEFINITIONS>\r\n</IXML>\r\n");
        Show("Topic");
    }

    /// Makes a topic the one on show, as Go does.
    void Show(const std::string& title)
    {
        book.CurrentTopicName = title;
        book.CurrentTopicNo = 0;
        ShownTopic shown;
        ASSERT_EQ(ShowTopic(book, seams.Get(), book.CurrentTopicName, book.CurrentTopicNo, 80, shown),
                  ShowResult::Shown);
        book.LogicPos = shown.logicPos;
    }

    /// Opens the advisor for the topic on show.
    AdvisorDialog& Advise()
    {
        dialog = std::make_unique<AdvisorDialog>(book, tables, seams.Get(), view);
        dialog->Form_Load();
        return *dialog;
    }

    /// Presses the button with that answer. Returns what the dialogue shows then.
    std::vector<std::string> Next(const std::string& answer)
    {
        view.log.clear();
        dialog->NextButton_Click(answer);
        return view.Take();
    }

    TestSeams seams;
    std::string path = "/case.IDA";
    Book book;
    AdvisorTables tables;
    RecordingView view;
    std::unique_ptr<AdvisorDialog> dialog;
};

/// The parts of the advisor that read the book, without a dialogue.
class AdvisorReader
{
public:
    explicit AdvisorReader(AdvisorWorld& world)
        : cursor(*world.book.File), context{world.book, world.tables, world.seams.Get(), cursor},
          inference(world.tables, context.seams), definitions(context, inference)
    {
        cursor.Seek(world.book.LogicPos);
    }

    bool Load(Count16 topic = 1, bool additional = false)
    {
        return LoadLogic(context, inference, topic, additional, advice);
    }

    LineCursor cursor;
    AdvisorContext context;
    Inference inference;
    Definitions definitions;
    std::string advice;
};

/// The used part of the rule table.
inline std::vector<std::string> Rules(const AdvisorTables& tables)
{
    const Counted rules(tables.LogicRules, tables.RuleCount);
    return {rules.begin(), rules.end()};
}

inline std::vector<std::string> Targets(const AdvisorTables& tables)
{
    const Counted targets(tables.Targets, tables.TargetCount);
    return {targets.begin(), targets.end()};
}

/// Tables with these rules and goals.
inline AdvisorTables TablesOf(const std::vector<std::string>& rules, const std::vector<std::string>& targets)
{
    AdvisorTables tables;
    tables.UnsureAnswer = UnsureText;
    for (const std::string& rule : rules) {
        EXPECT_TRUE(Append(tables.LogicRules, tables.RuleCount, rule, RuleGrowthStep));
    }
    for (const std::string& target : targets) {
        EXPECT_TRUE(Append(tables.Targets, tables.TargetCount, target, TargetGrowthStep));
    }
    return tables;
}

} // namespace ls::test
