#include "bench/AdvisorPeers.h"

#include "base/Text.h"
#include "bench/Measure.h"

#include <algorithm>
#include <sstream>

namespace ls::bench {

namespace {

// If its program ends too early, an engine waits for input, CLIPS in an endless loop.
constexpr const char* TimeLimit = "timeout 900 ";

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

// Reads the lines "advice NAME", "load SECONDS" and "dialogue SECONDS" from an engine's output.
PeerTimes TimesOf(const std::string& output, const AdvisorBase& base)
{
    std::istringstream words(output);
    std::string word;
    std::string advice;
    PeerTimes times;
    while (words >> word) {
        if (word == "advice") {
            Require(advice.empty(), "the engine finds one advice");
            words >> advice;
        } else if (word == "load" && words >> word) {
            times.load = LeadingNumber(word) * 1000;
        } else if (word == "dialogue" && words >> word) {
            times.dialogue = LeadingNumber(word) * 1000;
        }
    }
    Require(UpperCase(advice) == base.advice, "the engine finds the advice");
    Require(times.load > 0 && times.dialogue > 0, "the engine measures itself");
    return times;
}

// The common part of both ways to use CLIPS: load, reset, then one answer after the other.
std::optional<PeerTimes> RunClips(const AdvisorBase& base, const std::vector<Setting>& answers,
                                  const std::string& path, const std::string& load,
                                  const std::string& answerHead)
{
    if (!Installed("clips")) {
        return std::nullopt;
    }
    std::string batch = R"((deffunction processor ()
  (open "/proc/self/schedstat" file "r")
  (bind ?nanoseconds (read file))
  (close file)
  (/ ?nanoseconds 1e9))
; Both clocks: that of the processor is exact to some milliseconds, the other one only on an idle machine.
(deffunction spent (?what ?time ?processor)
  (printout t ?what " " (if (< ?time 0.02) then ?time else ?processor) crlf))
(defglobal ?*t0* = 0 ?*t1* = 0 ?*t2* = 0 ?*p0* = 0 ?*p1* = 0 ?*p2* = 0)
(set-reset-globals FALSE)
(bind ?*t0* (time))
(bind ?*p0* (processor))
)";
    batch += load + "(bind ?*p1* (processor))\n(bind ?*t1* (time))\n";
    for (const Setting& answer : answers) {
        batch += "(assert (" + answerHead + answer.var + " " + answer.value + "))\n(run)\n";
    }
    batch += R"((bind ?*t2* (time))
(bind ?*p2* (processor))
(spent "load" (- ?*t1* ?*t0*) (- ?*p1* ?*p0*))
(spent "dialogue" (- ?*t2* ?*t1*) (- ?*p2* ?*p1*))
(exit)
)";
    WriteFile(path, batch);
    return TimesOf(OutputOf(TimeLimit + std::string("clips -f2 '") + path + "' </dev/null"), base);
}

} // namespace

std::optional<PeerTimes> ClipsRules(const AdvisorBase& base, const std::vector<Setting>& answers,
                                    const std::string& folder)
{
    const std::string rules = folder + "/clips-rules.clp";
    std::string text;
    for (const BaseRule& rule : base.rules) {
        text += "(defrule " + rule.advice;
        for (const Setting& condition : rule.conditions) {
            text += " (" + condition.var + " " + condition.value + ")";
        }
        text += " => (printout t \"advice " + rule.advice + "\" crlf))\n";
    }
    WriteFile(rules, text);
    return RunClips(base, answers, folder + "/clips-rules.bat", "(load* \"" + rules + "\")\n(reset)\n", "");
}

std::optional<PeerTimes> ClipsFacts(const AdvisorBase& base, const std::vector<Setting>& answers,
                                    const std::string& folder)
{
    const std::string engine = folder + "/clips-engine.clp";
    WriteFile(engine, R"((deftemplate rule (slot advice) (multislot conditions))
(defrule contradicted
  (declare (salience 2))
  (answer ?var ?value)
  ?rule <- (rule (conditions $? ?var ?other&~?value $?))
  =>
  (retract ?rule))
(defrule met
  (declare (salience 1))
  (answer ?var ?value)
  ?rule <- (rule (conditions $?before ?var ?value $?behind))
  =>
  (modify ?rule (conditions $?before $?behind)))
(defrule fired
  (rule (advice ?advice) (conditions))
  =>
  (printout t "advice " ?advice crlf))
)");
    const std::string facts = folder + "/clips-facts.clp";
    std::string text;
    for (const BaseRule& rule : base.rules) {
        text += "(rule (advice " + rule.advice + ") (conditions";
        for (const Setting& condition : rule.conditions) {
            text += " " + condition.var + " " + condition.value;
        }
        text += "))\n";
    }
    WriteFile(facts, text);
    return RunClips(base, answers, folder + "/clips-facts.bat",
                    "(load* \"" + engine + "\")\n(reset)\n(load-facts \"" + facts + "\")\n", "answer ");
}

std::optional<PeerTimes> Prolog(const AdvisorBase& base, const std::vector<Setting>& answers,
                                const std::string& folder)
{
    if (!Installed("swipl")) {
        return std::nullopt;
    }
    const std::string rules = folder + "/prolog-rules.pl";
    std::string text;
    for (const Setting& answer : base.reader) {
        text += ":- dynamic " + Lower(answer.var) + "/1.\n";
    }
    for (const BaseRule& rule : base.rules) {
        text += "av(" + Lower(rule.advice) + ") :- ";
        for (const Setting& condition : rule.conditions) {
            text += Lower(condition.var) + "(" + Lower(condition.value) + ")" +
                    (&condition == &rule.conditions.back() ? ".\n" : ", ");
        }
    }
    WriteFile(rules, text);
    std::string program = R"(% Whether the body waits for variables: none of its conditions is contradicted.
open_variables((A, B), Vars) :- !, open_variables(A, As), open_variables(B, Bs), append(As, Bs, Vars).
open_variables(Condition, Vars) :-
    functor(Condition, Var, 1),
    functor(Known, Var, 1),
    (   call(Known)
    ->  Known = Condition, Vars = []
    ;   Vars = [Var]
    ).

next_question(Best) :-
    findall(Var, (clause(av(_), Body), open_variables(Body, Vars), member(Var, Vars)), All),
    msort(All, Sorted),
    pairs_keys_values(Pairs, Sorted, Sorted),
    group_pairs_by_key(Pairs, Groups),
    foldl(more_frequent, Groups, 0-none, _-Best).

more_frequent(Var-Group, Count0-Best0, Count-Best) :-
    length(Group, N),
    (   N > Count0 -> Count-Best = N-Var ; Count-Best = Count0-Best0 ).

answer(Fact) :-
    assertz(Fact),
    (   av(Advice)
    ->  format("advice ~w~n", [Advice])
    ;   next_question(_)
    ).

main :-
    statistics(cputime, Start),
    consult(')" + rules + R"('),
    statistics(cputime, Loaded),
    maplist(answer, [)";
    for (const Setting& answer : answers) {
        program +=
            (&answer == answers.data() ? "" : ", ") + Lower(answer.var) + "(" + Lower(answer.value) + ")";
    }
    program += R"(]),
    statistics(cputime, End),
    Load is Loaded - Start,
    Dialogue is End - Loaded,
    format("load ~6f~ndialogue ~6f~n", [Load, Dialogue]).
)";
    const std::string path = folder + "/prolog-main.pl";
    WriteFile(path, program);
    return TimesOf(
        OutputOf(TimeLimit + std::string("swipl -f none -g main -t halt '") + path + "' </dev/null"), base);
}

} // namespace ls::bench
