#include "files/RemoteCommands.h"

#include "support/RowName.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using Action = RemoteCommands::Action;

constexpr const char* M1 = "exclamation|Lodestar Advisor|Invalid DDE command received.  Use a command to "
                           "Lodestar|FileForm as explained in the technical section of the online help.";
constexpr const char* M2 = "exclamation|Lodestar Advisor|Invalid DDE PUSH command received.  Use a command "
                           "toLodestar|FileForm in the format <<PUSH controlname>>.";

struct CommandCase
{
    const char* name;
    const char* command;
    Action action;
    Strings boxes;
    bool staysPending;
};

struct CommandTable : testing::TestWithParam<CommandCase>
{
};

TEST_P(CommandTable, timer_command_actsOrSaysWhy)
{
    test::TestSeams world;
    RemoteCommands commands;
    EXPECT_TRUE(commands.LinkExecute(GetParam().command));
    EXPECT_TRUE(commands.TimerEnabled());
    EXPECT_EQ(commands.Timer(true, world.messages), GetParam().action);
    EXPECT_FALSE(commands.TimerEnabled());
    EXPECT_EQ(world.messages.Take(), GetParam().boxes);
    EXPECT_EQ(!commands.DdeCommand().empty(), GetParam().staysPending);
    EXPECT_EQ(commands.LinkExecute("PUSH OKButton"), !GetParam().staysPending);
}

const CommandCase CommandCases[] = {
    {"ok", "PUSH OKButton", Action::PushOk, {}, false},
    {"lowerCase", "push okbutton", Action::PushOk, {}, false},
    {"cancel", "Push cancelButton", Action::PushCancel, {}, false},
    {"browse", "PUSH BrowseButton", Action::PushBrowse, {}, false},
    {"twoBlanks_unknownControl", "PUSH  OKBUTTON", Action::None, {M2}, false},
    {"trailingBlank_unknownControl", "PUSH OKBUTTON ", Action::None, {M2}, false},
    {"otherControl", "PUSH HelpButton", Action::None, {M2}, false},
    {"blankAndNothing", "PUSH ", Action::None, {M2}, false},
    {"pushAlone_blocksLaterOnes", "PUSH", Action::None, {M1}, true},
    {"otherVerb_blocksLaterOnes", "PRESS OKButton", Action::None, {M1}, true},
    {"leadingBlank_blocksLaterOnes", " PUSH OKButton", Action::None, {M1}, true},
    {"empty_isNothing", "", Action::None, {}, false},
};

INSTANTIATE_TEST_SUITE_P(Commands, CommandTable, testing::ValuesIn(CommandCases), test::RowName());

TEST(RemoteCommands, linkExecute_whileOnePends_isRefusedAndTheFirstStands)
{
    test::TestSeams world;
    RemoteCommands commands;
    EXPECT_TRUE(commands.LinkExecute("PUSH CancelButton"));
    EXPECT_FALSE(commands.LinkExecute("PUSH OKButton"));
    EXPECT_EQ(commands.Timer(true, world.messages), Action::PushCancel);
}

TEST(RemoteCommands, timer_formNotReady_beepsAndKeepsThePendingCommand)
{
    test::TestSeams world;
    RemoteCommands commands;
    EXPECT_TRUE(commands.LinkExecute("PUSH OKButton"));
    EXPECT_EQ(commands.Timer(false, world.messages), Action::Beep);
    EXPECT_EQ(commands.DdeCommand(), "PUSH OKButton");
    EXPECT_FALSE(commands.TimerEnabled());
    EXPECT_FALSE(commands.LinkExecute("PUSH OKButton"));
    EXPECT_TRUE(world.messages.boxes.empty());
}

TEST(RemoteCommands, timer_nothingPending_doesNothing)
{
    test::TestSeams world;
    RemoteCommands commands;
    EXPECT_EQ(commands.Timer(false, world.messages), Action::None);
}

TEST(RemoteCommands, reset_blockedForm_acceptsAgain)
{
    test::TestSeams world;
    RemoteCommands commands;
    EXPECT_TRUE(commands.LinkExecute("PUSH"));
    EXPECT_EQ(commands.Timer(true, world.messages), Action::None);
    commands.Reset();
    EXPECT_TRUE(commands.LinkExecute("PUSH OKButton"));
    EXPECT_EQ(world.messages.Take(), (Strings{M1}));
}

} // namespace
} // namespace ls
