#pragma once

#include "base/Volumes.h"

namespace ls {

/// The drives of a Windows system by their letters: "a:", "c: [SYSTEM]". Each opens its own current folder.
class WindowsVolumes : public Volumes
{
public:
    std::vector<Volume> List() override;
};

} // namespace ls
