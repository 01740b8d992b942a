#include "AdvisorWorld.h"
#include "advisor/RuleText.h"
#include "advisor/ValueList.h"

#include <algorithm>
#include <map>
#include <random>

namespace ls {
namespace {

using Texts = std::vector<std::string>;
using test::Rules;
using test::TablesOf;
using test::Targets;

class InferenceTest : public testing::Test
{
protected:
    void Set(const Texts& rules, const Texts& targets) { tables = TablesOf(rules, targets); }

    Texts Candidates()
    {
        engine.BuildCandidates();
        Texts texts;
        for (const Candidate& entry : Counted(tables.Candidates, tables.CandidateCount)) {
            texts.push_back(entry.Name + " x" + std::to_string(entry.Level));
        }
        return texts;
    }

    Texts Answers() const
    {
        Texts texts;
        for (const Answer& entry : Counted(tables.Answers, tables.AnswerCount)) {
            texts.push_back(entry.Var + "=" + entry.Value + "@" + std::to_string(entry.Topic) +
                            (entry.Derived ? " derived" : ""));
        }
        return texts;
    }

    test::TestSeams seams;
    AdvisorTables tables;
    Inference engine{tables, seams.Get()};
};

TEST_F(InferenceTest, reduceRules_metConditionIsCutAndContradictedRuleGoes)
{
    Set({"AV(GO)=WEATHER(SUNNY)MOOD(GOOD)", "AV(STAY)=WEATHER(RAIN)", "WEATHER(RAIN)=SEASON(FALL)",
         "AV(READ)=MOOD(BAD)"},
        {"AV"});
    engine.ReduceRules("WEATHER", "SUNNY");
    EXPECT_EQ(Rules(tables), (Texts{"AV(GO)=MOOD(GOOD)", "AV(READ)=MOOD(BAD)"}));
}

TEST_F(InferenceTest, reduceRules_unsureLeavesEveryRule)
{
    const Texts rules{"AV(GO)=MOOD(GOOD)", "MOOD(GOOD)=WEATHER(SUNNY)", "AV(STAY)=PAGE(X)"};
    Set(rules, {"AV"});
    engine.ReduceRules("MOOD", "? - unsure");
    EXPECT_EQ(Rules(tables), rules);
}

TEST_F(InferenceTest, assertFact_adviceGoalGivesItsValue)
{
    Set({"AV(X)=A(B)"}, {"AV"});
    EXPECT_EQ(engine.AssertFact("A", 3, "B"), "X");
    EXPECT_EQ(Answers(), (Texts{"AV=X@3 derived"}));
}

TEST_F(InferenceTest, assertFact_otherGoalGivesFact)
{
    Set({"RISK(HIGH)=A(B)"}, {"RISK"});
    EXPECT_EQ(engine.AssertFact("A", 1, "B"), "RISK(HIGH)");
}

TEST_F(InferenceTest, assertFact_firstFiredRuleCounts)
{
    Set({"AV(1)=A(B)C(D)", "AV(2)=A(B)", "AV(3)=A(B)"}, {"AV"});
    EXPECT_EQ(engine.AssertFact("A", 1, "B"), "2");
}

TEST_F(InferenceTest, assertFact_ruleWithoutConditionsFiresAtOnce)
{
    Set({"AV(GO)="}, {"AV"});
    EXPECT_EQ(engine.AssertFact("A", 1, "B"), "GO");
}

TEST_F(InferenceTest, assertFact_commaBetweenConditionsKeepsRuleFromFiring)
{
    Set({"X(1)=A(B),C(D)"}, {"X"});
    EXPECT_EQ(engine.AssertFact("A", 1, "B"), "");
    EXPECT_EQ(engine.AssertFact("C", 1, "D"), "");
    EXPECT_EQ(Rules(tables), (Texts{"X(1)=,"}));
}

TEST_F(InferenceTest, assertFact_subGoalFiredIsAssertedAndPopped)
{
    Set({"AV(GO)=MOOD(GOOD)", "MOOD(GOOD)=SUN(YES)", "MOOD(BAD)=SUN(NO)"}, {"AV", "MOOD"});
    EXPECT_EQ(engine.AssertFact("SUN", 2, "YES"), "GO");
    EXPECT_EQ(Answers(), (Texts{"MOOD=GOOD@2 derived", "AV=GO@2 derived"}));
    EXPECT_EQ(Targets(tables), (Texts{"AV"}));
}

TEST_F(InferenceTest, assertFact_subGoalFiredWithoutMainGoalGoesOn)
{
    Set({"AV(GO)=MOOD(GOOD)TIME(DAY)", "MOOD(GOOD)=SUN(YES)"}, {"AV", "MOOD"});
    EXPECT_EQ(engine.AssertFact("SUN", 2, "YES"), "");
    EXPECT_EQ(Rules(tables), (Texts{"AV(GO)=TIME(DAY)"}));
    EXPECT_EQ(Targets(tables), (Texts{"AV"}));
}

TEST_F(InferenceTest, assertFact_deeperGoalFired_dropsTopOfStack)
{
    Set({"AV(GO)=B(1)C(1)", "B(1)=X(1)", "C(1)=D(1)"}, {"AV", "B", "C"});
    EXPECT_EQ(engine.AssertFact("X", 1, "1"), "");
    EXPECT_EQ(Targets(tables), (Texts{"AV", "B"}));
    EXPECT_EQ(Rules(tables), (Texts{"AV(GO)=C(1)", "C(1)=D(1)"}));
}

TEST_F(InferenceTest, assertFact_mainGoalFiredWhileSubGoalsPend_givesAdvice)
{
    Set({"AV(GO)=X(1)", "B(1)=D(1)"}, {"AV", "B"});
    EXPECT_EQ(engine.AssertFact("X", 1, "1"), "GO");
}

TEST_F(InferenceTest, assertFact_conclusionKnownForTopic_isNotStoredTwice)
{
    Set({"AV(GO)=X(1)"}, {"AV"});
    ASSERT_TRUE(Append(tables.Answers, tables.AnswerCount, Answer{"AV", "OLD", 2, true}, 20));
    EXPECT_EQ(engine.AssertFact("X", 2, "1"), "GO");
    EXPECT_EQ(Answers(), (Texts{"AV=OLD@2 derived"}));
}

TEST_F(InferenceTest, assertFact_conclusionKnownForOtherTopic_isStored)
{
    Set({"AV(GO)=X(1)"}, {"AV"});
    ASSERT_TRUE(Append(tables.Answers, tables.AnswerCount, Answer{"AV", "OLD", 1, true}, 20));
    EXPECT_EQ(engine.AssertFact("X", 2, "1"), "GO");
    EXPECT_EQ(Answers(), (Texts{"AV=OLD@1 derived", "AV=GO@2 derived"}));
}

TEST_F(InferenceTest, assertFact_malformedLeftHandSide_stopsWithBox)
{
    Set({"AV\xC9GO)=X(1)", "AV(GO)=X(1)"}, {"AV"});
    EXPECT_EQ(engine.AssertFact("Y", 2, "1"), "");
    EXPECT_EQ(engine.AssertFact("X", 2, "1"), "");
    EXPECT_EQ(seams.messages.Take(),
              (Texts{"exclamation|Lodestar Advisor|A LHS variable was found that is not in format "
                     "Varname(Value): AV\xC3\x89GO)=X(1) -- processing stopped",
                     "exclamation|Lodestar Advisor|A LHS variable was found that is not in format "
                     "Varname(Value): AV\xC3\x89GO)= -- processing stopped"}));
    EXPECT_FALSE(seams.end.Ended());
}

TEST_F(InferenceTest, assertFact_malformedBehindFiredRule_isNotMet)
{
    Set({"AV(GO)=X(1)", "BROKEN=Q"}, {"AV"});
    EXPECT_EQ(engine.AssertFact("X", 2, "1"), "GO");
}

TEST_F(InferenceTest, assertFact_emptyAdviceValue_isNoAdvice)
{
    Set({"AV()=X(1)"}, {"AV"});
    EXPECT_EQ(engine.AssertFact("X", 2, "1"), "");
    EXPECT_EQ(Answers(), (Texts{"AV=@2 derived"}));
}

TEST_F(InferenceTest, recordAnswer_storesAnswerAndAsserts)
{
    Set({"AV(GO)=X(1)", "AV(STAY)=X(2)"}, {"AV"});
    EXPECT_EQ(engine.RecordAnswer("X", "2", 4), "STAY");
    EXPECT_EQ(Answers(), (Texts{"X=2@4", "AV=STAY@4 derived"}));
}

TEST_F(InferenceTest, recordAnswer_emptyRuleTable_endsProgram)
{
    Set({}, {"AV"});
    EXPECT_EQ(engine.RecordAnswer("X", "2", 4), "");
    EXPECT_EQ(seams.end.Reason(), "answer given while the rule table is empty");
    EXPECT_EQ(tables.AnswerCount, 0);
}

TEST_F(InferenceTest, recordAnswer_unsure_pushesGoalAndStoresNothing)
{
    Set({"AV(GO)=X(1)", "X(1)=Y(1)"}, {"AV"});
    EXPECT_EQ(engine.RecordAnswer("X", "? - unsure", 4), "");
    EXPECT_EQ(Targets(tables), (Texts{"AV", "X"}));
    EXPECT_EQ(tables.AnswerCount, 0);
    EXPECT_EQ(Rules(tables), (Texts{"AV(GO)=X(1)", "X(1)=Y(1)"}));
    EXPECT_EQ(engine.PickNextVariable(), "Y");
}

TEST_F(InferenceTest, recordAnswer_unsureWithoutRule_endsProgram)
{
    Set({"AV(GO)=X(1)"}, {"AV"});
    EXPECT_EQ(engine.RecordAnswer("X", "? - unsure", 4), "");
    EXPECT_EQ(seams.end.Reason(), "unsure for a variable that no rule concludes");
    EXPECT_EQ(Targets(tables), (Texts{"AV"}));
}

TEST_F(InferenceTest, operations_afterTheEnd_returnFailureAtOnce)
{
    Set({"AV(GO)=X(1)"}, {"AV"});
    EndProgram(seams.end, "test");
    EXPECT_EQ(engine.RecordAnswer("X", "1", 4), "");
    EXPECT_EQ(engine.AssertFact("X", 4, "1"), "");
    EXPECT_EQ(engine.PickNextVariable(), "");
    EXPECT_EQ(Rules(tables), (Texts{"AV(GO)=X(1)"}));
}

TEST_F(InferenceTest, buildCandidates_countsConditionsOfTheTopGoalsRules)
{
    Set({"AV(1)=A(X)B(Y)", "B(Y)=C(X)A(X)", "AV(2)=B(Z)C(X)B(Y)"}, {"AV"});
    EXPECT_EQ(Candidates(), (Texts{"A x1", "B x3", "C x1"}));
    ASSERT_TRUE(Append(tables.Targets, tables.TargetCount, std::string("B"), 10));
    EXPECT_EQ(Candidates(), (Texts{"C x1", "A x1"}));
}

TEST_F(InferenceTest, buildCandidates_noTargets_areNone)
{
    Set({"AV(1)=A(X)"}, {});
    EXPECT_EQ(Candidates(), Texts{});
    EXPECT_EQ(engine.PickNextVariable(), "");
}

TEST_F(InferenceTest, buildCandidates_growsInSteps)
{
    std::string rule = "AV(1)=";
    for (int i = 1; i <= 21; ++i) {
        rule += "V" + std::to_string(i) + "(X)";
    }
    Set({rule}, {"AV"});
    engine.BuildCandidates();
    EXPECT_EQ(tables.CandidateCount, 21);
    EXPECT_EQ(tables.Candidates.UpperBound(), 40);
    EXPECT_EQ(Candidates().back(), "V21 x1");
}

TEST_F(InferenceTest, goalsAndAnswers_growInSteps)
{
    Set({"AV(GO)=X(1)Y(1)", "X(1)=Y(1)"}, {"AV"});
    EXPECT_EQ(tables.LogicRules.UpperBound(), 50);
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(tables.Targets.UpperBound(), 10);
        engine.RecordAnswer("X", "? - unsure", 1);
    }
    EXPECT_EQ(tables.Targets.UpperBound(), 20);
    engine.RecordAnswer("Z", "1", 1);
    EXPECT_EQ(tables.Answers.UpperBound(), 20);
}

TEST_F(InferenceTest, pickNextVariable_mostFrequentThenFirst)
{
    Set({"AV(1)=A(X)B(Y)C(Z)", "AV(2)=C(Z)B(Y)"}, {"AV"});
    EXPECT_EQ(engine.PickNextVariable(), "B");
    Set({"AV(1)=A(X)B(Y)"}, {"AV"});
    EXPECT_EQ(engine.PickNextVariable(), "A");
}

TEST_F(InferenceTest, pickNextVariable_goalAmongItsConditions_endsProgramAfterWarning)
{
    Set({"AV(1)=B(X)", "B(X)=AV(1)"}, {"AV", "B"});
    EXPECT_EQ(engine.PickNextVariable(), "");
    EXPECT_EQ(seams.messages.Take(), (Texts{"critical|Lodestar Advisor|Warning--circular definition"}));
    EXPECT_EQ(seams.end.Reason(), "circular definition");
}

TEST_F(InferenceTest, pickNextVariable_circularCandidateThatIsNeverBest_isNotSeen)
{
    Set({"B(X)=C(X)AV(1)", "B(X)=C(X)"}, {"AV", "B"});
    EXPECT_EQ(engine.PickNextVariable(), "C");
    EXPECT_FALSE(seams.end.Ended());
}

TEST_F(InferenceTest, pickNextVariable_circularCandidateBeatenLater_isSeen)
{
    Set({"B(X)=AV(1)C(X)", "B(X)=C(X)"}, {"AV", "B"});
    EXPECT_EQ(engine.PickNextVariable(), "");
    EXPECT_EQ(seams.end.Reason(), "circular definition");
    seams.messages.boxes.clear();
}

TEST_F(InferenceTest, recordAnswer_fullAnswerTable_showsOverflow)
{
    Set({"AV(GO)=X(1)"}, {"AV"});
    while (Append(tables.Answers, tables.AnswerCount, Answer{"Q", "1", 1, false}, 5000)) {
    }
    EXPECT_EQ(engine.RecordAnswer("X", "1", 1), "");
    EXPECT_TRUE(engine.Overflowed());
    EXPECT_EQ(tables.AnswerCount, Count16::Max);
    EXPECT_EQ(seams.messages.Take(), (Texts{"critical|Lodestar Advisor|Overflow"}));
}

TEST_F(InferenceTest, recordAnswer_fullTargetStack_showsOverflow)
{
    Set({"AV(GO)=X(1)", "X(1)=Y(1)"}, {"AV"});
    while (Append(tables.Targets, tables.TargetCount, std::string("T"), 5000)) {
    }
    EXPECT_EQ(engine.RecordAnswer("X", "? - unsure", 1), "");
    EXPECT_TRUE(engine.Overflowed());
    EXPECT_EQ(seams.messages.Take(), (Texts{"critical|Lodestar Advisor|Overflow"}));
}

struct ValuesRow
{
    const char* name;
    Texts rules;
    const char* expected; ///< "values count derived"
};

class CollectValuesTable : public testing::TestWithParam<ValuesRow>
{
};

TEST_P(CollectValuesTable, rules_giveChoicesOfX)
{
    test::TestSeams seams;
    AdvisorTables tables = TablesOf(GetParam().rules, {"AV"});
    const CollectedValues values = Inference(tables, seams.Get()).CollectValues("X");
    EXPECT_EQ(values.Values + " " + std::to_string(values.Count) + (values.IsDerived ? " derived" : ""),
              GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CollectValuesTable,
    testing::Values(ValuesRow{"none", {"AV(1)=Y(A)"}, " 0"},
                    ValuesRow{"inRuleOrder", {"AV(1)=X(B)", "AV(2)=Y(Q)X(A)", "AV(3)=X(B)"}, "B,A, 2"},
                    ValuesRow{"derived", {"X(A)=Y(Q)", "AV(1)=X(B)"}, "A,B, 2 derived"},
                    ValuesRow{"endsEarlierValue", {"AV(1)=X(BA)", "AV(2)=X(A)"}, "BA, 1"},
                    ValuesRow{"beginsEarlierValue", {"AV(1)=X(AB)", "AV(2)=X(A)"}, "AB,A, 2"},
                    ValuesRow{"longerComesLater", {"AV(1)=X(A)", "AV(2)=X(BA)"}, "A,BA, 2"},
                    ValuesRow{"onlyFirstPlaceInRule", {"AV(1)=X(A)X(B)"}, "A, 1"},
                    ValuesRow{"nameEndsAnotherName", {"AV(1)=BOX(C)X(D)"}, "C, 1"},
                    ValuesRow{"emptyValueFirst", {"AV(1)=X()", "AV(2)=X(A)", "AV(3)=X(B)"}, "A,B, 2"},
                    ValuesRow{"onlyEmptyValue", {"AV(1)=X()"}, " 0"},
                    ValuesRow{"emptyValueLater", {"AV(1)=X(A)", "AV(2)=X()"}, "A, 1"},
                    ValuesRow{"commaInValue", {"AV(1)=X(P,Q)", "AV(2)=X(Q)", "AV(3)=X(R)"}, "P,Q,R, 2"},
                    ValuesRow{"commaAcrossValues", {"AV(1)=X(P)", "AV(2)=X(Q)", "AV(3)=X(P,Q)"}, "P,Q, 2"},
                    ValuesRow{"leadingCommaInValue", {"AV(1)=X(,A)", "AV(2)=X(B)"}, "A,B, 1"},
                    ValuesRow{"unclosed", {"AV(1)=X(A"}, " 0"},
                    ValuesRow{"nested", {"AV(1)=X(A(B))"}, "A(B, 1"}),
    [](const auto& row) { return row.param.name; });

// A simple model of the engine, without an index. Both must give the same results.
class PlainModel
{
public:
    explicit PlainModel(AdvisorTables& tables) : m_tables(tables) {}

    std::string AssertFact(const std::string& var, Count16 topic, const std::string& value)
    {
        Reduce(var, value);
        for (int t = m_tables.TargetCount; t >= 1; --t) {
            const std::string target = m_tables.Targets(t);
            std::string fired;
            for (const std::string& rule : Rules(m_tables)) {
                const std::size_t open = rule.find('(');
                const std::size_t close = rule.find(')');
                if (open == std::string::npos || close == std::string::npos || close < open) {
                    boxes.push_back(rule);
                    return "";
                }
                if (rule.find('=') == rule.size() - 1 && rule.substr(0, open) == target) {
                    fired = rule.substr(open + 1, close - open - 1);
                    Note(target, fired, topic);
                    if (t == 1) {
                        return target == "AV" ? fired : target + "(" + fired + ")";
                    }
                    Reduce(target, fired);
                    m_tables.TargetCount = m_tables.TargetCount - 1;
                    break;
                }
            }
        }
        return "";
    }

    std::string Values(const std::string& var) const
    {
        std::string values;
        for (const std::string& rule : Rules(m_tables)) {
            const std::size_t at = rule.find(var + "(");
            const std::size_t from = at + var.size() + 1;
            const std::size_t close = at == std::string::npos ? at : rule.find(')', from);
            if (close != std::string::npos) {
                const std::string value = rule.substr(from, close - from) + ",";
                values += values.find(value) == std::string::npos ? value : "";
            }
        }
        return values;
    }

    Texts Candidates() const
    {
        Texts names;
        std::map<std::string, int> levels;
        const std::string goal = m_tables.Targets(int{m_tables.TargetCount});
        for (const std::string& rule : Rules(m_tables)) {
            const std::size_t first = rule.find('(');
            if (first == std::string::npos || rule.substr(0, first) != goal) {
                continue;
            }
            std::size_t from = rule.find('=') + 1;
            std::size_t open = 0;
            while ((open = rule.find('(', from)) != std::string::npos) {
                const std::string name = rule.substr(from, open - from);
                if (++levels[name] == 1) {
                    names.push_back(name);
                }
                const std::size_t close = rule.find(')', open);
                from = close == std::string::npos ? rule.size() : close + 1;
            }
        }
        for (std::string& name : names) {
            name += " x" + std::to_string(levels[name]);
        }
        return names;
    }

    Texts boxes;

private:
    void Note(const std::string& var, const std::string& value, Count16 topic)
    {
        for (const Answer& answer : Counted(m_tables.Answers, m_tables.AnswerCount)) {
            if (answer.Var == var && answer.Topic == topic) {
                return;
            }
        }
        EXPECT_TRUE(Append(m_tables.Answers, m_tables.AnswerCount, Answer{var, value, topic, true}, 20));
    }

    void Reduce(const std::string& var, const std::string& value)
    {
        Texts kept;
        for (std::string rule : Rules(m_tables)) {
            const std::size_t at = rule.find(var + "(");
            if (at != std::string::npos && at < rule.find('=')) {
                continue;
            }
            if (at != std::string::npos && rule.find(var + "(" + value + ")") == std::string::npos) {
                continue;
            }
            if (at != std::string::npos) {
                rule = rule.substr(0, at) + rule.substr(rule.find(')', at) + 1);
            }
            kept.push_back(rule);
        }
        AdvisorTables rebuilt = TablesOf(kept, {});
        m_tables.LogicRules = rebuilt.LogicRules;
        m_tables.RuleCount = rebuilt.RuleCount;
    }

    AdvisorTables& m_tables;
};

std::string RandomFact(std::mt19937& random)
{
    static const Texts vars{"A", "B", "BA", "AV", "C", ",C", "A)B"};
    static const Texts values{"1", "11", "2", "", "1,2", ",1", "X"};
    const std::string var = vars[random() % vars.size()];
    const std::string value = values[random() % values.size()];
    switch (random() % 40) {
    case 0:
        return var + value + ")";
    case 1:
        return var + "(" + value;
    default:
        return var + "(" + value + ")";
    }
}

TEST(InferenceModel, randomRules_giveWhatThePlainReadingGives)
{
    std::mt19937 random(20240607);
    for (int round = 0; round < 3000; ++round) {
        Texts rules;
        for (std::size_t i = random() % 8; i-- > 0;) {
            std::string rule = RandomFact(random) + "=";
            for (std::size_t j = random() % 4; j-- > 0;) {
                rule += RandomFact(random);
            }
            rules.push_back(rule);
        }
        test::TestSeams seams;
        AdvisorTables tables = TablesOf(rules, {"AV", "B", "C"});
        AdvisorTables plainTables = tables;
        Inference engine(tables, seams.Get());
        PlainModel plain(plainTables);
        for (const char* var : {"A", "B", "C", "BA", ",C"}) {
            const std::string dropped = plain.Values(var);
            EXPECT_EQ(engine.CollectValues(var).Values,
                      !dropped.empty() && dropped.front() == ',' ? dropped.substr(1) : dropped);
        }
        const char* const value = random() % 2 == 0 ? "1" : "2";
        EXPECT_EQ(engine.AssertFact("A", 1, value), plain.AssertFact("A", 1, value));
        EXPECT_EQ(Serialize(tables), Serialize(plainTables));
        EXPECT_EQ(seams.messages.Take().size(), plain.boxes.size());
        ASSERT_FALSE(testing::Test::HasFailure()) << "round " << round;
    }
}

std::string RandomRules(std::mt19937& random, Texts& rules)
{
    std::string seen;
    for (std::size_t i = 1 + random() % 12; i-- > 0;) {
        std::string rule = RandomFact(random) + "=";
        for (std::size_t j = random() % 5; j-- > 0;) {
            rule += RandomFact(random) + (random() % 12 == 0 ? "," : "");
        }
        rules.push_back(rule);
        seen += rule + "\n";
    }
    return seen;
}

// The engine's index of the rules must match their texts after every answer.
TEST(InferenceModel, answerAfterAnswer_givesWhatThePlainReadingGives)
{
    std::mt19937 random(20240711);
    const Texts vars{"A", "B", "C", "BA", ",C", ",BA", "A)B", "AV", "1)B", "Z"};
    const Texts values{"1", "2", "11", "", "1,2", "1)B(1", "X"};
    for (int round = 0; round < 1500; ++round) {
        Texts rules;
        SCOPED_TRACE(RandomRules(random, rules));
        test::TestSeams seams;
        AdvisorTables tables = TablesOf(rules, {"AV", "BA", "B", "C"});
        tables.UnsureAnswer = "? - unsure";
        AdvisorTables plainTables = tables;
        Inference engine(tables, seams.Get());
        PlainModel plain(plainTables);
        for (int answer = 0; answer < 6; ++answer) {
            engine.BuildCandidates();
            Texts candidates;
            for (const Candidate& entry : Counted(tables.Candidates, tables.CandidateCount)) {
                candidates.push_back(entry.Name + " x" + std::to_string(entry.Level));
            }
            ASSERT_EQ(candidates, plain.Candidates());
            tables.CandidateCount = 0; // the model keeps none
            const std::string& var = vars[random() % vars.size()];
            const std::string& value = values[random() % values.size()];
            const std::string all = plain.Values(var);
            ASSERT_EQ(engine.CollectValues(var).Values,
                      !all.empty() && all.front() == ',' ? all.substr(1) : all);
            ASSERT_EQ(engine.AssertFact(var, 1, value), plain.AssertFact(var, 1, value)) << var << value;
            ASSERT_EQ(Serialize(tables), Serialize(plainTables)) << var << "(" << value << ")";
            ASSERT_EQ(seams.messages.Take().size(), plain.boxes.size());
            plain.boxes.clear();
        }
    }
}

TEST_F(InferenceTest, reduceRules_ruleTooLongForItsIndex_isRewrittenAllTheSame)
{
    const std::string padding(70000, 'P');
    Set({"AV(1)=A(B)" + padding + "(Q)C(D)", "AV(2)=A(X)" + padding + "(Q)"}, {"AV"});
    EXPECT_EQ(Candidates(), (Texts{"A x2", padding + " x2", "C x1"}));
    EXPECT_EQ(engine.CollectValues("A").Values, "B,X,");
    engine.ReduceRules("A", "B");
    engine.ReduceRules(padding, "Q");
    EXPECT_EQ(Rules(tables), (Texts{"AV(1)=C(D)"}));
    EXPECT_EQ(Candidates(), (Texts{"C x1"}));
    EXPECT_EQ(engine.AssertFact("C", 1, "D"), "1");
}

TEST_F(InferenceTest, reduceRules_cutLeavesTheHeadOfALongerName_thatJoinsTheNextOne)
{
    Set({"AV(1)=PAGE(X)M(Y)AGE(Z)"}, {"AV"});
    engine.ReduceRules("AGE", "X");
    EXPECT_EQ(Rules(tables), (Texts{"AV(1)=PM(Y)AGE(Z)"}));
    EXPECT_EQ(Candidates(), (Texts{"PM x1", "AGE x1"}));
    engine.ReduceRules("PM", "Y");
    EXPECT_EQ(engine.AssertFact("AGE", 1, "Z"), "1");
}

TEST_F(InferenceTest, clearRules_forgetsTheIndexOfTheOldOnes)
{
    Set({"AV(1)=A(B)C(D)", "AV(2)=A(X)"}, {"AV"});
    EXPECT_EQ(Candidates(), (Texts{"A x2", "C x1"}));
    ClearRules(tables);
    for (const char* rule : {"AV(3)=E(F)", "AV(4)=A(B)"}) {
        ASSERT_TRUE(Append(tables.LogicRules, tables.RuleCount, std::string(rule), RuleGrowthStep));
    }
    EXPECT_EQ(Candidates(), (Texts{"E x1", "A x1"}));
    EXPECT_EQ(engine.AssertFact("E", 1, "F"), "3");
}

TEST(ValueListModel, randomValues_giveWhatASearchInTheTextGives)
{
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        ValueList list;
        std::string plain;
        for (int i = 0; i < 40; ++i) {
            std::string value;
            for (std::size_t n = random() % 5; n-- > 0;) {
                value += "AB,"[random() % 3];
            }
            const bool isNew = plain.find(value + ",") == std::string::npos;
            plain += isNew ? value + "," : "";
            EXPECT_EQ(list.Add(value), isNew) << value << " in " << plain;
        }
        ASSERT_EQ(list.Text(), plain);
    }
}

TEST(ValueListModel, longValuesThatEndAlike_areToldApart)
{
    ValueList list;
    const std::string tail(100, 'T');
    EXPECT_TRUE(list.Add("A" + tail));
    EXPECT_TRUE(list.Add("B" + tail));
    EXPECT_FALSE(list.Add(tail));
    EXPECT_FALSE(list.Add("A" + tail + ",B" + tail));
    EXPECT_TRUE(list.Add("B" + tail + ",A" + tail));
    EXPECT_FALSE(list.Add(tail + ",A" + tail));
    EXPECT_TRUE(list.Add("C" + tail));
}

} // namespace
} // namespace ls
