#pragma once

namespace ls {

struct AdvisorEvent;
class CommandContext;
class JsonWriter;

/// Writes an event as an object in the list of events.
void WriteEvent(JsonWriter& json, const AdvisorEvent& event);

/// Writes an event for people. Boxes go to standard error and are not written here.
void PrintEvent(CommandContext& context, const AdvisorEvent& event);

} // namespace ls
