#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/Text.h"
#include "reader/settings/IniFile.h"
#include "reader/settings/Settings.h"
#include "reader/settings/StatementReader.h"

namespace ls {

namespace {

constexpr std::string_view NameField = "NAME";

// Applies the statements of one settings file to the settings.
class SettingsLoader
{
public:
    SettingsLoader(Settings& settings, const Seams& seams) : m_settings(settings), m_seams(seams) {}

    // Applies one statement; false ends the loading.
    bool Take(const Statement& statement)
    {
        if (statement.Begins('\'')) {
            return true;
        }
        if (statement.Begins('[')) {
            return TakeSection(statement.text);
        }
        if (statement.Begins('*')) {
            return TakeRecordStart(statement.text);
        }
        TakeAssignment(statement);
        return true;
    }

private:
    bool TakeSection(const std::string& line)
    {
        if (line != RecentFilesSection) {
            m_seams.messages.MsgBox("LSAdvisor.INI contains invalid record type: " + FromPath(line),
                                    Icon::Critical);
            return false;
        }
        m_inSection = true;
        m_record = 0;
        return true;
    }

    bool TakeRecordStart(const std::string& statement)
    {
        if (!m_inSection) {
            return true;
        }
        const double number = LeadingNumber(std::string_view(statement).substr(1));
        if (number > Count16::Max || (number < 1 && m_record == Count16::Max)) {
            m_seams.messages.MsgBox("The input file contains too many records to load.", Icon::Critical);
            EndProgram(m_seams.end, "too many records in the settings file");
            return false;
        }
        m_record = number < 1 ? m_record + 1 : static_cast<int>(number);
        return true;
    }

    void TakeAssignment(const Statement& statement)
    {
        const std::size_t equals = statement.Find('=');
        const std::string field =
            equals == std::string::npos ? std::string() : statement.Part(0, equals).text;
        if (field.empty()) {
            m_seams.messages.MsgBox("Data file contains invalid assignment: " + FromPath(statement.text),
                                    Icon::Exclamation);
            return;
        }
        if (!m_inSection) {
            return;
        }
        if (field != NameField) {
            // Intended: the box shows the file's older name, which users know.
            m_seams.messages.MsgBox("LSIdeas.INI file contains invalid field name for Top10Files: " +
                                        FromPath(field),
                                    Icon::Warning);
            return;
        }
        if (m_settings.RecentFileCount < MaxRecentFiles) {
            const auto next = static_cast<std::size_t>(m_settings.RecentFileCount);
            m_settings.RecentFiles[next] = statement.Part(equals + 1).text;
            m_settings.RecentFileCount = m_settings.RecentFileCount + 1;
        }
    }

    Settings& m_settings;
    const Seams& m_seams;
    bool m_inSection = false;
    int m_record = 0;
};

} // namespace

void LoadSettings(Settings& settings, const Seams& seams)
{
    std::unique_ptr<BookFile> file;
    const std::string path = IniPath(seams.files, seams.paths, settings.IniDir);
    if (!seams.files.OpenForReading(path, Sharing::Shared, file).Ok()) {
        settings.ReadIncomplete = seams.files.Exists(path);
        return;
    }
    StatementReader reader(*file);
    std::string signature;
    reader.ReadLine(signature);
    if (!reader.Error().Ok()) {
        settings.ReadIncomplete = true;
        return; // treated like a file that cannot be opened
    }
    if (!IsIniSignature(signature)) {
        seams.messages.MsgBox("Failed to load LSADVISOR.INI due to invalid format or version.",
                              Icon::Warning);
        return;
    }
    settings.RecentFiles.fill({});
    settings.RecentFileCount = 0;
    SettingsLoader loader(settings, seams);
    Statement statement;
    while (reader.Next(statement) && loader.Take(statement)) {
    }
    settings.ReadIncomplete = !reader.Error().Ok();
}

} // namespace ls
