#pragma once

#include "base/Registry.h"
#include "base/Seams.h"

#include <functional>
#include <string>

namespace ls {

/// Shows the file selector in open mode at a start path, to pick a program. Returns the path, or an empty one
/// if the user cancels.
using AskForProgram = std::function<std::string(const std::string& startPath)>;

/// The path of a help page in the program's folder. The file's name may differ from `pageName` in letter
/// case. An empty `pageName` is the first page of the help.
[[nodiscard]] std::string HelpPagePath(const std::string& pageName, const Seams& seams);

/// Whether that page exists.
[[nodiscard]] bool HasHelpPage(const std::string& pageName, const Seams& seams);

/// Shows a help page in the registered web browser. If that fails, asks the user for a browser and tries once
/// more with it. The user's choice is not stored.
void ShowHelpPage(const std::string& pageName, const Seams& seams, Registry& registry,
                  const AskForProgram& askForProgram);

} // namespace ls
