#include "Desk.h"

#include "support/TestSeams.h"

#include <algorithm>

namespace ls::test {

std::string DeskBook()
{
    return CrLf({
        "LODESTAR BOOK V5.3 /AUTHOR=\"Ann\" /URL=\"http://127.0.0.1/\" /POST=\"YES\"",
        "[A]",
        "a",
        "<XREF TOPIC=B>note</XREF>",
        "[B]",
        "b",
        "[Ask]",
        "Ask me.",
        "<IXML>",
        "<LOGIC>",
        "TARGET R",
        "DEFINE Y@More",
        "R(1)=X(1)Y(1)",
        "R(2)=X(2)Y(2)",
        "</LOGIC>",
        "<DEFINITIONS>",
        "<Q ID=R></Q>",
        "<Q ID=X>x?</Q>",
        "<AV ID=R(1)>One.</AV>",
        "<AV ID=R(2)>Two.</AV>",
        "</DEFINITIONS>",
        "</IXML>",
        "[More]",
        "<IXML>",
        "<LOGIC>",
        "Y(1)=Z(1)",
        "Y(2)=Z(2)",
        "</LOGIC>",
        "<DEFINITIONS>",
        "<Q ID=Y>y?</Q>",
        "<Q ID=Z>z?</Q>",
        "</DEFINITIONS>",
        "</IXML>",
        "[Other]",
        "other",
        "<IXML>",
        "not taken",
        "</IXML>",
    });
}

std::string AgreeingMessages::Take()
{
    return std::exchange(m_told, {});
}

Reply AgreeingMessages::ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string&)
{
    if (buttons == Buttons::Ok) {
        m_told += (m_told.empty() ? "" : " + ") + IconName(icon) + ": " + text;
    }
    return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Reply::Ok : Reply::Yes;
}

std::optional<std::string> AgreeingMessages::ShowInputBox(const std::string&, const std::string&,
                                                          const std::string& initial)
{
    return input.empty() ? initial : input;
}

Desk::Desk()
{
    files["/work/Book.IDA"] = DeskBook();
    files["/ini/LSAdvisor.INI"] = "LSADVISOR V5.3 INI\r\n[TOP10FILES]\r\n*1; NAME=/work/Old.IDA\r\n";
    global.settings.IniDir = "/ini";
    LoadSettings(global.settings, seams);
    registry.RegisterForUser(".HTM", "page", "/usr/bin/web");
}

void Desk::OpenBook()
{
    book.LockBook = true;
    book.BookPath = "/work/Book.IDA";
    commands.OpenAtStart();
    messages.Take();
}

void Desk::OpenLong()
{
    std::string text = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    for (int i = 0; i < 3; ++i) {
        text += "a\r\n" + std::string(20000, 'x') + "\r\n";
    }
    files["/work/Long.IDA"] = text + "z\r\n[B]\r\nb\r\n";
    book.LockBook = true;
    book.BookPath = "/work/Long.IDA";
    commands.OpenAtStart();
    messages.Take();
}

void Desk::OpenEdited()
{
    OpenBook();
    book.TopicRecs(2).Text = "edited\r\n";
    book.BookChanged = true;
}

void Desk::Open(const std::string& name)
{
    view.onFileForm = [this, name] { AcceptFileName(global.fileDialog, name, true, book.LockBook, seams); };
    commands.OpenItem_Click();
}

void Desk::SaveAs(const std::string& name)
{
    view.onFileForm = [this, name] { AcceptFileName(global.fileDialog, name, false, book.LockBook, seams); };
    save.SaveItem_Click();
}

std::string Desk::State() const
{
    std::string state = book.IsOpen() ? view.shownName : "no book";
    for (std::size_t i = 0; i < view.lines.size() && i < 3; ++i) {
        state += "|" + view.lines[i].substr(0, 10);
    }
    state += view.lines.size() > 3 ? "|of " + std::to_string(view.lines.size()) : "";
    state += view.advisorButton ? ", Advisor" : "";
    bool edited = false;
    for (int i = 1; i <= book.TopicCount; ++i) {
        edited = edited || !book.TopicRecs(i).Text.empty();
    }
    state += edited ? ", edited" : "";
    state += book.BookChanged ? ", unsaved" : "";
    state += shown.empty() ? "" : ", " + shown;
    state += end.Ended() ? ", the program ends" : "";
    return state;
}

Disk Desk::Files()
{
    return FilesOf(files, {"/work", "/ini"});
}

Disk FilesOf(MemoryFileSystem& files, const std::vector<std::string>& folders)
{
    Disk disk;
    for (const std::string& folder : folders) {
        std::vector<FolderEntry> entries;
        (void)files.List(folder, entries);
        for (const FolderEntry& entry : entries) {
            disk[entry.name] = files[folder + "/" + entry.name];
        }
    }
    return disk;
}

namespace {

// The word for a new or changed file. `whole` is its content after a run without errors.
std::string Fate(const std::string& bytes, const Disk& before, const std::string* whole)
{
    if (whole != nullptr) {
        const bool cut = whole->starts_with(bytes) && !bytes.ends_with('\n');
        return bytes == *whole ? "whole" : cut ? "cut" : "other";
    }
    const bool kept = std::any_of(before.begin(), before.end(),
                                  [&bytes](const auto& file) { return file.second == bytes; });
    return kept ? "kept" : "cut";
}

} // namespace

std::string Changes(const Disk& before, const Disk& after, const Disk& whole)
{
    Disk names = before;
    names.insert(after.begin(), after.end());
    std::string text;
    for (const auto& [name, bytes] : names) {
        const auto was = before.find(name);
        const auto is = after.find(name);
        const auto wanted = whole.find(name);
        if (is == after.end()) {
            text += ", " + name + " gone";
        } else if (was == before.end() || was->second != is->second) {
            text += ", " + name + " " +
                    Fate(is->second, before, wanted == whole.end() ? nullptr : &wanted->second);
        }
    }
    return text.empty() ? text : text.substr(2);
}

} // namespace ls::test
