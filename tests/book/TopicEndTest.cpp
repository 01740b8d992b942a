#include "book/TopicEnd.h"

#include <gtest/gtest.h>

#include <string>

namespace ls {
namespace {

struct LineCase
{
    const char* name;
    const char* line;
    TopicLine kind;
};

class TopicLines : public testing::TestWithParam<LineCase>
{
};

TEST_P(TopicLines, aLine_isOfItsKind)
{
    EXPECT_EQ(ClassifyTopicLine(GetParam().line), GetParam().kind) << GetParam().line;
    EXPECT_EQ(EndsText(GetParam().line), GetParam().kind != TopicLine::Text) << GetParam().line;
}

INSTANTIATE_TEST_SUITE_P(
    Table, TopicLines,
    testing::Values(LineCase{"empty", "", TopicLine::Text}, LineCase{"blanks", "   ", TopicLine::Text},
                    LineCase{"text", "Some text", TopicLine::Text},
                    LineCase{"reference", "<XREF TOPIC=\"A\"></XREF>", TopicLine::Reference},
                    LineCase{"referenceInLowerCase", "<xref topic=a>", TopicLine::Reference},
                    LineCase{"referenceCutShort", "<XREF", TopicLine::Reference},
                    LineCase{"referenceAfterBlank", " <XREF TOPIC=\"A\">", TopicLine::Text},
                    LineCase{"referenceClosing", "</XREF>", TopicLine::Text},
                    LineCase{"block", "<IXML>", TopicLine::LogicBlock},
                    LineCase{"blockInLowerCase", "<ixml>", TopicLine::LogicBlock},
                    LineCase{"blockBetweenBlanks", "  <IXML>  ", TopicLine::LogicBlock},
                    LineCase{"blockAfterTab", "\t<IXML>", TopicLine::Text},
                    LineCase{"blockAndMore", "<IXML> x", TopicLine::Text},
                    LineCase{"blockClosing", "</IXML>", TopicLine::Text},
                    LineCase{"header", "[Title]", TopicLine::Header},
                    LineCase{"emptyHeader", "[]", TopicLine::Header},
                    LineCase{"bracketAlone", "[", TopicLine::Header},
                    LineCase{"headerAfterBlank", " [Title]", TopicLine::Text}),
    [](const auto& info) { return info.param.name; });

} // namespace
} // namespace ls
