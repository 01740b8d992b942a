#pragma once

namespace ls {

struct AdvisorEvent;
class CommandContext;
class JsonWriter;

/// Writes an event as an object of the list of events.
void WriteEvent(JsonWriter& json, const AdvisorEvent& event);

/// Writes an event for people. Boxes are not written here: they go to standard error.
void PrintEvent(CommandContext& context, const AdvisorEvent& event);

} // namespace ls
