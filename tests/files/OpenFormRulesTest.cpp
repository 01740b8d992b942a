#include "files/OpenFormRules.h"

#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using Outcome = OpenFormRules::Outcome;

struct FixedVolumes : Volumes
{
    std::vector<Volume> volumes;
    std::vector<Volume> List() override { return volumes; }
};

struct OpenFormRulesTest : testing::Test
{
    test::TestSeams world;
    FixedVolumes volumes;
    std::unique_ptr<OpenFormRules> selector;

    void SetUp() override
    {
        volumes.volumes = {{"/", "/"}, {"/home/anna", "/home/anna"}, {"/media/STICK", "/media/STICK"}};
        world.files["/work/Guide.IDA"] = "";
        world.files["/work/notes.txt"] = "";
        world.files["/work/.hidden.ida"] = "";
        world.files["/work/Sub/Deep.IDA"] = "";
        world.files["/home/anna/Own.IDA"] = "";
        world.files.AddFolder("/media/STICK");
    }

    void Load(const std::string& startPath, const std::string& mode = "R", const std::string& workDir = "")
    {
        selector = std::make_unique<OpenFormRules>(world.Get(), volumes, mode, workDir);
        selector->Load(startPath);
    }

    // The whole state as one text: "text|folder|files|folders|drive".
    [[nodiscard]] std::string State() const
    {
        std::string text = selector->Text() + "|" + selector->FolderPath() + "|";
        for (const std::string& file : selector->Files()) {
            text += file + " ";
        }
        text += "|";
        for (const FolderItem& folder : selector->Folders()) {
            text += std::string(static_cast<std::size_t>(folder.depth), '>') + folder.label +
                    (folder.open ? "* " : " ");
        }
        return text + "|" + std::to_string(selector->CurrentDrive());
    }
};

TEST_F(OpenFormRulesTest, load_folderWithPattern_listsIt)
{
    Load("/work/*.IDA");
    EXPECT_EQ(State(), "/work/*.IDA|/work|Guide.IDA |/* >work* >>Sub |0");
    EXPECT_FALSE(selector->OverwriteConfirmed());
}

TEST_F(OpenFormRulesTest, load_folderAlone_getsTheBookPattern)
{
    Load("/work/Sub");
    EXPECT_EQ(State(), "/work/Sub/*.IDA|/work/Sub|Deep.IDA |/* >work* >>Sub* |0");
    Load("/work/Sub/");
    EXPECT_EQ(selector->Text(), "/work/Sub/*.IDA");
}

TEST_F(OpenFormRulesTest, load_empty_takesWorkDirElseTheCurrentFolder)
{
    Load("", "R", "/home/anna");
    EXPECT_EQ(State(), "/home/anna/*.IDA|/home/anna|Own.IDA |/* >home* >>anna* |1");
    Load("");
    EXPECT_EQ(selector->Text(), "/work/*.IDA");
}

TEST_F(OpenFormRulesTest, load_patternAlone_listsTheCurrentFolder)
{
    Load("*.txt");
    EXPECT_EQ(State(), "/work/*.txt|/work|notes.txt |/* >work* >>Sub |0");
}

TEST_F(OpenFormRulesTest, load_root_staysTheRoot)
{
    Load("/");
    EXPECT_EQ(selector->Text(), "/*.IDA");
    EXPECT_EQ(selector->FolderPath(), "/");
}

TEST_F(OpenFormRulesTest, load_missingFolder_saysSoAndShowsTheCurrentOne)
{
    Load("/Gone/*.IDA");
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Sorry, you cannot choose /gone/ due to "
                       "error 76: Path not found"}));
    EXPECT_EQ(selector->FolderPath(), "/work");
    EXPECT_EQ(selector->Text(), "/work/*.*");
}

TEST_F(OpenFormRulesTest, ok_pattern_onlyChangesWhatIsListed)
{
    Load("/work/*.IDA");
    EXPECT_EQ(selector->OkClicked("*.txt"), Outcome::Stay);
    EXPECT_EQ(State(), "/work/*.txt|/work|notes.txt |/* >work* >>Sub |0");
    EXPECT_EQ(selector->OkClicked("/work/?otes.*"), Outcome::Stay);
    EXPECT_EQ(State(), "/work/?otes.*|/work|notes.txt |/* >work* >>Sub |0");
}

