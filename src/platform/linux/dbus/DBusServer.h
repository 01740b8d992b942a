#pragma once

#include "base/DdeServer.h"

#include <memory>

namespace ls {

/// Receives execute strings over the session bus: name `org.lodestar.Advisor`, object `/FileForm`, method
/// `Execute(s)`.
///
/// Without a bus, or when another instance owns the name, `Start` returns false and nothing else changes.
class DBusServer : public DdeServer
{
public:
    DBusServer();
    ~DBusServer() override;

    bool Start(Handler handler) override;
    void Stop() override;

private:
    class Link;
    std::unique_ptr<Link> m_link;
};

} // namespace ls
