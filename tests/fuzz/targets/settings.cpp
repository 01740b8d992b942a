// Reads the settings file and writes it again.

#include "reader/settings/Settings.h"
#include "World.h"
#include "base/Text.h"
#include "reader/settings/IniFile.h"

#include <algorithm>

namespace ls::fuzz {

namespace {

std::vector<std::string> Recent(const Settings& settings)
{
    return {settings.RecentFiles.begin(), settings.RecentFiles.begin() + settings.RecentFileCount};
}

/// A character of a statement, and whether an escape makes it an ordinary character.
struct Mark
{
    char c = 0;
    bool escaped = false;
};

using Marks = std::vector<Mark>;

Marks Trimmed(Marks marks)
{
    const auto blank = [](const Mark& mark) { return mark.c == ' ' && !mark.escaped; };
    while (!marks.empty() && blank(marks.back())) {
        marks.pop_back();
    }
    marks.erase(marks.begin(), std::find_if_not(marks.begin(), marks.end(), blank));
    return marks;
}

std::string TextOf(const Marks& marks)
{
    std::string text;
    for (const Mark& mark : marks) {
        text += mark.c;
    }
    return text;
}

// The lines after the first one that are not empty, trimmed. CR, LF and CR LF end a line.
std::vector<std::string> FilledLines(const std::string& file)
{
    std::vector<std::string> lines(1);
    bool first = true;
    for (std::size_t i = 0; i < file.size(); ++i) {
        if (file[i] == '\r' || file[i] == '\n') {
            i += file[i] == '\r' && i + 1 < file.size() && file[i + 1] == '\n' ? 1 : 0;
            first = false;
            lines.emplace_back();
        } else if (!first) {
            lines.back() += file[i];
        }
    }
    for (std::string& line : lines) {
        line = std::string(Trim(line));
    }
    lines.erase(std::remove(lines.begin(), lines.end(), ""), lines.end());
    return lines;
}

// The statements of a settings file, by a plain reading.
std::vector<Marks> PlainStatements(const std::string& file)
{
    std::vector<Marks> statements(1);
    for (const std::string& line : FilledLines(file)) {
        bool joined = false;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const bool last = i + 1 == line.size();
            if (line[i] == '~') {
                if (!last) {
                    statements.back().push_back({line[++i], true});
                }
            } else if (line[i] == ';') {
                statements.emplace_back();
            } else if (line[i] == '+' && last) {
                joined = true;
            } else {
                statements.back().push_back({line[i], false});
            }
        }
        if (!joined) {
            statements.emplace_back();
        }
    }
    return statements;
}

// The recent files that a file names, by a plain reading.
std::vector<std::string> PlainRecent(const std::string& file)
{
    std::vector<std::string> recent;
    bool inSection = false;
    int record = 0;
    for (const Marks& untrimmed : PlainStatements(file)) {
        const Marks statement = Trimmed(untrimmed);
        const char first = statement.empty() || statement[0].escaped ? ' ' : statement[0].c;
        const auto equals = std::find_if(statement.begin(), statement.end(),
                                         [](const Mark& mark) { return mark.c == '=' && !mark.escaped; });
        if (first == '[') {
            if (TextOf(statement) != RecentFilesSection) {
                break;
            }
            inSection = true;
            record = 0;
        } else if (first == '*') {
            const double number = LeadingNumber(TextOf(statement).substr(1));
            if (inSection && (number > 32767 || (number < 1 && record == 32767))) {
                break;
            }
            record = number < 1 ? record + 1 : static_cast<int>(std::min(number, 32767.0));
        } else if (first != '\'' && equals != statement.end() && inSection && recent.size() < 10 &&
                   TextOf(Trimmed({statement.begin(), equals})) == "NAME") {
            recent.push_back(TextOf(Trimmed({equals + 1, statement.end()})));
        }
    }
    return recent;
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
    if (IsIniSignature(Trim(file.substr(0, file.find_first_of("\r\n"))))) {
        RequireEqual(Recent(settings), PlainRecent(file), "the files are those of a plain reading");
    }
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
