#pragma once

#include "base/FormSeams.h"
#include "base/Seams.h"

#include <string>

class QWidget;

namespace ls {

/// Shows the file selector over `parent`, in open mode at `startPath`, to pick a program. Returns the path,
/// or an empty one if the user cancels. `workDir` is the default folder.
std::string SelectProgram(QWidget* parent, const Seams& seams, const FormSeams& forms,
                          const std::string& workDir, const std::string& startPath);

} // namespace ls
