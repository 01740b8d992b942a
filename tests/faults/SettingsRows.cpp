// The settings file: read at the start, written each time a book is opened or saved.

#include "FaultRow.h"

namespace ls::test {

namespace {

std::string Recent(const Settings& settings)
{
    std::string names = "recent";
    for (int i = 0; i < settings.RecentFileCount; ++i) {
        names += " " + settings.RecentFiles[static_cast<std::size_t>(i)];
    }
    return names;
}

// Writes settings of 1,000 records, of which ten are used: more than one block of the file.
void WriteLong(Desk& desk)
{
    std::string& ini = desk.files["/ini/LSAdvisor.INI"];
    ini = "LSADVISOR V5.3 INI\r\n[TOP10FILES]\r\n";
    for (int i = 1; i <= 1000; ++i) {
        ini += (i == 2 ? "'" + std::string(16384, 'x') + "\r\n" : "") + "*" + std::to_string(i) +
               "; NAME=/work/B" + std::to_string(i) + ".IDA\r\n";
    }
}

// Resets the settings as before the start of the program.
void Forget(Desk& desk)
{
    desk.global.settings = Settings{};
    desk.global.settings.IniDir = "/ini";
}

void Load(Desk& desk)
{
    LoadSettings(desk.global.settings, desk.seams);
    desk.shown = Recent(desk.global.settings);
}

void Save(Desk& desk)
{
    AddRecentFile(desk.global.settings, "/work/Book.IDA");
    SaveIniFile(desk.global.settings, desk.seams);
    desk.shown = Recent(desk.global.settings);
}

// Starts the program and opens a book.
void LoadAndSave(Desk& desk)
{
    Load(desk);
    Save(desk);
}

} // namespace

std::vector<FaultRow> SettingsRows()
{
    return {
        {"settingsLoad", Forget, Load, false, QuietSettings},
        {"settingsLoadLong",
         [](Desk& desk) {
             Forget(desk);
             WriteLong(desk);
         },
         LoadAndSave, false, QuietSettings},
        {"settingsSave", nullptr, Save, false, QuietSettings},
        {"settingsSaveFirst",
         [](Desk& desk) {
             desk.files.RemoveIfPossible("/ini/LSAdvisor.INI");
             desk.files.AddFolder("/ini");
         },
         Save},
        {"settingsSaveBesideRefused",
         [](Desk& desk) { desk.files["/ini/LSAdvisor.INI"] = "something else\r\n"; }, Save},
        {"settingsSaveAfterCrash", [](Desk& desk) { desk.files["/ini/LSAdvisor.INI.new"] = "half"; }, Save,
         false, QuietSettings},
    };
}

} // namespace ls::test
