// Reading the settings file and writing it again.

#include "reader/Settings.h"
#include "World.h"
#include "reader/IniFile.h"

#include <algorithm>

namespace ls::fuzz {

namespace {

std::vector<std::string> Recent(const Settings& settings)
{
    return {settings.RecentFiles.begin(), settings.RecentFiles.begin() + settings.RecentFileCount};
}

} // namespace

void TestInput(Input& input)
{
    World world(input);
    const std::string text = input.Text();
    const std::string file =
        input.Choose(2) == 0 && !IsIniSignature(text.substr(0, text.find_first_of("\r\n")))
            ? std::string(IniSignature) + "\r\n[TOP10FILES]\r\n" + text
            : text;
    const std::string path = "/work/" + std::string(IniFileName);
    world.files[path] = file;
    Settings settings;
    LoadSettings(settings, world.Get());
    Require(settings.RecentFileCount >= 0 && settings.RecentFileCount <= MaxRecentFiles, "ten files at most");
    for (const std::string& added : input.Lines()) {
        if (input.Choose(2) == 1 && !added.empty() && added.find('\r') == std::string::npos) {
            AddRecentFile(settings, added);
        }
    }
    const std::vector<std::string> recent = Recent(settings);
    world.end = {};
    SaveIniFile(settings, world.Get());
    const std::string saved = world.files[path];
    Settings again;
    const std::size_t boxes = world.messages.texts.size();
    LoadSettings(again, world.Get());
    Require(world.messages.texts.size() == boxes, "what was saved loads without a message");
    RequireEqual(Recent(again), recent, "the files read back as they were");
    SaveIniFile(again, world.Get());
    RequireEqual(world.files[path], saved, "saved again, the settings are the same bytes");
}

} // namespace ls::fuzz