TEST_F(OpenFormRulesTest, ok_existingFile_isAcceptedInItsRealSpelling)
{
    Load("/work/*.IDA");
    EXPECT_EQ(selector->OkClicked("/WORK/GUIDE.ida"), Outcome::Accepted);
    EXPECT_EQ(selector->ChosenFullPath(), "/work/Guide.IDA");
    EXPECT_EQ(selector->OkClicked("guide.IDA"), Outcome::Accepted);
    EXPECT_EQ(selector->ChosenFullPath(), "/work/Guide.IDA");
    EXPECT_EQ(selector->OkClicked("Sub/Deep.IDA"), Outcome::Accepted)
        << "a relative folder is below the shown one";
    EXPECT_EQ(selector->ChosenFullPath(), "/work/Sub/Deep.IDA");
}

TEST_F(OpenFormRulesTest, ok_existingFileOutsideThePattern_isAccepted)
{
    Load("/work/*.IDA");
    EXPECT_EQ(selector->OkClicked("/work/notes.txt"), Outcome::Accepted);
    EXPECT_EQ(selector->OkClicked("/work/.hidden.ida"), Outcome::Accepted);
}

TEST_F(OpenFormRulesTest, ok_folderThatIsHidden_isNoFile)
{
    world.files["/work/.my.folder/Deep.IDA"] = "";
    Load("/work/*.IDA");
    EXPECT_EQ(selector->OkClicked("/work/.my.folder"), Outcome::Stay);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|File does not exist: /work/.my.folder"}));
}

TEST_F(OpenFormRulesTest, ok_twoNamesThatDifferInCase_takesTheOneSpelled)
{
    world.files["/work/guide.ida"] = "";
    Load("/work/*.IDA");
    EXPECT_EQ(selector->OkClicked("/work/guide.ida"), Outcome::Accepted);
    EXPECT_EQ(selector->ChosenFullPath(), "/work/guide.ida");
    EXPECT_EQ(selector->OkClicked("/work/Guide.IDA"), Outcome::Accepted);
    EXPECT_EQ(selector->ChosenFullPath(), "/work/Guide.IDA");
}

TEST_F(OpenFormRulesTest, ok_missingFileInOpenMode_staysAndNamesItInLowerCase)
{
    Load("/work/*.IDA");
    EXPECT_EQ(selector->OkClicked("/work/Missing.IDA"), Outcome::Stay);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|File does not exist: /work/missing.ida"}));
}

TEST_F(OpenFormRulesTest, ok_folderNameInOpenMode_isNoFile)
{
    Load("/work/*.IDA");
    EXPECT_EQ(selector->OkClicked("/work/Sub"), Outcome::Stay);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|File does not exist: /work/sub"}));
}

TEST_F(OpenFormRulesTest, ok_fileThatCameSinceTheListing_isFound)
{
    Load("/work/*.IDA");
    world.files["/work/New.IDA"] = "";
    EXPECT_EQ(selector->OkClicked("/work/New.IDA"), Outcome::Accepted);
}

TEST_F(OpenFormRulesTest, ok_newFileInSaveMode_isAcceptedAsTyped)
{
    Load("/work/*.IDA", "W");
    EXPECT_EQ(selector->OkClicked("/work/New.IDA"), Outcome::Accepted);
    EXPECT_EQ(selector->ChosenFullPath(), "/work/New.IDA");
    EXPECT_FALSE(selector->OverwriteConfirmed());
}

TEST_F(OpenFormRulesTest, ok_existingFileInSaveMode_asksBeforeOverwriting)
{
    Load("/work/*.IDA", "W");
    world.messages.replies = {Reply::Cancel};
    EXPECT_EQ(selector->OkClicked("/work/guide.ida"), Outcome::Stay);
    EXPECT_FALSE(selector->OverwriteConfirmed());
    world.messages.replies = {Reply::Ok};
    EXPECT_EQ(selector->OkClicked("/work/guide.ida"), Outcome::Accepted);
    EXPECT_TRUE(selector->OverwriteConfirmed());
    const std::string question = "question|Lodestar Advisor|File already exists.  Overwrite?|OKCancel";
    EXPECT_EQ(world.messages.Take(), (Strings{question, question}));
}

