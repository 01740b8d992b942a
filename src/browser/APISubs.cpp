#include "browser/APISubs.h"

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/Processes.h"
#include "base/Quoted.h"
#include "browser/ProgramPath.h"

namespace ls {

namespace {

bool HasValue(RegistryKey& key, const std::string& valueName)
{
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    return key.QueryType(valueName, type, size);
}

// Shows the message, then ends the program with it.
std::string EndWith(const Seams& seams, const std::string& text)
{
    seams.messages.MsgBox(text, Icon::Critical);
    EndProgram(seams.end, text);
    return {};
}

// The program that the registry names for a file type; empty if none.
std::string RegisteredProgram(const Seams& seams, Registry& registry, const std::string& fileType)
{
    const std::string fileClass = RegGetString(seams, registry, "SOFTWARE\\Classes\\" + fileType, "");
    if (fileClass.empty()) {
        return {};
    }
    return ProgramOfCommand(
        RegGetString(seams, registry, "SOFTWARE\\Classes\\" + fileClass + "\\shell\\open\\command", ""));
}

// Shows a message about a variable that could not be expanded. If the program came from the registry, the
// message names that file type.
void TellExpansion(const Seams& seams, const Expansion& expansion, const std::string& progSpec,
                   const std::string& keptSpec)
{
    std::string text = expansion.result == Expansion::Result::Malformed
                           ? "Error due to invalid program name " + InAngles(progSpec)
                           : "Error due to undefined symbolic name " + InAngles(expansion.name);
    text += ". ";
    if (keptSpec.starts_with('.')) {
        text += "Check your registry settings for " + InAngles(keptSpec) + ".";
    }
    seams.messages.MsgBox(text, Icon::Exclamation);
}

std::int16_t StartCommandLine(const Seams& seams, const std::string& commandLine)
{
    const Processes::Started started = seams.processes.Start(commandLine);
    if (!started.error.Ok()) {
        // Intended: a positive number has a blank in place of a minus sign, so the user reads "Error # 53".
        const int number = started.error.number;
        seams.messages.MsgBox("Error #" + std::string(number < 0 ? "" : " ") + std::to_string(number) +
                                  " on command line " + InAngles(commandLine) +
                                  " because of: " + started.error.description,
                              Icon::Exclamation);
        return launch::StartFailed;
    }
    if (started.taskId == 0) {
        seams.messages.MsgBox("Failed to start program with command line: " + InAngles(commandLine),
                              Icon::Exclamation);
        return launch::StartFailed;
    }
    return launch::Started;
}

} // namespace

std::string RegGetString(const Seams& seams, Registry& registry, const std::string& keyPath,
                         const std::string& valueName)
{
    if (seams.end.Ended()) {
        return {};
    }
    std::unique_ptr<RegistryKey> key = registry.Open(Registry::Root::CurrentUser, keyPath);
    // Some installers leave the user a key without the value. The machine's key is used then.
    if (!key || !HasValue(*key, valueName)) {
        std::unique_ptr<RegistryKey> machine = registry.Open(Registry::Root::LocalMachine, keyPath);
        key = machine ? std::move(machine) : std::move(key);
    }
    if (!key) {
        seams.messages.MsgBox("Failed to open registry key " + InAngles("HKEY_LOCAL_MACHINE\\" + keyPath) +
                                  ". You may typed an invalid filetype, or you do not have an appropriate "
                                  "viewer program registered on your computer.",
                              Icon::Critical);
        return {};
    }
    return RegQueryString(seams, *key, valueName);
}

std::string RegQueryString(const Seams& seams, RegistryKey& key, const std::string& valueName)
{
    if (seams.end.Ended()) {
        return {};
    }
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    if (!key.QueryType(valueName, type, size)) {
        return EndWith(seams, "Failed to find registry value for: " + valueName + " Program exiting.");
    }
    if (type != RegSz && type != RegExpandSz) {
        return EndWith(seams, "Registry value for: " + valueName + " is not text.  Program exiting.");
    }
    std::string buffer(size, ' ');
    if (!key.QueryText(valueName, buffer)) {
        return EndWith(seams, "Failed to return a value for: " + valueName + " Program Exiting.");
    }
    return buffer.substr(0, size > 0 ? size - 1 : 0);
}

std::int16_t LaunchProgram(const Seams& seams, Registry& registry, std::string& progSpec,
                           std::string& document)
{
    if (seams.end.Ended()) {
        return launch::StartFailed;
    }
    const std::string keptSpec = progSpec;
    if (progSpec.starts_with('.')) {
        const std::string program = RegisteredProgram(seams, registry, progSpec);
        if (program.empty()) {
            return launch::NoProgram;
        }
        progSpec = program;
    }
    if (!document.empty()) {
        document = QuotedIfBlank(FullDocument(seams.paths, seams.files.CurrentFolder(), document));
    }
    if (const Expansion expansion = ExpandVariables(seams.processes, progSpec);
        expansion.result != Expansion::Result::Done) {
        TellExpansion(seams, expansion, progSpec, keptSpec);
        return launch::BadVariable;
    }
    progSpec = QuotedIfBlank(progSpec);
    return StartCommandLine(seams, document.empty() ? progSpec : progSpec + " " + document);
}

} // namespace ls
