#pragma once

#include "bench/AdvisorBase.h"

#include <optional>
#include <string>
#include <vector>

namespace ls::bench {

/// The times that a rule engine measured itself, in milliseconds: CLIPS by (time), SWI-Prolog by its CPU
/// time.
struct PeerTimes
{
    double load = 0;     ///< until the rules are loaded
    double dialogue = 0; ///< until the engine has worked out the last answer
};

/// Runs a rule engine of Debian on the base with these answers in this order; nothing if it is not installed.
/// Ends this program unless the engine finds the base's advice. The engine's programs stay in `folder`.
using Peer = std::optional<PeerTimes> (*)(const AdvisorBase& base, const std::vector<Setting>& answers,
                                          const std::string& folder);

/// CLIPS with a defrule for each rule, whose conditions are fact patterns such as (V01 LOW). Each answer is
/// asserted and followed by (run). It chooses no question.
std::optional<PeerTimes> ClipsRules(const AdvisorBase& base, const std::vector<Setting>& answers,
                                    const std::string& folder);

/// CLIPS with a fact for each rule, and three defrules that treat these facts as the advisor treats its
/// rules. An answer removes the facts that it contradicts, and removes met conditions from the others. A fact
/// without conditions is the advice. The engine chooses no question.
std::optional<PeerTimes> ClipsFacts(const AdvisorBase& base, const std::vector<Setting>& answers,
                                    const std::string& folder);

/// SWI-Prolog with a clause for each rule, `av(r1) :- v01(low), ...`. Each answer is added as a fact, and the
/// goal av(X) is tried again. The next question is the open variable in most of the clauses that no answer
/// contradicts.
std::optional<PeerTimes> Prolog(const AdvisorBase& base, const std::vector<Setting>& answers,
                                const std::string& folder);

} // namespace ls::bench
