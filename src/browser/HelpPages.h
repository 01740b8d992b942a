#pragma once

#include "base/Registry.h"
#include "base/Seams.h"

#include <functional>
#include <string>

namespace ls {

/// Shows the file selector in open mode at a start path, for a program; gives the path that was picked, empty
/// when the user cancels.
using AskForProgram = std::function<std::string(const std::string& startPath)>;

/// The real path of a help page in the program's folder, also when it is spelled in another case there;
/// `pageName` empty means the first page of the help.
[[nodiscard]] std::string HelpPagePath(const std::string& pageName, const Seams& seams);

/// Whether there is such a page to show.
[[nodiscard]] bool HasHelpPage(const std::string& pageName, const Seams& seams);

/// Shows a help page in the web browser that is registered for pages. Where that comes to nothing, the user
/// is asked to find a browser, and the page is shown once more with that; the choice is not kept.
void ShowHelpPage(const std::string& pageName, const Seams& seams, Registry& registry,
                  const AskForProgram& askForProgram);

} // namespace ls
