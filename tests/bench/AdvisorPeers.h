#pragma once

#include "bench/AdvisorBase.h"

#include <optional>
#include <string>
#include <vector>

namespace ls::bench {

/// What a rule engine measured of itself, in milliseconds by its own clock: CLIPS by (time), SWI-Prolog by
/// its CPU time.
struct PeerTimes
{
    double load = 0;     ///< until the rules are there
    double dialogue = 0; ///< until the last answer has had its consequences
};

/// One run of a rule engine of Debian on the same base, given the same answers in the same order. It ends
/// this program unless the engine comes to the base's advice; nothing when the engine is not installed.
/// The engine's programs are written to `folder` and stay there.
using Peer = std::optional<PeerTimes> (*)(const AdvisorBase& base, const std::vector<Setting>& answers,
                                          const std::string& folder);

/// CLIPS with a defrule for each rule, whose conditions are fact patterns such as (V01 LOW). Each answer is
/// asserted and followed by (run). It chooses no question.
std::optional<PeerTimes> ClipsRules(const AdvisorBase& base, const std::vector<Setting>& answers,
                                    const std::string& folder);

/// CLIPS with a fact for each rule and three defrules that work on them as the advisor works on its rules:
/// an answer removes the facts it contradicts and takes met conditions out of the others, and a fact without
/// conditions is the advice. It chooses no question.
std::optional<PeerTimes> ClipsFacts(const AdvisorBase& base, const std::vector<Setting>& answers,
                                    const std::string& folder);

/// SWI-Prolog with a clause for each rule, `av(r1) :- v01(low), ...`. Each answer is a fact added to the
/// program, the goal av(X) is tried again, and the open variable that most of the clauses not yet
/// contradicted wait for is chosen as the next to be asked.
std::optional<PeerTimes> Prolog(const AdvisorBase& base, const std::vector<Setting>& answers,
                                const std::string& folder);

} // namespace ls::bench
