#include "base/CodePage.h"
#include "check/BlockRules.h"

#include <algorithm>
#include <deque>
#include <unordered_map>
#include <unordered_set>

namespace ls {

namespace {

// A step from a concluded variable to another one that its rule needs, and that rule.
struct Step
{
    std::string to;
    PlacedRule by;
};

using Steps = std::unordered_map<std::string, std::vector<Step>>;

Steps StepsOf(const RuleBase& base)
{
    Steps steps;
    for (const VariableUse& variable : base.Variables()) {
        std::unordered_set<std::string> known;
        for (const PlacedRule& placed : variable.conclusions) {
            for (const BlockTerm& term : placed.rule->conditions) {
                const VariableUse* const to = base.Find(term.var);
                if (to != nullptr && !to->conclusions.empty() && known.insert(term.var).second) {
                    steps[variable.name].push_back({term.var, placed});
                }
            }
        }
    }
    return steps;
}

// The shortest way from a variable back to itself, without the variable at the end; empty for none.
std::vector<std::string> CircleFrom(const std::string& start, const Steps& steps)
{
    std::unordered_map<std::string, std::string> cameFrom;
    std::deque<std::string> open{start};
    while (!open.empty()) {
        const std::string at = open.front();
        open.pop_front();
        const auto next = steps.find(at);
        if (next == steps.end()) {
            continue;
        }
        for (const Step& step : next->second) {
            if (step.to == start) {
                std::vector<std::string> way{at};
                while (way.back() != start) {
                    way.push_back(cameFrom[way.back()]);
                }
                std::reverse(way.begin(), way.end());
                return way;
            }
            if (cameFrom.emplace(step.to, at).second) {
                open.push_back(step.to);
            }
        }
    }
    return {};
}

// The variables that may be part of a circle. Variables that no step leads to cannot be; they are removed one
// after the other.
std::unordered_set<std::string> Suspects(const Steps& steps)
{
    std::unordered_map<std::string, int> waysIn;
    for (const auto& [from, list] : steps) {
        waysIn[from];
        for (const Step& step : list) {
            ++waysIn[step.to];
        }
    }
    std::vector<std::string> free;
    for (const auto& [name, ways] : waysIn) {
        if (ways == 0) {
            free.push_back(name);
        }
    }
    while (!free.empty()) {
        const std::string name = free.back();
        free.pop_back();
        waysIn.erase(name);
        const auto next = steps.find(name);
        if (next == steps.end()) {
            continue;
        }
        for (const Step& step : next->second) {
            if (--waysIn[step.to] == 0) {
                free.push_back(step.to);
            }
        }
    }
    std::unordered_set<std::string> left;
    for (const auto& [name, ways] : waysIn) {
        left.insert(name);
    }
    return left;
}

std::string PathText(const std::vector<std::string>& circle)
{
    std::string text;
    for (const std::string& name : circle) {
        text += FromBook(name) + " -> ";
    }
    return text + FromBook(circle.front());
}

// The goal and all variables that it depends on.
std::unordered_set<std::string> Needed(const std::string& goal, const Steps& steps)
{
    std::unordered_set<std::string> needed{goal};
    std::deque<std::string> open{goal};
    while (!open.empty()) {
        const auto next = steps.find(open.front());
        open.pop_front();
        if (next == steps.end()) {
            continue;
        }
        for (const Step& step : next->second) {
            if (needed.insert(step.to).second) {
                open.push_back(step.to);
            }
        }
    }
    return needed;
}

// The line of the DEFINE for a variable of the circle, else of the first DEFINE.
int DefineLine(const RuleBase& base, const std::vector<std::string>& circle)
{
    int first = 0;
    for (const BlockCommand& command : base.Own().commands) {
        if (command.title.empty()) {
            continue;
        }
        if (std::find(circle.begin(), circle.end(), command.var) != circle.end()) {
            return command.line;
        }
        first = first == 0 ? command.line : first;
    }
    return first;
}

// The first rule of the topic's own block that is a step of the circle; 0 if all steps are in other topics.
int LineOf(const RuleBase& base, const std::vector<std::string>& circle)
{
    int line = 0;
    for (std::size_t i = 0; i < circle.size(); ++i) {
        const std::string& to = circle[(i + 1) % circle.size()];
        for (const PlacedRule& placed : base.Find(circle[i])->conclusions) {
            const std::vector<BlockTerm>& terms = placed.rule->conditions;
            if (placed.block == &base.Own() && (line == 0 || placed.rule->line < line) &&
                std::any_of(terms.begin(), terms.end(), [&](const BlockTerm& t) { return t.var == to; })) {
                line = placed.rule->line;
            }
        }
    }
    return line;
}

} // namespace

void CheckCircles(const RuleBase& base, Findings& findings)
{
    const Steps steps = StepsOf(base);
    const std::unordered_set<std::string> suspects = Suspects(steps);
    const std::unordered_set<std::string> needed = Needed(base.Target(), steps);
    std::unordered_set<std::string> told;
    for (const VariableUse& variable : base.Variables()) {
        if (suspects.count(variable.name) == 0 || told.count(variable.name) != 0) {
            continue;
        }
        const std::vector<std::string> circle = CircleFrom(variable.name, steps);
        if (circle.empty()) {
            continue;
        }
        int line = LineOf(base, circle);
        if (line == 0 && needed.count(variable.name) != 0) {
            line = DefineLine(base, circle); // the circle is in other topics, but this goal needs it
        }
        if (line == 0) {
            continue;
        }
        told.insert(circle.begin(), circle.end());
        findings.Error("circular-definition", line,
                       "The definition " + PathText(circle) +
                           " is circular and ends the program when the reader cannot answer the question on "
                           "the way: remove one of its conditions.");
    }
}

} // namespace ls
