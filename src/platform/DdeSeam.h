#pragma once

#include "base/DdeServer.h"

#include <memory>

namespace ls {

/// The running system's receiver of execute strings from other programs.
[[nodiscard]] std::unique_ptr<DdeServer> MakeDdeServer();

} // namespace ls
