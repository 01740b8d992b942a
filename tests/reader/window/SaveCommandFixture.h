#pragma once

#include "base/Messages.h"
#include "files/FileFormRules.h"
#include "reader/window/MainFixture.h"
#include "reader/window/SaveCommand.h"

namespace ls {

/// The Save command on the main window's fixture, with the file form's own rules.
struct SaveCommandFixture : MainFixture
{
    SaveCommand save{book, global.settings, global.fileDialog, world.Get(), view, commands};
    FileFormView form; ///< what the file form showed last

    /// The user clicks Save, types that name into the file form and presses O.K.
    void SaveAs(const std::string& name)
    {
        view.onFileForm = [this, name] {
            form = LoadFileForm(global.fileDialog, global.settings, world.Get());
            AcceptFileName(global.fileDialog, name, false, book.LockBook, world.Get());
        };
        save.SaveItem_Click();
    }

    /// The user clicks Save and accepts the name that the form proposes.
    std::string SaveAsProposed()
    {
        view.onFileForm = [this] {
            form = LoadFileForm(global.fileDialog, global.settings, world.Get());
            AcceptFileName(global.fileDialog, form.fileName, false, book.LockBook, world.Get());
        };
        save.SaveItem_Click();
        return form.fileName;
    }

    /// Three topics, opened with a lock, the second one edited.
    void OpenEdited()
    {
        OpenThree();
        book.LockBook = true;
        book.TopicRecs(2).Text = "edited\r\n";
        book.BookChanged = true;
    }

    static constexpr const char* EditedBook =
        "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n[B]\r\nedited\r\n\r\n[C]\r\nc\r\n";

    /// After a save that failed, the book of `OpenEdited` is unchanged and can still be saved.
    void ExpectNothingLost()
    {
        EXPECT_EQ(book.BookPath, "/work/Book.IDA");
        EXPECT_TRUE(book.BookChanged);
        EXPECT_TRUE(book.LockBook);
        EXPECT_EQ(book.TopicCount, 3);
        EXPECT_EQ(book.TopicRecs(2).Text, "edited\r\n");
        EXPECT_EQ(OnShow(), "[A]|a");
        Boxes();
        SaveAs("/work/Again.IDA");
        EXPECT_EQ(Boxes(), Strings{"information|Lodestar Advisor|File saved"});
        EXPECT_EQ(world.files["/work/Again.IDA"], EditedBook);
    }
};

} // namespace ls
