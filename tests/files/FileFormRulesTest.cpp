#include "files/FileFormRules.h"

#include "reader/settings/Settings.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct FileFormRules : testing::Test
{
    test::TestSeams world;
    FileDialog dialog;
    Settings settings;

    FileFormView Load() { return LoadFileForm(dialog, settings, world.Get()); }
};

TEST_F(FileFormRules, load_openMode_fillsRecentFilesAndCaptions)
{
    settings.RecentFiles[0] = "/books/A.IDA";
    settings.RecentFiles[1] = "/books/B.IDA";
    settings.RecentFileCount = 2;
    dialog.FileMode = "R";
    dialog.FileFormTitle = "Pick a book";
    dialog.InitialFileName = "/books/A.IDA";
    dialog.DefaultFolder = "/books";
    dialog.FilePattern = "*.IDA";
    dialog.ShowSharing = true;
    const FileFormView view = Load();
    EXPECT_EQ(view.caption, "Lodestar Advisor Open");
    EXPECT_EQ(view.title, "Pick a book");
    EXPECT_EQ(dialog.FileFormTitle, "") << "each caller sets the title anew";
    EXPECT_EQ(view.defaultLabel, "Default folder: /books");
    EXPECT_EQ(view.recentFiles, (Strings{"/books/A.IDA", "/books/B.IDA"}));
    EXPECT_EQ(view.fileName, "/books/A.IDA");
    EXPECT_TRUE(view.showSharing);
    EXPECT_FALSE(view.showInfo);
    EXPECT_EQ(dialog.SearchSpec, "/books/*.IDA");
}

TEST_F(FileFormRules, load_saveMode_showsInfoAndNoRecentFiles)
{
    settings.RecentFiles[0] = "/books/A.IDA";
    settings.RecentFileCount = 1;
    dialog.FileMode = "W";
    dialog.InitialFileName = "Guide (001).IDA";
    const FileFormView view = Load();
    EXPECT_EQ(view.caption, "Lodestar Advisor Save");
    EXPECT_TRUE(view.showInfo);
    EXPECT_TRUE(view.recentFiles.empty());
    EXPECT_EQ(view.fileName, "Guide (001).IDA");
}

TEST_F(FileFormRules, load_emptyInputs_takeCurrentFolderAndAllFiles)
{
    dialog.FileMode = "R";
    const FileFormView view = Load();
    EXPECT_EQ(dialog.DefaultFolder, "/work");
    EXPECT_EQ(view.defaultLabel, "Default folder: /work");
    EXPECT_EQ(dialog.FilePattern, "*.*");
    EXPECT_EQ(dialog.SearchSpec, "/work/*.*");
}

TEST_F(FileFormRules, load_clearsTheAnswersOfLastTime)
{
    dialog.FileMode = "R";
    dialog.ChosenFile = "old";
    dialog.ChosenFullPath = "/old";
    dialog.FileFormOK = true;
    Load();
    EXPECT_EQ(dialog.ChosenFile + dialog.ChosenFullPath, "");
    EXPECT_FALSE(dialog.FileFormOK);
}

TEST_F(FileFormRules, load_otherMode_endsTheProgramWithoutAMessage)
{
    dialog.FileMode = "X";
    Load();
    EXPECT_TRUE(world.end.Ended());
    EXPECT_EQ(world.end.Reason(), "unknown mode of the file form");
    EXPECT_TRUE(world.messages.boxes.empty());
}

TEST_F(FileFormRules, accept_starOrPercent_isRefused)
{
    bool lock = false;
    for (const char* name : {"*.IDA", "50%.IDA"}) {
        EXPECT_FALSE(AcceptFileName(dialog, name, true, lock, world.Get()));
        EXPECT_EQ(world.messages.Take(),
                  (Strings{"exclamation|Lodestar Advisor|Sorry, you cannot include a wildcard "
                           "symbol in the filename."}));
        EXPECT_FALSE(dialog.FileFormOK);
        EXPECT_EQ(dialog.ChosenFile, "");
    }
}

TEST_F(FileFormRules, accept_questionMark_isLetThrough)
{
    bool lock = false;
    EXPECT_TRUE(AcceptFileName(dialog, "Wh?t.IDA", false, lock, world.Get()));
    EXPECT_EQ(dialog.ChosenFile, "Wh?t.IDA");
}

TEST_F(FileFormRules, accept_sharingShown_setsLockBook)
{
    bool lock = false;
    dialog.ShowSharing = true;
    EXPECT_TRUE(AcceptFileName(dialog, "A.IDA", true, lock, world.Get()));
    EXPECT_TRUE(lock);
    EXPECT_TRUE(AcceptFileName(dialog, "A.IDA", false, lock, world.Get()));
    EXPECT_FALSE(lock);
}

