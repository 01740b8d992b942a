#pragma once

#include "base/DdeServer.h"

#include <utility>

namespace ls::test {

/// Hands execute strings to whoever listens, as a carrier does.
class RecordingDde : public DdeServer
{
public:
    bool Start(Handler taken) override
    {
        handler = std::move(taken);
        return true;
    }
    void Stop() override { handler = nullptr; }

    Handler handler; ///< empty while nobody listens
};

} // namespace ls::test
