#pragma once

#include "base/PrintService.h"

namespace ls {

/// The printing service of Linux, asked by way of its library where that is installed. The toolkit hands jobs
/// to the same library but keeps the answer to itself.
class CupsService : public PrintService
{
public:
    FileError LastJob() override;
    std::optional<bool> Landscape(const std::string& printer) override;
    bool TellsUprightEdges() override { return true; }
};

} // namespace ls