TEST_F(OpenFormRulesTest, folderRemovedWhileShown_namesTheErrorAndKeepsTheText)
{
    Load("/work/*.IDA");
    world.files.fail = [](const std::string& operation) {
        return operation == "list /work/Sub" ? error::PathNotFound : 0;
    };
    selector->FolderClicked(2);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Sorry, you cannot choose /work/sub/ due to "
                       "error 76: Path not found"}));
    EXPECT_EQ(State(), "/work/*.IDA|/work|Guide.IDA |/* >work* >>Sub |0");
}

TEST_F(OpenFormRulesTest, folderWithoutPermission_namesTheError)
{
    Load("/work/*.IDA");
    world.files.fail = [](const std::string& operation) {
        return operation == "list /home/anna" ? error::PermissionDenied : 0;
    };
    EXPECT_EQ(selector->OkClicked("/home/anna/*.IDA"), Outcome::Stay);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Sorry, you cannot choose /home/anna/ due "
                       "to error 70: Permission denied"}));
    EXPECT_EQ(selector->FolderPath(), "/work");
}

TEST_F(OpenFormRulesTest, folderClicked_showsItWithThePattern)
{
    Load("/work/*.txt");
    selector->FolderClicked(2);
    EXPECT_EQ(State(), "/work/Sub/*.txt|/work/Sub||/* >work* >>Sub* |0");
    selector->FolderClicked(0);
    EXPECT_EQ(selector->Text(), "/*.txt");
    selector->FolderClicked(99);
    EXPECT_EQ(selector->Text(), "/*.txt");
}

TEST_F(OpenFormRulesTest, fileClicked_writesItsPathAndDoubleClickAccepts)
{
    Load("/work/*.IDA");
    selector->FileClicked(0);
    EXPECT_EQ(selector->Text(), "/work/Guide.IDA");
    EXPECT_EQ(selector->ChosenFullPath(), "/work/*.IDA") << "not accepted yet";
    EXPECT_EQ(selector->FileDoubleClicked(0), Outcome::Accepted);
    EXPECT_EQ(selector->ChosenFullPath(), "/work/Guide.IDA");
}

TEST_F(OpenFormRulesTest, driveChanged_goesToItsRootWithThePattern)
{
    Load("/work/*.txt");
    selector->DriveChanged(1);
    EXPECT_EQ(State(), "/home/anna/*.txt|/home/anna||/* >home* >>anna* |1");
    selector->DriveChanged(2);
    EXPECT_EQ(selector->Text(), "/media/STICK/*.txt");
    EXPECT_EQ(selector->CurrentDrive(), 2);
}

TEST_F(OpenFormRulesTest, cancel_emptiesTheChosenPath)
{
    Load("/work/*.IDA");
    selector->Cancel();
    EXPECT_EQ(selector->ChosenFullPath(), "");
}

// The same rules with drives: the files of a Windows system, in memory under "/C:/...".
struct DriveFiles : test::MemoryFileSystem
{
    static std::string Inner(std::string path)
    {
        std::replace(path.begin(), path.end(), '\\', '/');
        return "/" + path;
    }
    FileError List(const std::string& folder, std::vector<FolderEntry>& entries) override
    {
        return MemoryFileSystem::List(Inner(folder.size() == 3 ? folder.substr(0, 2) : folder), entries);
    }
    bool Exists(const std::string& path) override { return MemoryFileSystem::Exists(Inner(path)); }
    std::string CurrentFolder() override { return "C:\\Books"; }
};

struct DriveSelectorTest : testing::Test
{
    test::TestSeams world;
    DriveFiles files;
    FixedVolumes volumes;
    std::unique_ptr<OpenFormRules> selector;

