#pragma once

#include "book/BookLoader.h"
#include "reader/window/BookCommands.h"
#include "reader/window/Global.h"
#include "reader/window/Navigation.h"
#include "reader/window/RecordingView.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls {

using Strings = std::vector<std::string>;

/// The rules of the main window on a recorded window and files in memory.
struct MainFixture : testing::Test
{
    test::TestSeams world;
    Global global;
    Book& book = global.book;
    test::RecordingView view;
    Navigation navigation{book, world.Get(), view};
    BookCommands commands{book, global.settings, global.fileDialog, world.Get(), view, navigation};

    /// The user chooses that file in the file form and presses O.K.
    void Choose(const std::string& name)
    {
        view.onFileForm = [this, name] {
            global.fileDialog.ChosenFile = name;
            global.fileDialog.FileFormOK = true;
        };
    }

    /// Puts a file of that content in place and opens it by the Open command.
    void Open(const std::string& bytes, const std::string& path = "/work/Book.IDA")
    {
        world.files[path] = bytes;
        Choose(path);
        commands.OpenItem_Click();
    }

    /// Topics "A", "B", "C" with the bodies "a", "b", "c".
    void OpenThree() { Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "[B]", "b", "[C]", "c"})); }

    /// What is on show: the topic's name and its lines.
    [[nodiscard]] std::string OnShow() const
    {
        std::string text = view.shownName;
        for (const std::string& line : view.lines) {
            text += "|" + line;
        }
        return text;
    }

    Strings Boxes() { return world.messages.Take(); }
};

} // namespace ls
