#include "CliFixture.h"

#include "cli/CommandTable.h"

namespace ls {
namespace {

using Usage = test::CliFixture;

TEST_F(Usage, noCommand_saysHowToAsk)
{
    EXPECT_EQ(Run({}), 2);
    EXPECT_EQ(err, "lsbook: a command is missing\nTry \"lsbook --help\".\n");
    EXPECT_EQ(out, "");
}

TEST_F(Usage, unknownCommand_isNamed)
{
    EXPECT_EQ(Run({"shew", "a.IDA"}), 2);
    EXPECT_EQ(err, "lsbook: unknown command \"shew\"\nTry \"lsbook --help\".\n");
}

TEST_F(Usage, unknownOptionInsteadOfACommand_isNamed)
{
    EXPECT_EQ(Run({"--jsn"}), 2);
    EXPECT_EQ(err, "lsbook: unknown option \"--jsn\"\nTry \"lsbook --help\".\n");
}

TEST_F(Usage, wrongArguments_nameTheCommandAndItsHelp)
{
    EXPECT_EQ(Run({"info", "a.IDA", "b.IDA"}), 2);
    EXPECT_EQ(err, "lsbook info: unexpected argument \"b.IDA\"\nTry \"lsbook help info\".\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(files.log, std::vector<std::string>{}) << "wrong usage touches no file";
}

TEST_F(Usage, version_isTheProjects)
{
    EXPECT_EQ(Out({"--version"}), "lsbook " LS_VERSION "\n");
}

TEST_F(Usage, help_isTheSameInEveryWayOfAsking)
{
    const std::string help = Out({"--help"});
    EXPECT_EQ(Out({"-h"}), help);
    EXPECT_EQ(Out({"help"}), help);
    EXPECT_TRUE(help.starts_with("Usage: lsbook COMMAND [OPTION...] BOOK [TITLE]\n")) << help;
}

TEST_F(Usage, help_listsEveryCommandWithItsSummary)
{
    const std::string help = Out({"--help"});
    for (const CommandSpec& command : CommandTable()) {
        EXPECT_NE(help.find("\n  " + std::string(command.name) + " "), std::string::npos) << command.name;
        EXPECT_NE(help.find(std::string(command.summary) + "\n"), std::string::npos) << command.name;
    }
}

TEST_F(Usage, helpOfEveryCommand_namesItsOperandsAndOptions)
{
    for (const CommandSpec& command : CommandTable()) {
        const std::string name(command.name);
        const std::string help = Out({"help", name});
        EXPECT_EQ(Out({name, "--help"}), help);
        EXPECT_EQ(Out({name, "a.IDA", "-h"}), help);
        EXPECT_TRUE(help.starts_with("Usage: lsbook " + name + " [OPTION...] " +
                                     std::string(command.operands) + "\n"))
            << help;
        for (const OptionSpec& option : command.options) {
            EXPECT_NE(help.find("\n  " + std::string(option.name)), std::string::npos) << option.name;
        }
    }
}

TEST_F(Usage, helpOfUnknownCommand_isRefused)
{
    EXPECT_EQ(Run({"help", "shew"}), 2);
    EXPECT_EQ(err, "lsbook: unknown command \"shew\"\nTry \"lsbook --help\".\n");
    EXPECT_EQ(Run({"help", "show", "text"}), 2);
    EXPECT_EQ(err, "lsbook: help takes one command\nTry \"lsbook --help\".\n");
}

TEST_F(Usage, helpBehindTwoDashes_isAFileName)
{
    EXPECT_EQ(Run({"info", "--", "--help"}), 3);
    EXPECT_EQ(err, "critical: Error opening <<--help>> with code 53: File not found\n");
}

TEST_F(Usage, topicCommandWithoutATopic_isRefusedBeforeTheFileIsOpened)
{
    for (const std::string command : {"show", "text"}) {
        EXPECT_EQ(Run({command, "a.IDA"}), 2);
        EXPECT_EQ(err, "lsbook " + command + ": TITLE is missing (or --number N)\nTry \"lsbook help " +
                           command + "\".\n");
    }
    EXPECT_EQ(files.log, std::vector<std::string>{});
}

TEST_F(Usage, plainBookWithoutATopic_isRefusedOnceItProvesABook)
{
    files["/work/a.IDA"] = test::SmallBook();
    for (const std::string command : {"show", "text"}) {
        EXPECT_EQ(Run({command, "a.IDA", "--plain"}), 2);
        EXPECT_EQ(err, "lsbook " + command + ": TITLE is missing (or --number N)\nTry \"lsbook help " +
                           command + "\".\n");
        EXPECT_EQ(out, "");
    }
}

TEST_F(Usage, titleAndNumber_excludeEachOther)
{
    for (const std::string command : {"show", "text", "xrefs", "export"}) {
        EXPECT_EQ(Run({command, "a.IDA", "Start", "--number", "1"}), 2);
        EXPECT_EQ(err, "lsbook " + command + ": TITLE and --number exclude each other\nTry \"lsbook help " +
                           command + "\".\n");
    }
}

TEST_F(Usage, emptyTitle_isRefused)
{
    for (const std::string command : {"show", "text", "xrefs", "export"}) {
        EXPECT_EQ(Run({command, "a.IDA", ""}), 2);
        EXPECT_EQ(err, "lsbook " + command + ": TITLE is empty\nTry \"lsbook help " + command + "\".\n");
    }
}

} // namespace
} // namespace ls