    void SetUp() override
    {
        volumes.volumes = {{"a:", "a:\\"}, {"c: [SYSTEM]", "C:\\Books"}, {"d:", "d:\\"}};
        files["/C:/Books/Guide.IDA"] = "";
        files["/C:/Books/Sub/Deep.IDA"] = "";
        files["/d:/Other.IDA"] = "";
        selector = std::make_unique<OpenFormRules>(
            Seams{files, world.messages, world.processes, world.end, WindowsPaths}, volumes, "R", "");
    }
};

TEST_F(DriveSelectorTest, load_noPath_selectsTheCurrentDrive)
{
    selector->Load("");
    EXPECT_EQ(selector->Text(), "C:\\Books\\*.IDA");
    EXPECT_EQ(selector->CurrentDrive(), 1);
    EXPECT_EQ(selector->Files(), (Strings{"Guide.IDA"}));
}

TEST_F(DriveSelectorTest, ok_otherDrive_switchesToIt)
{
    selector->Load("");
    EXPECT_EQ(selector->OkClicked("D:\\*.IDA"), Outcome::Stay);
    EXPECT_EQ(selector->CurrentDrive(), 2);
    EXPECT_EQ(selector->Files(), (Strings{"Other.IDA"}));
}

TEST_F(DriveSelectorTest, ok_pathWithoutDrive_isOnTheCurrentOne)
{
    selector->Load("");
    EXPECT_EQ(selector->OkClicked("\\Books\\Sub\\Deep.IDA"), Outcome::Accepted);
}

TEST_F(DriveSelectorTest, ok_driveNotReady_namesTheErrorAndFallsBack)
{
    selector->Load("");
    files.fail = [](const std::string& operation) {
        return operation == "list /a:" ? error::DiskNotReady : 0;
    };
    EXPECT_EQ(selector->OkClicked("A:\\X.IDA"), Outcome::Stay);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Sorry, you cannot choose drive a: due to "
                       "error 71: Disk not ready"}));
    EXPECT_EQ(selector->Text(), "C:\\Books\\*.IDA");
    EXPECT_EQ(selector->CurrentDrive(), 1);
}

TEST_F(DriveSelectorTest, ok_noSuchDrive_namesTheError)
{
    selector->Load("");
    EXPECT_EQ(selector->OkClicked("z:\\x.ida"), Outcome::Stay);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Sorry, you cannot choose drive z: due to "
                       "error 68: Device unavailable"}));
}

TEST_F(DriveSelectorTest, driveChanged_takesItsCurrentFolder)
{
    selector->Load("d:\\*.IDA");
    selector->DriveChanged(1);
    EXPECT_EQ(selector->Text(), "C:\\Books\\*.IDA");
    EXPECT_EQ(selector->CurrentDrive(), 1);
}

TEST_F(DriveSelectorTest, driveNotReadyOnPick_fallsBackWithoutClosing)
{
    selector->Load("");
    files.fail = [](const std::string& operation) {
        return operation == "list /a:" ? error::DiskNotReady : 0;
    };
    selector->DriveChanged(0);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Sorry, you cannot choose drive a: due to "
                       "error 71: Disk not ready"}));
    EXPECT_EQ(selector->CurrentDrive(), 1);
    EXPECT_EQ(selector->FolderPath(), "C:\\Books");
}

TEST_F(DriveSelectorTest, driveTextWithoutColon_getsOneOrBecomesC)
{
    volumes.volumes = {{"c", "C:\\Books"}};
    selector = std::make_unique<OpenFormRules>(
        Seams{files, world.messages, world.processes, world.end, WindowsPaths}, volumes, "R", "");
    selector->Load("");
    EXPECT_EQ(selector->OkClicked("Guide.IDA"), Outcome::Accepted);
    volumes.volumes = {{"cdisk", "C:\\Books"}};
    selector = std::make_unique<OpenFormRules>(
        Seams{files, world.messages, world.processes, world.end, WindowsPaths}, volumes, "R", "");
    selector->Load("C:\\Books\\*.IDA");
    world.messages.Take();
    EXPECT_EQ(selector->OkClicked("Guide.IDA"), Outcome::Accepted);
    EXPECT_EQ(world.messages.Take(),
              (Strings{"exclamation|Lodestar Advisor|Invalid disk name found.  We will use <<C:>>"}));
}

} // namespace
} // namespace ls
