#pragma once

#include <string>
#include <vector>

namespace ls::test {

/// The requests of a DDE client. The names are UTF-8.
struct DdeRequest
{
    bool wide = false; ///< the client sends UTF-16; else the system's narrow code page
    std::string service;
    std::string topic;
    std::vector<std::string> commands; ///< sent one after the other, each after the answer to the one before
};

/// Sends execute strings through the system's DDE library. Returns the answer to each: "accepted", "refused",
/// or "error" with its number. Without such a server or topic the only answer is "no server".
///
/// The command "request NAME" requests an item, and "poke NAME" sends one.
[[nodiscard]] std::vector<std::string> AskByLibrary(const DdeRequest& request);

/// Like `AskByLibrary`, with window messages and no library. These distinguish the refusals "busy" and "not
/// processed".
[[nodiscard]] std::vector<std::string> AskByMessages(const DdeRequest& request);

} // namespace ls::test
