// Execute strings from another process, through the system's DDE, to the rules of the file form.

#include "files/RemoteCommands.h"
#include "platform/windows/WindowsDdeServer.h"
#include "support/RecordingMessages.h"
#include "support/RunProgram.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>

namespace ls {
namespace {

using namespace std::chrono_literals;
using Action = RemoteCommands::Action;
using Strings = std::vector<std::string>;

const char* const NoCommand = "exclamation|Lodestar Advisor|Invalid DDE command received.  Use a command to "
                              "Lodestar|FileForm as explained in "
                              "the technical section of the online help.";
const char* const NoControl =
    "exclamation|Lodestar Advisor|Invalid DDE PUSH command received.  Use a command "
    "toLodestar|FileForm in the format <<PUSH controlname>>.";

/// A client that runs in its own process.
struct Client
{
    const char* name;
    const char* way;
    const char* characters;
};

const Client Clients[] = {{"libraryNarrow", "library", "narrow"},
                          {"libraryWide", "library", "wide"},
                          {"messagesNarrow", "messages", "narrow"},
                          {"messagesWide", "messages", "wide"}};

/// The server with the form's rules. Its timer fires directly after each answer, unless the test holds it.
class DdeWorld : public testing::Test
{
protected:
    DdeWorld()
    {
        EXPECT_TRUE(server.Start([this](const std::string& command) {
            taken.push_back(command);
            return commands.LinkExecute(command);
        }));
    }

    // Serves until the client has all its answers; returns them.
    Strings Send(const Client& client, const Strings& sent, const std::string& service = "Lodestar",
                 const std::string& topic = "FileForm")
    {
        auto run = Start(client, sent, service, topic);
        while (run.wait_for(1ms) != std::future_status::ready) {
            Serve();
        }
        Serve();
        return Lines(run.get());
    }

    std::future<test::ProgramRun> Start(const Client& client, const Strings& sent, const std::string& service,
                                        const std::string& topic)
    {
        Strings arguments{"dde", client.way, client.characters, service, topic};
        arguments.insert(arguments.end(), sent.begin(), sent.end());
        return std::async(std::launch::async,
                          [this, arguments] { return test::RunProgram(LS_PEER, arguments, folder.Path()); });
    }

    void Serve()
    {
        MSG message = {};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
            if (commands.TimerEnabled() && !holdTimer) {
                actions.push_back(commands.Timer(ready, messages));
            }
        }
    }

    // How this client sees a refusal.
    static std::string Refused(const Client& client)
    {
        return client.way == std::string("messages") ? "busy" : "refused";
    }

