#include "DdeClient.h"

#include "platform/windows/WideText.h"

#include <windows.h>

#include <ddeml.h>

namespace ls::test {

namespace {

constexpr DWORD AnswerTime = 20'000; // milliseconds

HDDEDATA CALLBACK TakeNothing(UINT, UINT, HCONV, HSZ, HSZ, HDDEDATA, ULONG_PTR, ULONG_PTR)
{
    return nullptr;
}

class Client
{
public:
    explicit Client(bool wide) : m_wide(wide)
    {
        const auto initialize = wide ? ::DdeInitializeW : ::DdeInitializeA;
        if (initialize(&m_instance, TakeNothing, APPCMD_CLIENTONLY, 0) != DMLERR_NO_ERROR) {
            m_instance = 0;
        }
    }
    ~Client() { ::DdeUninitialize(m_instance); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    HCONV Connect(const std::string& service, const std::string& topic)
    {
        return ::DdeConnect(m_instance, Name(service), Name(topic), nullptr);
    }

    std::string Ask(HCONV conversation, const std::string& command)
    {
        HDDEDATA answer = nullptr;
        if (command.starts_with("request ")) {
            answer = ::DdeClientTransaction(nullptr, 0, conversation, Name(command.substr(8)), CF_TEXT,
                                            XTYP_REQUEST, AnswerTime, nullptr);
        } else if (command.starts_with("poke ")) {
            char text[] = "text";
            answer = ::DdeClientTransaction(reinterpret_cast<BYTE*>(text), sizeof text, conversation,
                                            Name(command.substr(5)), CF_TEXT, XTYP_POKE, AnswerTime, nullptr);
        } else {
            std::string bytes = Bytes(command);
            answer = ::DdeClientTransaction(reinterpret_cast<BYTE*>(bytes.data()),
                                            static_cast<DWORD>(bytes.size()), conversation, nullptr, 0,
                                            XTYP_EXECUTE, AnswerTime, nullptr);
        }
        return answer != nullptr ? "accepted" : Refusal(::DdeGetLastError(m_instance));
    }

private:
    HSZ Name(const std::string& name)
    {
        return m_wide ? ::DdeCreateStringHandleW(m_instance, ToWide(name)->c_str(), CP_WINUNICODE)
                      : ::DdeCreateStringHandleA(m_instance, ToAnsi(name)->c_str(), CP_WINANSI);
    }

    // The text with its terminating NUL.
    std::string Bytes(const std::string& text) const
    {
        if (!m_wide) {
            return *ToAnsi(text) + '\0';
        }
        const std::wstring wide = *ToWide(text);
        return {reinterpret_cast<const char*>(wide.c_str()), (wide.size() + 1) * sizeof(wchar_t)};
    }

    static std::string Refusal(UINT error)
    {
        // Wine's library reports a busy server as "not processed".
        const bool refused = error == DMLERR_BUSY || error == DMLERR_NOTPROCESSED;
        return refused ? "refused" : "error " + std::to_string(error);
    }

    bool m_wide;
    DWORD m_instance = 0;
};

} // namespace

std::vector<std::string> AskByLibrary(const DdeRequest& request)
{
    Client client(request.wide);
    const HCONV conversation = client.Connect(request.service, request.topic);
    if (conversation == nullptr) {
        return {"no server"};
    }
    std::vector<std::string> answers;
    for (const std::string& command : request.commands) {
        answers.push_back(client.Ask(conversation, command));
    }
    ::DdeDisconnect(conversation);
    return answers;
}

} // namespace ls::test
