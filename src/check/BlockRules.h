#pragma once

#include "check/Findings.h"
#include "check/RuleBase.h"

#include <string>

namespace ls {

/// The rules of `check` for one topic's logic, in groups. Each rule checks one thing and reports it at a line
/// of the topic's own block, where the author can correct it.

/// "VAR(VALUE)" as messages name it, in UTF-8.
[[nodiscard]] std::string Fact(const std::string& var, const std::string& value);

/// The frame of the block: its tags, and text in places where none is allowed.
void CheckBlockFrame(const RuleBase& base, Findings& findings);

/// The entries of the definitions: their tags, their places and the length of their texts.
void CheckEntries(const RuleBase& base, Findings& findings);

/// Commands: their words and arguments, and blanks inside names.
void CheckCommands(const RuleBase& base, Findings& findings);

/// The form of each rule line.
void CheckRuleForm(const RuleBase& base, Findings& findings);

/// Where questions are defined, and whether they are used.
void CheckQuestions(const RuleBase& base, Findings& findings);

/// The goal of the dialogue and its advice.
void CheckAdvice(const RuleBase& base, Findings& findings);

/// The values of variables, and names that the engine confuses.
void CheckValues(const RuleBase& base, Findings& findings);

/// Definitions that lead back to themselves.
void CheckCircles(const RuleBase& base, Findings& findings);

/// Rules that contradict themselves or keep other rules from firing.
void CheckOverlaps(const RuleBase& base, Findings& findings);

/// All groups.
void CheckBlock(const RuleBase& base, Findings& findings);

} // namespace ls
