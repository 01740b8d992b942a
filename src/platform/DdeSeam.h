#pragma once

#include "base/DdeServer.h"

#include <memory>

namespace ls {

/// The door of the running system for execute strings from other programs.
[[nodiscard]] std::unique_ptr<DdeServer> MakeDdeServer();

} // namespace ls
