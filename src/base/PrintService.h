#pragma once

#include "base/FileError.h"

#include <optional>
#include <string>

namespace ls {

/// What the system's printing service knows that the toolkit does not tell.
class PrintService
{
public:
    virtual ~PrintService() = default;

    /// What became of the job that this thread handed over last: an error with the service's own words when
    /// it was not taken.
    virtual FileError LastJob() { return {}; }

    /// Whether a printer's pages lie on their side by its own setting; nothing where the toolkit knows
    /// itself.
    virtual std::optional<bool> Landscape(const std::string& /*printer*/) { return std::nullopt; }

    /// Whether the toolkit tells the edges that cannot be printed on as those of an upright sheet, also for
    /// one that lies on its side.
    virtual bool TellsUprightEdges() { return false; }
};

} // namespace ls
