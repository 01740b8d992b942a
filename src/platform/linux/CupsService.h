#pragma once

#include "base/PrintService.h"

namespace ls {

/// The printing service of Linux, called through its library if that is installed. The toolkit hands jobs to
/// the same library but does not pass on the results.
class CupsService : public PrintService
{
public:
    FileError LastJob() override;
    std::optional<bool> Landscape(const std::string& printer) override;
    bool TellsUprightEdges() override { return true; }
};

} // namespace ls
