#pragma once

#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;
struct FileDialog;
struct Settings;
class BookCommands;
class MainView;

/// The Save command of the main window: saves the book in memory into a new file and opens that file.
///
/// It never overwrites a file. If it fails or is cancelled before the new file has its name, the open file,
/// the edits, `BookPath` and `BookChanged` do not change.
class SaveCommand
{
public:
    SaveCommand(Book& book, Settings& settings, FileDialog& dialog, const Seams& seams, MainView& view,
                BookCommands& commands)
        : m_book(book), m_settings(settings), m_dialog(dialog), m_seams(seams), m_view(view),
          m_commands(commands)
    {
    }

    void SaveItem_Click();

private:
    [[nodiscard]] bool MaySave();
    [[nodiscard]] bool AskForName();
    void OfferType();
    [[nodiscard]] bool IsFree(const std::string& path);
    [[nodiscard]] bool Write(const std::string& path);

    Book& m_book;
    Settings& m_settings;
    FileDialog& m_dialog;
    Seams m_seams;
    MainView& m_view;
    BookCommands& m_commands;
};

/// The name that Save offers in the file form: "Guide (001).IDA" for "Guide.IDA". It includes the folder if
/// that is not the form's default folder.
[[nodiscard]] std::string ProposedName(const Book& book, const Seams& seams);

} // namespace ls
