#include "GuideFixture.h"
#include "advisor/AdvisorRunner.h"
#include "advisor/AdvisorTables.h"

#include <vector>

namespace ls {
namespace {

using test::GuideFixture;

struct AdviceCase
{
    const char* name;
    std::vector<std::string> answers;
    const char* advice;
};

void PrintTo(const AdviceCase& aCase, std::ostream* out)
{
    *out << aCase.name;
}

class GuideAdviceTest : public GuideFixture, public ::testing::WithParamInterface<AdviceCase>
{
};

// The answers of each case lead to its advice, without any box. The cases cover every advice of the guide.
TEST_P(GuideAdviceTest, run_answersOfATask_endsOnItsAdvice)
{
    AdvisorTables tables;
    std::size_t next = 0;
    std::string advice;
    std::vector<std::string> faults;
    AdvisorPlayer player;
    player.answer = [&](const AdvisorEvent& question) -> std::optional<std::string> {
        EXPECT_FALSE(question.text.empty()) << question.name;
        if (next == GetParam().answers.size())
            return std::nullopt;
        return GetParam().answers[next++];
    };
    player.event = [&](const AdvisorEvent& event) {
        using Kind = AdvisorEvent::Kind;
        if (event.kind == Kind::Advice && !event.text.empty())
            advice = event.name;
        if (event.kind == Kind::Box || event.kind == Kind::InvalidAnswer || event.kind == Kind::Waiting ||
            event.kind == Kind::ProgramEnds)
            faults.push_back(event.name);
    };
    player.reply = [](const std::string&, Buttons) { return Reply::No; };

    RunAdvisor(book, tables, world.Get(), player, 1, "Where to Read On");

    EXPECT_EQ(faults, std::vector<std::string>());
    EXPECT_EQ(advice, GetParam().advice);
    EXPECT_EQ(next, GetParam().answers.size());
}

INSTANTIATE_TEST_SUITE_P(
    Guide, GuideAdviceTest,
    ::testing::Values(AdviceCase{"find", {"READING", "FIND"}, "GUIDE(LIST)"},
                      AdviceCase{"follow", {"READING", "FOLLOW"}, "GUIDE(XREF)"},
                      AdviceCase{"advice", {"READING", "ADVICE"}, "GUIDE(ADVICE)"},
                      AdviceCase{"paper", {"READING", "PAPER"}, "GUIDE(PAPER)"},
                      AdviceCase{"beginning", {"WRITING", "BEGINNING"}, "GUIDE(BEGIN)"},
                      AdviceCase{"formatting", {"WRITING", "FORMATTING"}, "GUIDE(MARKUP)"},
                      AdviceCase{"advising", {"WRITING", "ADVISING"}, "GUIDE(RULES)"},
                      AdviceCase{"saving", {"WRITING", "SAVING"}, "GUIDE(SAVE)"},
                      AdviceCase{"unsureReader", {"? - unsure", "NO", "FIND"}, "GUIDE(LIST)"},
                      AdviceCase{"unsureAuthor", {"? - unsure", "YES", "SAVING"}, "GUIDE(SAVE)"}),
    [](const ::testing::TestParamInfo<AdviceCase>& row) { return std::string(row.param.name); });

} // namespace
} // namespace ls
