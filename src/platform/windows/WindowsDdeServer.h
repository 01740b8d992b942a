#pragma once

#include "base/DdeServer.h"

#include <windows.h>

#include <ddeml.h>

namespace ls {

/// Receives execute strings through the system's DDE library: service "Lodestar", topic "FileForm".
///
/// Requests arrive in the event loop of the thread that started the server; a refused one is answered "busy".
/// Several instances of the program may serve the name; the system chooses which one a client reaches.
class WindowsDdeServer : public DdeServer
{
public:
    WindowsDdeServer() = default;
    ~WindowsDdeServer() override { Stop(); }
    WindowsDdeServer(const WindowsDdeServer&) = delete;
    WindowsDdeServer& operator=(const WindowsDdeServer&) = delete;

    /// False also when this process has another started server.
    bool Start(Handler handler) override;
    void Stop() override;

private:
    static HDDEDATA CALLBACK Callback(UINT type, UINT format, HCONV conversation, HSZ topic, HSZ service,
                                      HDDEDATA data, ULONG_PTR first, ULONG_PTR second);

    [[nodiscard]] bool Register();
    [[nodiscard]] bool IsOurs(HSZ topic, HSZ service) const;
    [[nodiscard]] HDDEDATA Execute(HDDEDATA data) const;

    Handler m_handler;
    DWORD m_instance = 0; ///< the library's number for this server; 0 when stopped
    HSZ m_service = nullptr;
    HSZ m_topic = nullptr;
};

} // namespace ls
