#pragma once

#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;
struct FileDialog;
struct Settings;
class BookCommands;
class MainView;

/// The Save command of the main window: the book in memory goes into a new file, which then is the open book.
///
/// No file is ever written over. Whatever fails, or is cancelled, before the new file stands under its name,
/// the open file, the edits, `BookPath` and `BookChanged` stay as they were.
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

/// The name that Save offers, as it stands in the file form: "Guide (001).IDA" for "Guide.IDA", and with its
/// folder where the book lies in another one than the form's default folder.
[[nodiscard]] std::string ProposedName(const Book& book, const Seams& seams);

} // namespace ls
