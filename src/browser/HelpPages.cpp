#include "browser/HelpPages.h"

#include "base/FileSystem.h"
#include "base/FindSpelling.h"
#include "base/Messages.h"
#include "base/Processes.h"
#include "base/ProgramEnd.h"
#include "browser/APISubs.h"

namespace ls {

namespace {

constexpr const char* FirstPage = "Lodestar_Ideas.htm";

// On systems with drives, a program has a file type of its own; on others, it is in a common folder.
std::string WhereProgramsAre(const Seams& seams)
{
    return seams.paths.drives ? "*.exe" : "/usr/bin/*";
}

} // namespace

std::string HelpPagePath(const std::string& pageName, const Seams& seams)
{
    const std::string path =
        JoinPath(seams.paths, seams.processes.ProgramFolder(), pageName.empty() ? FirstPage : pageName);
    return FindSpelling(seams.files, seams.paths, path);
}

bool HasHelpPage(const std::string& pageName, const Seams& seams)
{
    return seams.files.Exists(HelpPagePath(pageName, seams));
}

void ShowHelpPage(const std::string& pageName, const Seams& seams, Registry& registry,
                  const AskForProgram& askForProgram)
{
    const std::string page = HelpPagePath(pageName, seams);
    std::string program = ".HTM";
    std::string document = page;
    if (LaunchProgram(seams, registry, program, document) >= 0 || seams.end.Ended()) {
        return;
    }
    if (seams.messages.MsgBox(
            "I need a web browser to display the information, but your registry does not have an "
            "unambiguous reference to a single browser. Do you want to help me find your web browser so "
            "that I can open it?",
            Icon::None, Buttons::YesNo) != Reply::Yes) {
        return;
    }
    program = askForProgram(WhereProgramsAre(seams));
    if (!program.empty() && !seams.end.Ended()) {
        document = page;
        LaunchProgram(seams, registry, program, document);
    }
}

} // namespace ls
