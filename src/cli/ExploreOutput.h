#pragma once

#include <string>

namespace ls {

class CommandContext;
struct AdvisorCoverage;

/// Writes the outcome of all dialogues of a topic, for people or as JSON. The title is UTF-8.
void WriteCoverage(CommandContext& context, const std::string& title, const AdvisorCoverage& coverage);

} // namespace ls