TEST_F(FileFormRules, accept_sharingHidden_leavesLockBook)
{
    bool lock = true;
    EXPECT_TRUE(AcceptFileName(dialog, "A.IDA", false, lock, world.Get()));
    EXPECT_TRUE(lock);
}

TEST_F(FileFormRules, accept_emptyName_isAcceptedWithEmptyAnswers)
{
    bool lock = false;
    EXPECT_TRUE(AcceptFileName(dialog, "", false, lock, world.Get()));
    EXPECT_TRUE(dialog.FileFormOK);
    EXPECT_EQ(dialog.ChosenFile + dialog.ChosenFullPath, "");
}

struct FullPathCase
{
    PathRules rules;
    const char* folder;
    const char* name;
    const char* expected;
};

TEST_F(FileFormRules, makeFullPath_bothRuleSets)
{
    const FullPathCase rows[] = {
        {WindowsPaths, "C:\\BOOKS", "C:\\BOOKS\\X.IDA", "C:\\BOOKS\\X.IDA"},
        {WindowsPaths, "C:\\BOOKS", "\\X.IDA", "\\X.IDA"},
        {WindowsPaths, "C:\\BOOKS", "X.IDA", "C:\\BOOKS\\X.IDA"},
        {WindowsPaths, "C:\\", "X.IDA", "C:\\X.IDA"},
        {WindowsPaths, "C:\\BOOKS", "D:X.IDA", "D:X.IDA"},
        {WindowsPaths, "", "X.IDA", "/work\\X.IDA"},
        {WindowsPaths, "C:\\BOOKS", "", ""},
        {UnixPaths, "/books", "X.IDA", "/books/X.IDA"},
        {UnixPaths, "/", "X.IDA", "/X.IDA"},
        {UnixPaths, "/books", "/X.IDA", "/X.IDA"},
        {UnixPaths, "/books", "a:b.IDA", "/books/a:b.IDA"},
        {UnixPaths, "", "X.IDA", "/work/X.IDA"},
        {UnixPaths, "/books", "", ""},
    };
    for (const FullPathCase& row : rows) {
        world.paths = row.rules;
        EXPECT_EQ(MakeFullPath(row.folder, row.name, world.Get()), row.expected)
            << row.folder << " " << row.name;
    }
}

struct BrowseCase
{
    PathRules rules;
    const char* defaultFolder;
    const char* picked;
    const char* expected;
};

TEST_F(FileFormRules, browse_fileBelowTheDefaultFolder_isNamedRelatively)
{
    const BrowseCase rows[] = {
        {WindowsPaths, "c:\\books", "C:\\BOOKS\\SUB\\Y.IDA", "SUB\\Y.IDA"},
        {WindowsPaths, "c:\\books\\", "C:\\BOOKS\\Y.IDA", "Y.IDA"},
        {WindowsPaths, "c:\\books", "C:\\OTHER\\Y.IDA", "C:\\OTHER\\Y.IDA"},
        {WindowsPaths, "c:\\books", "C:\\BOOKS2\\Y.IDA", "C:\\BOOKS2\\Y.IDA"},
        {UnixPaths, "/books", "/books/sub/y.ida", "sub/y.ida"},
        {UnixPaths, "/BOOKS", "/books/sub/y.ida", "sub/y.ida"}, // /BOOKS does not exist
        {UnixPaths, "/Both", "/both/y.ida", "/both/y.ida"},     // /Both exists too
        {UnixPaths, "", "/work/y.ida", "y.ida"},
        {UnixPaths, "/books", "/y.ida", "/y.ida"},
        {UnixPaths, "/books", "", "as it was"},
    };
    world.files.AddFolder("/Both");
    for (const BrowseCase& row : rows) {
        world.paths = row.rules;
        dialog.DefaultFolder = row.defaultFolder;
        dialog.ChosenFullPath = row.picked;
        std::string text = "as it was";
        TakeBrowsedFile(dialog, text, world.Get());
        EXPECT_EQ(text, row.expected) << row.defaultFolder << " " << row.picked;
    }
}

TEST_F(FileFormRules, pathOfChosenBook_browsedWithWorkDir_isTheFullPath)
{
    dialog.DefaultFolder = "/books";
    dialog.ChosenFullPath = "/books/sub/y.ida";
    std::string text;
    TakeBrowsedFile(dialog, text, world.Get());
    bool lock = false;
    ASSERT_TRUE(AcceptFileName(dialog, text, false, lock, world.Get()));
    EXPECT_EQ(PathOfChosenBook(dialog, "/books"), "/books/sub/y.ida");
    EXPECT_EQ(PathOfChosenBook(dialog, ""), "sub/y.ida");
    ASSERT_TRUE(AcceptFileName(dialog, "typed.ida", false, lock, world.Get()));
    EXPECT_EQ(PathOfChosenBook(dialog, "/books"), "typed.ida");
}

} // namespace
} // namespace ls
