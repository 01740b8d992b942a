#include "DdeClient.h"

#include "platform/windows/WideText.h"

#include <cstring>

#include <windows.h>

#include <dde.h>

namespace ls::test {

namespace {

constexpr DWORD AnswerTime = 20'000; // milliseconds
constexpr int Accepted = 0x8000;
constexpr int Busy = 0x4000;

/// The messages that the window received; a process has one client.
struct Heard
{
    HWND server = nullptr; ///< the server that answered the call
    bool answered = false;
    int status = 0;
};
Heard heard;

LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message != WM_DDE_ACK) {
        return ::IsWindowUnicode(window) ? ::DefWindowProcW(window, message, first, second)
                                         : ::DefWindowProcA(window, message, first, second);
    }
    if (heard.server == nullptr) { // sent before the call for a server has returned
        heard.server = reinterpret_cast<HWND>(first);
        return 0;
    }
    UINT_PTR status = 0;
    UINT_PTR command = 0;
    ::UnpackDDElParam(message, second, &status, &command);
    ::FreeDDElParam(message, second);
    ::GlobalFree(reinterpret_cast<HGLOBAL>(command));
    heard.status = static_cast<int>(status);
    heard.answered = true;
    return 0;
}

HWND MakeWindow(bool wide)
{
    if (wide) {
        WNDCLASSW kind = {};
        kind.lpfnWndProc = Listen;
        kind.lpszClassName = L"WideClient";
        ::RegisterClassW(&kind);
        return ::CreateWindowW(L"WideClient", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    }
    WNDCLASSA kind = {};
    kind.lpfnWndProc = Listen;
    kind.lpszClassName = "NarrowClient";
    ::RegisterClassA(&kind);
    return ::CreateWindowA("NarrowClient", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
}

// A block of memory that goes to the server with the message and returns with its answer.
HGLOBAL Block(bool wide, const std::string& text)
{
    const std::wstring units = *ToWide(text);
    const std::string bytes = *ToAnsi(text);
    const std::size_t size = wide ? (units.size() + 1) * sizeof(wchar_t) : bytes.size() + 1;
    const void* from = wide ? static_cast<const void*>(units.c_str()) : bytes.c_str();
    HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, size);
    std::memcpy(::GlobalLock(block), from, size);
    ::GlobalUnlock(block);
    return block;
}

std::string WaitForAnswer()
{
    const ULONGLONG until = ::GetTickCount64() + AnswerTime;
    while (!heard.answered && ::GetTickCount64() < until) {
        MSG message = {};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            ::DispatchMessageW(&message);
        }
        ::Sleep(1);
    }
    if (!heard.answered) {
        return "no answer";
    }
    return (heard.status & Accepted) != 0 ? "accepted"
           : (heard.status & Busy) != 0   ? "busy"
                                          : "not processed";
}

} // namespace

std::vector<std::string> AskByMessages(const DdeRequest& request)
{
    const HWND window = MakeWindow(request.wide);
    const ATOM service = ::GlobalAddAtomW(ToWide(request.service)->c_str());
    const ATOM topic = ::GlobalAddAtomW(ToWide(request.topic)->c_str());
    ::SendMessageW(HWND_BROADCAST, WM_DDE_INITIATE, reinterpret_cast<WPARAM>(window),
                   MAKELPARAM(service, topic));
    ::GlobalDeleteAtom(service);
    ::GlobalDeleteAtom(topic);
    if (heard.server == nullptr) {
        return {"no server"};
    }
    std::vector<std::string> answers;
    for (const std::string& command : request.commands) {
        heard.answered = false;
        const HGLOBAL block = Block(request.wide, command);
        ::PostMessageW(heard.server, WM_DDE_EXECUTE, reinterpret_cast<WPARAM>(window),
                       reinterpret_cast<LPARAM>(block));
        answers.push_back(WaitForAnswer());
    }
    ::PostMessageW(heard.server, WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(window), 0);
    return answers;
}

} // namespace ls::test
