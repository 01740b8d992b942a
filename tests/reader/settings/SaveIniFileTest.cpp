#include "reader/settings/SettingsFixture.h"

namespace ls {
namespace {

using test::CrLf;

TEST_F(SettingsTest, save_noRecentFiles_writesTheSignatureOnly)
{
    Save();
    EXPECT_EQ(world.files[Ini], "LSADVISOR V5.3 INI\r\n");
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(SettingsTest, save_recentFiles_writesOneRecordEach)
{
    SetRecent({"C:\\Books\\Guide.IDA", "/b/My Book (001).IDA"});
    Save();
    EXPECT_EQ(world.files[Ini], "LSADVISOR V5.3 INI\r\n[TOP10FILES]\r\n*1; NAME=C:\\Books\\Guide.IDA\r\n"
                                "*2; NAME=/b/My Book (001).IDA\r\n");
}

TEST_F(SettingsTest, save_specialCharacters_areEscaped)
{
    SetRecent({"/a;b", "/~u/c", "/d+", "/e+f", "/g~+"});
    Save();
    EXPECT_EQ(world.files[Ini], CrLf({Signature, "[TOP10FILES]", "*1; NAME=/a~;b", "*2; NAME=/~~u/c",
                                      "*3; NAME=/d~+", "*4; NAME=/e+f", "*5; NAME=/g~~~+"}));
}

TEST_F(SettingsTest, save_thenLoad_givesTheSamePaths)
{
    SetRecent({"/a;b~", "~", "/d+", "/+", "/x=y", "'q", "[z]", "*1", "/\xFF\xC3\x84", "/e;+"});
    const Strings before = Recent(settings);
    Save();
    Settings loaded;
    loaded.IniDir = "/ini";
    LoadSettings(loaded, world.Get());
    EXPECT_EQ(Recent(loaded), before);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(SettingsTest, save_blanksAtEitherEnd_areKept)
{
    SetRecent({" a.IDA", "/b ", " ", "  c  "});
    const Strings before = Recent(settings);
    Save();
    EXPECT_EQ(world.files[Ini], CrLf({Signature, "[TOP10FILES]", "*1; NAME=~ a.IDA", "*2; NAME=/b~ ;",
                                      "*3; NAME=~ ;", "*4; NAME=~  c ~ ;"}));
    Settings loaded;
    loaded.IniDir = "/ini";
    LoadSettings(loaded, world.Get());
    EXPECT_EQ(Recent(loaded), before);
}

TEST_F(SettingsTest, save_pathWithLineEnd_isLeftOut)
{
    SetRecent({"/a\nb", "/c\rd", "/e"});
    Save();
    EXPECT_EQ(world.files[Ini], CrLf({Signature, "[TOP10FILES]", "*3; NAME=/e"}));
}

TEST_F(SettingsTest, save_existingFile_isReplacedInOneStep)
{
    world.files[Ini] = CrLf({Signature, "[TOP10FILES]", "*1; NAME=old"});
    SetRecent({"new"});
    Save();
    EXPECT_EQ(world.files[Ini], CrLf({Signature, "[TOP10FILES]", "*1; NAME=new"}));
    EXPECT_FALSE(world.files.Has("/ini/LSAdvisor.INI.new"));
    EXPECT_FALSE(world.files.Has("/ini/LSAdvisor.INI.bak"));
    EXPECT_EQ(world.files.log.back(), "rename /ini/LSAdvisor.INI.new /ini/LSAdvisor.INI");
}

TEST_F(SettingsTest, save_fileInOtherCase_isTheOneReplaced)
{
    world.files["/ini/LSADVISOR.INI"] = CrLf({Signature});
    settings.IniDir = "/Ini";
    SetRecent({"a"});
    Save();
    EXPECT_EQ(world.files["/ini/LSADVISOR.INI"], CrLf({Signature, "[TOP10FILES]", "*1; NAME=a"}));
    EXPECT_FALSE(world.files.Has(Ini));
}

TEST_F(SettingsTest, save_folderInOtherCase_getsItsFirstFile)
{
    settings.IniDir = "/Ini";
    Save();
    EXPECT_TRUE(world.files.Has(Ini));
}

TEST_F(SettingsTest, save_noFolderGiven_writesIntoTheCurrentOne)
{
    settings.IniDir.clear();
    Save();
    EXPECT_TRUE(world.files.Has("/work/LSAdvisor.INI"));
}

TEST_F(SettingsTest, save_refusedFile_isKeptBeside)
{
    world.files[Ini] = "LSADVISOR V5.4 INI\r\nprecious";
    Save();
    EXPECT_EQ(world.files["/ini/LSAdvisor.INI.bak"], "LSADVISOR V5.4 INI\r\nprecious");
    EXPECT_EQ(world.files[Ini], CrLf({Signature}));
    SetRecent({"a"});
    Save(); // this version wrote the file, so no second backup
    EXPECT_EQ(world.files["/ini/LSAdvisor.INI.bak"], "LSADVISOR V5.4 INI\r\nprecious");
    EXPECT_FALSE(world.files.Has("/ini/LSAdvisor.INI.bak2"));
}

TEST_F(SettingsTest, save_refusedFileAndAnEarlierBackup_keepsBoth)
{
    world.files["/ini/LSAdvisor.INI.bak"] = "first";
    world.files[Ini] = "second";
    Save();
    EXPECT_EQ(world.files["/ini/LSAdvisor.INI.bak"], "first");
    EXPECT_EQ(world.files["/ini/LSAdvisor.INI.bak2"], "second");
    EXPECT_EQ(world.files[Ini], CrLf({Signature}));
}

TEST_F(SettingsTest, save_fileThatCannotBeOpened_isKeptBeside)
{
    world.files[Ini] = CrLf({Signature, "[TOP10FILES]", "*1; NAME=unseen"});
    FailAt("open", error::PermissionDenied);
    Save();
    EXPECT_EQ(world.files["/ini/LSAdvisor.INI.bak"], CrLf({Signature, "[TOP10FILES]", "*1; NAME=unseen"}));
    EXPECT_EQ(world.files[Ini], CrLf({Signature}));
}

} // namespace
} // namespace ls
