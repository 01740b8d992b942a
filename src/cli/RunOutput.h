#pragma once

namespace ls {

class JsonWriter;
struct CliEnvironment;
struct Run;

/// Writes a run as an object: its text, styles and colour, and whether it ends its row.
void WriteRun(JsonWriter& json, const Run& run);

/// Whether bold, italic, underline and colours may be written: to a terminal that shows them, unless the user
/// asked for none.
[[nodiscard]] bool ShowsStyles(const CliEnvironment& environment);

} // namespace ls
