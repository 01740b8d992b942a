#pragma once

#include "check/Findings.h"
#include "check/RuleBase.h"

namespace ls {

/// The rules of `check` for one topic's logic, in groups. Each looks at one thing, and reports at the line of
/// the own block where the author can mend it.

/// The frame of the block: its tags, and what stands where nothing may stand.
void CheckBlockFrame(const RuleBase& base, Findings& findings);

/// The entries of the definitions: their tags, their places, the length of their texts.
void CheckEntries(const RuleBase& base, Findings& findings);

/// Commands: their words and arguments, blanks that became part of a name.
void CheckCommands(const RuleBase& base, Findings& findings);

/// The form of each rule line.
void CheckRuleForm(const RuleBase& base, Findings& findings);

/// Where questions are defined, and whether they are used.
void CheckQuestions(const RuleBase& base, Findings& findings);

/// The goal of the dialogue and its advice.
void CheckAdvice(const RuleBase& base, Findings& findings);

/// The values of variables, and names that the engine takes for one another.
void CheckValues(const RuleBase& base, Findings& findings);

/// Definitions that lead back to themselves.
void CheckCircles(const RuleBase& base, Findings& findings);

/// Rules that contradict themselves or stand in the way of one another.
void CheckOverlaps(const RuleBase& base, Findings& findings);

/// All of these.
void CheckBlock(const RuleBase& base, Findings& findings);

} // namespace ls