    static Strings Lines(const test::ProgramRun& run)
    {
        EXPECT_EQ(run.status, 0) << run.err;
        Strings lines;
        std::istringstream text(run.out);
        for (std::string line; std::getline(text, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    test::ScratchFolder folder;
    ProgramEnd end;
    test::RecordingMessages messages{end};
    RemoteCommands commands;
    WindowsDdeServer server;
    Strings taken;
    std::vector<Action> actions;
    bool ready = true;
    bool holdTimer = false;
};

class DdeCommands : public DdeWorld, public testing::WithParamInterface<Client>
{
};

TEST_P(DdeCommands, push_ofAControl_pressesIt)
{
    EXPECT_EQ(Send(GetParam(), {"PUSH OKButton", "push cancelbutton", "Push BROWSEBUTTON"}),
              (Strings{"accepted", "accepted", "accepted"}));
    EXPECT_EQ(taken, (Strings{"PUSH OKButton", "push cancelbutton", "Push BROWSEBUTTON"}));
    EXPECT_EQ(actions, (std::vector{Action::PushOk, Action::PushCancel, Action::PushBrowse}));
    EXPECT_EQ(messages.Take(), Strings{});
}

TEST_P(DdeCommands, push_alone_isToldAndRefusesLaterOnes)
{
    EXPECT_EQ(Send(GetParam(), {"PUSH", "PUSH OKButton"}), (Strings{"accepted", Refused(GetParam())}));
    EXPECT_EQ(actions, std::vector{Action::None});
    EXPECT_EQ(messages.Take(), Strings{NoCommand});
    EXPECT_EQ(Send(GetParam(), {"PUSH OKButton"}), Strings{Refused(GetParam())})
        << "for every later client, too";
    commands.Reset();
    EXPECT_EQ(Send(GetParam(), {"PUSH OKButton"}), Strings{"accepted"}) << "until the form is loaded again";
    EXPECT_EQ(actions, (std::vector{Action::None, Action::PushOk}));
}

TEST_P(DdeCommands, push_withTwoBlanks_isToldAndTakesLaterOnes)
{
    EXPECT_EQ(Send(GetParam(), {"PUSH  OKBUTTON", "PUSH OKBUTTON"}), (Strings{"accepted", "accepted"}));
    EXPECT_EQ(actions, (std::vector{Action::None, Action::PushOk}));
    EXPECT_EQ(messages.Take(), Strings{NoControl});
}

TEST_P(DdeCommands, push_ofAnUnknownControl_arrivesWithItsAccents)
{
    EXPECT_EQ(Send(GetParam(), {"PUSH Größe"}), Strings{"accepted"});
    EXPECT_EQ(taken, Strings{"PUSH Größe"});
    EXPECT_EQ(messages.Take(), Strings{NoControl});
}

TEST_P(DdeCommands, twoAtOnce_theSecondIsRefused)
{
    holdTimer = true;
    EXPECT_EQ(Send(GetParam(), {"PUSH OKButton", "PUSH CancelButton"}),
              (Strings{"accepted", Refused(GetParam())}));
    EXPECT_EQ(commands.DdeCommand(), "PUSH OKButton");
}

TEST_P(DdeCommands, otherServiceOrTopic_hasNoServer)
{
    EXPECT_EQ(Send(GetParam(), {"PUSH OKButton"}, "Other"), Strings{"no server"});
    EXPECT_EQ(Send(GetParam(), {"PUSH OKButton"}, "Lodestar", "MainForm"), Strings{"no server"});
    EXPECT_EQ(Send(GetParam(), {"PUSH OKButton"}, "LODESTAR", "fileform"), Strings{"accepted"})
        << "names have no case";
    EXPECT_EQ(taken.size(), 1U);
}

TEST_P(DdeCommands, stoppedServer_isNotFound)
{
    server.Stop();
    EXPECT_EQ(Send(GetParam(), {"PUSH OKButton"}), Strings{"no server"});
}

INSTANTIATE_TEST_SUITE_P(Clients, DdeCommands, testing::ValuesIn(Clients),
                         [](const auto& client) { return client.param.name; });

TEST_F(DdeWorld, formThatCannotAct_beepsAndKeepsTheCommand)
{
    ready = false;
    EXPECT_EQ(Send(Clients[2], {"PUSH OKButton", "PUSH OKButton"}), (Strings{"accepted", "busy"}));
    EXPECT_EQ(actions, std::vector{Action::Beep});
}

TEST_F(DdeWorld, twoProcessesAtOnce_oneIsRefused)
{
    holdTimer = true;
    auto first = Start(Clients[2], {"PUSH OKButton"}, "Lodestar", "FileForm");
    auto second = Start(Clients[3], {"PUSH CancelButton"}, "Lodestar", "FileForm");
    while (first.wait_for(1ms) != std::future_status::ready ||
           second.wait_for(0ms) != std::future_status::ready) {
        Serve();
    }
    Strings answers{Lines(first.get()).at(0), Lines(second.get()).at(0)};
    EXPECT_EQ(commands.DdeCommand(), answers[0] == "accepted" ? "PUSH OKButton" : "PUSH CancelButton");
    std::sort(answers.begin(), answers.end());
    EXPECT_EQ(answers, (Strings{"accepted", "busy"}));
}

TEST_F(DdeWorld, requestAndPoke_doNotReachTheForm)
{
    const Strings answers = Send(Clients[0], {"request OKButton", "poke OKButton", "PUSH OKButton"});
    ASSERT_EQ(answers.size(), 3U);
    EXPECT_EQ(answers[0], "refused");
    EXPECT_EQ(answers[2], "accepted");
    EXPECT_EQ(taken, Strings{"PUSH OKButton"});
}

TEST_F(DdeWorld, secondServerOfTheProcess_isRefused)
{
    WindowsDdeServer second;
    EXPECT_FALSE(second.Start([](const std::string&) { return true; }));
    server.Stop();
    EXPECT_TRUE(second.Start([](const std::string&) { return true; }));
}

TEST_F(DdeWorld, restartedServer_servesAgain)
{
    server.Stop();
    EXPECT_TRUE(server.Start([](const std::string&) { return true; }));
    EXPECT_EQ(Send(Clients[0], {"PUSH OKButton"}), Strings{"accepted"});
}

} // namespace
} // namespace ls
