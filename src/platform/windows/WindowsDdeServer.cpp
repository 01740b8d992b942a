#include "platform/windows/WindowsDdeServer.h"

#include "platform/DdeSeam.h"
#include "platform/windows/ExecuteText.h"
#include "platform/windows/WideText.h"

#include <string>
#include <utility>

namespace ls {

namespace {

constexpr const char* ServiceName = "Lodestar";
constexpr const char* TopicName = "FileForm";

// The library itself refuses everything but connecting and executing.
constexpr DWORD ServerFlags = APPCLASS_STANDARD | APPCMD_FILTERINITS | CBF_FAIL_ADVISES | CBF_FAIL_POKES |
                              CBF_FAIL_REQUESTS | CBF_FAIL_SELFCONNECTIONS | CBF_SKIP_ALLNOTIFICATIONS;

// The library's callback has no parameter for the server, so the server is global.
WindowsDdeServer* started = nullptr;

// The answer to a request: a number in place of a handle.
HDDEDATA Answer(ULONG_PTR value)
{
    return reinterpret_cast<HDDEDATA>(value);
}

std::string TextOf(HDDEDATA data)
{
    DWORD size = 0;
    const BYTE* bytes = ::DdeAccessData(data, &size);
    if (bytes == nullptr) {
        return {};
    }
    const ExecuteText text = ReadExecuteText({reinterpret_cast<const char*>(bytes), size});
    ::DdeUnaccessData(data);
    if (!text.wide) {
        return FromAnsi(text.bytes);
    }
    std::wstring wide;
    for (std::size_t i = 0; i + 1 < text.bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(text.bytes[i]);
        const auto high = static_cast<unsigned char>(text.bytes[i + 1]);
        wide += static_cast<wchar_t>(high << 8 | low);
    }
    return FromWide(wide);
}

} // namespace

bool WindowsDdeServer::Start(Handler handler)
{
    Stop();
    if (started != nullptr ||
        ::DdeInitializeA(&m_instance, &WindowsDdeServer::Callback, ServerFlags, 0) != DMLERR_NO_ERROR) {
        m_instance = 0;
        return false;
    }
    m_handler = std::move(handler);
    started = this;
    if (!Register()) {
        Stop();
        return false;
    }
    return true;
}

bool WindowsDdeServer::Register()
{
    m_service = ::DdeCreateStringHandleA(m_instance, ServiceName, CP_WINANSI);
    m_topic = ::DdeCreateStringHandleA(m_instance, TopicName, CP_WINANSI);
    return m_service != nullptr && m_topic != nullptr &&
           ::DdeNameService(m_instance, m_service, nullptr, DNS_REGISTER) != nullptr;
}

void WindowsDdeServer::Stop()
{
    if (m_instance == 0) {
        return;
    }
    ::DdeNameService(m_instance, nullptr, nullptr, DNS_UNREGISTER);
    for (HSZ* name : {&m_service, &m_topic}) {
        if (*name != nullptr) {
            ::DdeFreeStringHandle(m_instance, std::exchange(*name, nullptr));
        }
    }
    ::DdeUninitialize(std::exchange(m_instance, 0)); // ends open conversations
    started = nullptr;
    m_handler = nullptr;
}

bool WindowsDdeServer::IsOurs(HSZ topic, HSZ service) const
{
    return ::DdeCmpStringHandles(topic, m_topic) == 0 && ::DdeCmpStringHandles(service, m_service) == 0;
}

// A refusal means that a command is still pending; "busy" asks the client to try again later.
HDDEDATA WindowsDdeServer::Execute(HDDEDATA data) const
{
    return Answer(m_handler(TextOf(data)) ? DDE_FACK : DDE_FBUSY);
}

HDDEDATA CALLBACK WindowsDdeServer::Callback(UINT type, UINT /*format*/, HCONV /*conversation*/, HSZ topic,
                                             HSZ service, HDDEDATA data, ULONG_PTR /*first*/,
                                             ULONG_PTR /*second*/)
{
    if (started == nullptr) {
        return Answer(DDE_FNOTPROCESSED);
    }
    switch (type) {
    case XTYP_CONNECT:
        return Answer(started->IsOurs(topic, service) ? TRUE : FALSE);
    case XTYP_EXECUTE:
        return started->Execute(data);
    default:
        return Answer(DDE_FNOTPROCESSED);
    }
}

std::unique_ptr<DdeServer> MakeDdeServer()
{
    return std::make_unique<WindowsDdeServer>();
}

} // namespace ls
