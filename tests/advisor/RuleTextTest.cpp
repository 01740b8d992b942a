#include "advisor/RuleText.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls {
namespace {

struct ReduceRow
{
    const char* name;
    const char* rule;
    const char* var;
    const char* value;
    const char* reduced;
};

class ReduceRuleTable : public testing::TestWithParam<ReduceRow>
{
};

TEST_P(ReduceRuleTable, fact_rewritesRule)
{
    const ReduceRow& row = GetParam();
    std::string rule = row.rule;
    const std::string head = std::string(row.var) + "(";
    ReduceRule(rule, head, head + row.value + ")");
    EXPECT_EQ(rule, row.reduced);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReduceRuleTable,
    testing::Values(ReduceRow{"metFirstCondition", "AV(GO)=WEATHER(SUNNY)MOOD(GOOD)", "WEATHER", "SUNNY",
                              "AV(GO)=MOOD(GOOD)"},
                    ReduceRow{"metLastCondition", "AV(GO)=WEATHER(SUNNY)MOOD(GOOD)", "MOOD", "GOOD",
                              "AV(GO)=WEATHER(SUNNY)"},
                    ReduceRow{"metOnlyCondition", "AV(GO)=MOOD(GOOD)", "MOOD", "GOOD", "AV(GO)="},
                    ReduceRow{"contradicted", "AV(GO)=WEATHER(SUNNY)MOOD(GOOD)", "WEATHER", "RAIN", ""},
                    ReduceRow{"notNamed", "AV(GO)=MOOD(GOOD)", "WEATHER", "RAIN", "AV(GO)=MOOD(GOOD)"},
                    ReduceRow{"concluded", "MOOD(GOOD)=WEATHER(SUNNY)", "MOOD", "BAD", ""},
                    ReduceRow{"concludedAndCondition", "MOOD(GOOD)=MOOD(GOOD)", "MOOD", "GOOD", ""},
                    ReduceRow{"nameEndsAnotherName", "AV(GO)=PAGE(X)AGE(X)", "AGE", "X", "AV(GO)=PAGE(X)"},
                    ReduceRow{"twoConditionsFactIsSecond", "AV(GO)=X(A)X(B)", "X", "B", "AV(GO)=X(B)"},
                    ReduceRow{"sameConditionTwice", "AV(GO)=X(A)X(A)", "X", "A", "AV(GO)=X(A)"},
                    ReduceRow{"commaStays", "X(1)=A(B),C(D)", "A", "B", "X(1)=,C(D)"},
                    ReduceRow{"emptyVariable", "AV(GO)=X(A)", "", "GO", ""},
                    ReduceRow{"noClosingBracket", "AV(GO)=X(A", "X", "A", ""},
                    ReduceRow{"bracketInsideName", "AV(GO)=P)Q(R)S(T)", "P)Q", "R", "AV(GO)=Q(R)S(T)"},
                    ReduceRow{"secondEqualsSign", "AV(GO)=X(A)=Y(B)", "=Y", "B", "AV(GO)=X(A)"}),
    test::RowName());

struct LeftRow
{
    const char* name;
    const char* rule;
    const char* expected; ///< "var|value", or "malformed"
};

class LeftHandSideTable : public testing::TestWithParam<LeftRow>
{
};

TEST_P(LeftHandSideTable, rule_givesConclusion)
{
    const auto left = ParseLeftHandSide(GetParam().rule);
    EXPECT_EQ(left ? std::string(left->var) + "|" + std::string(left->value) : "malformed",
              GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, LeftHandSideTable,
                         testing::Values(LeftRow{"plain", "AV(GO)=X(A)", "AV|GO"},
                                         LeftRow{"noOpening", "AVGO)=", "malformed"},
                                         LeftRow{"noClosing", "AV(GO=", "malformed"},
                                         LeftRow{"closingFirst", "A)V(GO)=", "malformed"},
                                         LeftRow{"noBrackets", "AV=", "malformed"},
                                         LeftRow{"closingInCondition", "AV(GO=X(A)", "AV|GO=X(A"},
                                         LeftRow{"nested", "AV(A(B))=", "AV|A(B"},
                                         LeftRow{"openingInCondition", "AV=X(A)", "AV=X|A"},
                                         LeftRow{"empty", "()=", "|"}),
                         test::RowName());

TEST(HasFired, rule_isFiredWhenItsEqualsSignIsLast)
{
    EXPECT_TRUE(HasFired("AV(GO)="));
    EXPECT_FALSE(HasFired("AV(GO)=X(A)"));
    EXPECT_FALSE(HasFired("AV(GO)=,"));
    EXPECT_FALSE(HasFired("AV(GO)=="));
    EXPECT_FALSE(HasFired(""));
}

TEST(Concludes, leftHandVariable_isComparedWhole)
{
    EXPECT_TRUE(Concludes("AGE(X)=", "AGE"));
    EXPECT_FALSE(Concludes("PAGE(X)=", "AGE"));
    EXPECT_FALSE(Concludes("AGE(X)=", "AG"));
    EXPECT_FALSE(Concludes("AV(X)=AGE(Y)", "AGE"));
    EXPECT_FALSE(Concludes("AGE", "AGE"));
    EXPECT_FALSE(Concludes("A(B(C)=", "A(B"));
    EXPECT_TRUE(Concludes("(C)=", ""));
}

struct WalkRow
{
    const char* name;
    const char* rule;
    std::vector<std::string> vars;
};

class ConditionWalk : public testing::TestWithParam<WalkRow>
{
};

TEST_P(ConditionWalk, rule_givesConditionVariables)
{
    std::vector<std::string> vars;
    ForEachConditionVar(GetParam().rule, [&vars](std::string_view var) {
        vars.emplace_back(var);
        return true;
    });
    EXPECT_EQ(vars, GetParam().vars);
}

INSTANTIATE_TEST_SUITE_P(Rows, ConditionWalk,
                         testing::Values(WalkRow{"plain", "AV(GO)=A(X)B(Y)", {"A", "B"}},
                                         WalkRow{"none", "AV(GO)=", {}},
                                         WalkRow{"comma", "AV(GO)=A(X),B(Y)", {"A", ",B"}},
                                         WalkRow{"tailWithoutBracket", "AV(GO)=A(X)B", {"A"}},
                                         WalkRow{"unclosed", "AV(GO)=A(X)B(Y", {"A", "B"}},
                                         WalkRow{"strayClosing", "AV(GO)=A)B(Y)", {"A)B"}},
                                         WalkRow{"nested", "AV(GO)=A(B(X))C(Y)", {"A", ")C"}},
                                         WalkRow{"tab", "AV(GO)=A(X)\tB(Y)", {"A", "\tB"}},
                                         WalkRow{"secondEqualsSign", "AV(GO)=A(X)=B(Y)", {"A", "=B"}}),
                         test::RowName());

} // namespace
} // namespace ls
