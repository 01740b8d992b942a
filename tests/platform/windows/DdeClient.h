#pragma once

#include <string>
#include <vector>

namespace ls::test {

/// What a DDE client asks for. The names are UTF-8.
struct DdeRequest
{
    bool wide = false; ///< the client speaks UTF-16, else the system's narrow code page
    std::string service;
    std::string topic;
    std::vector<std::string> commands; ///< sent one behind the other, each when the one before is answered
};

/// Sends execute strings through the system's DDE library and gives the answer to each: "accepted",
/// "refused", or "error" and its number. Where there is no such server or topic the only answer is "no
/// server".
///
/// A command "request NAME" asks for an item and "poke NAME" sends one instead.
[[nodiscard]] std::vector<std::string> AskByLibrary(const DdeRequest& request);

/// The same by window messages of its own, as programs did it before there was a library. These show how a
/// command was refused: "busy" or "not processed".
[[nodiscard]] std::vector<std::string> AskByMessages(const DdeRequest& request);

} // namespace ls::test
