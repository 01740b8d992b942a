// The helper of packaging/windows/try-under-wine that runs inside Windows. Each command ends with status 0 if
// it succeeds.
//
//   probe execute SERVICE TOPIC COMMAND   a DDE client: sends an execute string, and prints the reply:
//                                         "taken", "busy", "refused", or "nobody" if there is no server
//   probe run LINE FOLDER                 starts a program by exactly this command line in that folder
//   probe windows                         the titles of all visible windows
//   probe clipboard                       the text on the clipboard
//   probe copy TEXT                       puts a text there
//   probe version FILE                    name and version of the product, from the file's resource
//   probe icons FILE                      how many icons the file has
//
// If it is registered as the program for web pages, it writes its command line (the page to show) to the file
// that the environment variable PROBE_PAGE names.

#include <windows.h>

#include <ddeml.h>
#include <shellapi.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int WrongUsage = 2;
constexpr DWORD ReplyMs = 10000;

std::string ToUtf8(const std::wstring& text)
{
    std::string bytes(text.size() * 3 + 1, '\0');
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

void Say(const std::wstring& line)
{
    std::puts(ToUtf8(line).c_str());
}

HDDEDATA CALLBACK NoCallback(UINT, UINT, HCONV, HSZ, HSZ, HDDEDATA, ULONG_PTR, ULONG_PTR)
{
    return nullptr;
}

const wchar_t* Transact(DWORD instance, HCONV conversation, const std::wstring& command)
{
    std::wstring data = command;
    const auto size = static_cast<DWORD>((data.size() + 1) * sizeof(wchar_t));
    DWORD result = 0;
    const HDDEDATA taken = ::DdeClientTransaction(reinterpret_cast<BYTE*>(data.data()), size, conversation,
                                                  nullptr, 0, XTYP_EXECUTE, ReplyMs, &result);
    if (taken != nullptr) {
        return L"taken";
    }
    return ::DdeGetLastError(instance) == DMLERR_BUSY ? L"busy" : L"refused";
}

int Execute(const std::wstring& service, const std::wstring& topic, const std::wstring& command)
{
    DWORD instance = 0;
    if (::DdeInitializeW(&instance, NoCallback, APPCLASS_STANDARD | APPCMD_CLIENTONLY, 0) !=
        DMLERR_NO_ERROR) {
        return Failed;
    }
    const HSZ serviceName = ::DdeCreateStringHandleW(instance, service.c_str(), CP_WINUNICODE);
    const HSZ topicName = ::DdeCreateStringHandleW(instance, topic.c_str(), CP_WINUNICODE);
    const HCONV conversation = ::DdeConnect(instance, serviceName, topicName, nullptr);
    Say(conversation == nullptr ? L"nobody" : Transact(instance, conversation, command));
    if (conversation != nullptr) {
        ::DdeDisconnect(conversation);
    }
    ::DdeFreeStringHandle(instance, serviceName);
    ::DdeFreeStringHandle(instance, topicName);
    ::DdeUninitialize(instance);
    return Done;
}

int Start(std::wstring line, const std::wstring& folder)
{
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &start,
                          &process)) {
        return Failed;
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return Done;
}

BOOL CALLBACK SayTitle(HWND window, LPARAM)
{
    wchar_t title[500] = {};
    if (::IsWindowVisible(window) && ::GetWindowTextW(window, title, 500) > 0) {
        Say(title);
    }
    return TRUE;
}

int SayClipboard()
{
    if (!::OpenClipboard(nullptr)) {
        return Failed;
    }
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    const auto* text = data == nullptr ? nullptr : static_cast<const wchar_t*>(::GlobalLock(data));
    if (text != nullptr) {
        Say(text);
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text == nullptr ? Failed : Done;
}

int Copy(const std::wstring& text)
{
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (memory == nullptr || !::OpenClipboard(nullptr)) {
        return Failed;
    }
    std::memcpy(::GlobalLock(memory), text.c_str(), bytes);
    ::GlobalUnlock(memory);
    ::EmptyClipboard();
    const bool taken =
        ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr; // the system owns it from now on
    ::CloseClipboard();
    return taken ? Done : Failed;
}

int SayVersion(const std::wstring& file)
{
    std::vector<char> block(::GetFileVersionInfoSizeW(file.c_str(), nullptr));
    if (block.empty() ||
        !::GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(block.size()), block.data())) {
        return Failed;
    }
    std::wstring line;
    for (const wchar_t* name : {L"ProductName", L"ProductVersion"}) {
        void* value = nullptr;
        UINT length = 0;
        const std::wstring path = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
        if (!::VerQueryValueW(block.data(), path.c_str(), &value, &length)) {
            return Failed;
        }
        line += (line.empty() ? L"" : L" ") + std::wstring(static_cast<const wchar_t*>(value));
    }
    Say(line);
    return Done;
}

int SayIcons(const std::wstring& file)
{
    Say(std::to_wstring(::ExtractIconExW(file.c_str(), -1, nullptr, nullptr, 0)));
    return Done;
}

// The way in which the program starts a browser: one argument, the page.
int ShowPage(const std::wstring& page)
{
    wchar_t place[1000] = {};
    if (::GetEnvironmentVariableW(L"PROBE_PAGE", place, 1000) == 0) {
        return WrongUsage;
    }
    FILE* file = ::_wfopen(place, L"wb");
    if (file == nullptr) {
        return Failed;
    }
    std::fputs(ToUtf8(page).c_str(), file);
    return std::fclose(file) == 0 ? Done : Failed;
}

int Run(const std::vector<std::wstring>& words)
{
    const std::wstring& verb = words[0];
    if (verb == L"execute" && words.size() == 4) {
        return Execute(words[1], words[2], words[3]);
    }
    if (verb == L"run" && words.size() == 3) {
        return Start(words[1], words[2]);
    }
    if (verb == L"windows" && words.size() == 1) {
        return ::EnumWindows(SayTitle, 0) ? Done : Failed;
    }
    if (verb == L"clipboard" && words.size() == 1) {
        return SayClipboard();
    }
    if (verb == L"copy" && words.size() == 2) {
        return Copy(words[1]);
    }
    if (verb == L"version" && words.size() == 2) {
        return SayVersion(words[1]);
    }
    if (verb == L"icons" && words.size() == 2) {
        return SayIcons(words[1]);
    }
    return words.size() == 1 ? ShowPage(verb) : WrongUsage;
}

} // namespace

int main()
{
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    return count < 2 ? WrongUsage : Run({words + 1, words + count});
}
