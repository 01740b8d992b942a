#pragma once

namespace ls {

class JsonWriter;
struct CliEnvironment;
struct Run;

/// Writes a run as an object: its text, styles and colour, and whether it ends its row.
void WriteRun(JsonWriter& json, const Run& run);

/// Whether to write bold, italic, underline and colours: on a terminal that can show them, unless the user
/// turned them off.
[[nodiscard]] bool ShowsStyles(const CliEnvironment& environment);

} // namespace ls
