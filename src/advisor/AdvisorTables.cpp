#include "advisor/AdvisorTables.h"

namespace ls {

namespace {

std::string At(const std::string& name, int topic)
{
    return name + "@" + std::to_string(topic);
}

template <typename T, typename Text>
void AppendSection(std::string& out, const char* title, const Array1<T>& table, Count16 count, Text text)
{
    out.append(title).append(":\n");
    for (const T& element : Counted(table, count)) {
        out.append("  ").append(text(element)).append("\n");
    }
}

} // namespace

void ForgetAnswers(AdvisorTables& tables)
{
    tables.AnswerCount = 0;
}

void ClearRules(AdvisorTables& tables)
{
    tables.RuleCount = 0;
    tables.Index.Clear();
}

std::string Serialize(const AdvisorTables& tables)
{
    const auto asIs = [](const std::string& text) { return text; };
    std::string out;
    AppendSection(out, "rules", tables.LogicRules, tables.RuleCount, asIs);
    AppendSection(out, "targets", tables.Targets, tables.TargetCount, asIs);
    AppendSection(out, "variables", tables.VarTopics, tables.VarTopicCount,
                  [](const VarTopic& entry) { return At(entry.Name, entry.Topic); });
    AppendSection(out, "loaded", tables.LogicTopics, tables.LogicTopicCount,
                  [](Count16 topic) { return std::to_string(topic); });
    AppendSection(out, "candidates", tables.Candidates, tables.CandidateCount,
                  [](const Candidate& entry) { return entry.Name + " x" + std::to_string(entry.Level); });
    AppendSection(out, "answers", tables.Answers, tables.AnswerCount, [](const Answer& entry) {
        return At(entry.Var + "=" + entry.Value, entry.Topic) + (entry.Derived ? " derived" : "");
    });
    out += "definitions at " + std::to_string(tables.DefinitionsPos) + "\n";
    out += "current " + At(tables.CurrentVar, tables.CurrentVarTopic) + "\n";
    return out;
}

} // namespace ls
