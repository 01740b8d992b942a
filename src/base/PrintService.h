#pragma once

#include "base/FileError.h"

#include <optional>
#include <string>

namespace ls {

/// What the system's printing service knows and the toolkit does not report.
class PrintService
{
public:
    virtual ~PrintService() = default;

    /// The result of the last job that this thread handed over. A refused job gives an error with the
    /// service's own words.
    virtual FileError LastJob() { return {}; }

    /// Whether the printer's own setting is landscape; nothing when the toolkit knows it itself.
    virtual std::optional<bool> Landscape(const std::string& /*printer*/) { return std::nullopt; }

    /// Whether the toolkit reports unprintable edges for the upright sheet even when the sheet is landscape.
    virtual bool TellsUprightEdges() { return false; }
};

} // namespace ls
