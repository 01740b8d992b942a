#pragma once

#include "base/DdeServer.h"

#include <utility>

namespace ls::test {

/// Passes execute strings from the test to the started handler.
class RecordingDde : public DdeServer
{
public:
    bool Start(Handler taken) override
    {
        handler = std::move(taken);
        return true;
    }
    void Stop() override { handler = nullptr; }

    Handler handler; ///< empty until the server is started
};

} // namespace ls::test
