#pragma once

#include <functional>
#include <string>

namespace ls {

/// The door through which other programs send execute strings such as "PUSH OKButton".
class DdeServer
{
public:
    /// Takes an execute string; false refuses it.
    using Handler = std::function<bool(const std::string&)>;

    virtual ~DdeServer() = default;

    /// Begins to take execute strings; false when the name is taken or there is nobody to talk to. The
    /// program works without.
    virtual bool Start(Handler handler) = 0;

    virtual void Stop() = 0;
};

} // namespace ls
