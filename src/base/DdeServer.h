#pragma once

#include <functional>
#include <string>

namespace ls {

/// Receives execute strings such as "PUSH OKButton" from other programs.
class DdeServer
{
public:
    /// Handles an execute string; false refuses it.
    using Handler = std::function<bool(const std::string&)>;

    virtual ~DdeServer() = default;

    /// Starts to receive execute strings. False when the name is taken or no other program can be reached;
    /// this is no error.
    virtual bool Start(Handler handler) = 0;

    virtual void Stop() = 0;
};

} // namespace ls
