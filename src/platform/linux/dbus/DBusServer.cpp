#include "platform/linux/dbus/DBusServer.h"

#include "platform/DdeSeam.h"

#include "fileformadaptor.h"
#include "platform/linux/dbus/FileFormLink.h"

#include <QDBusConnection>
#include <QFileInfo>

#include <utility>

namespace ls {

namespace {

QString ServiceName()
{
    return QStringLiteral("org.lodestar.Advisor");
}

QString ObjectPath()
{
    return QStringLiteral("/FileForm");
}

// Where no bus is given but a display is, the bus library would start a bus of its own, which outlives the
// program: then there is nobody to talk to.
bool HasBus()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           (!runtime.isEmpty() && QFileInfo::exists(runtime + QStringLiteral("/bus")));
}

} // namespace

// The object and its adaptor; the adaptor belongs to the object.
class DBusServer::Link
{
public:
    explicit Link(Handler handler) : m_object(std::move(handler)), m_bus(QDBusConnection::sessionBus())
    {
        m_adaptor = new FileFormAdaptor(&m_object);
    }

    ~Link()
    {
        if (m_started) {
            m_bus.unregisterService(ServiceName());
            m_bus.unregisterObject(ObjectPath());
        }
    }

    // The object comes first: a caller that waited for the name finds it at once.
    bool Start()
    {
        if (!m_bus.isConnected() || !m_bus.registerObject(ObjectPath(), &m_object)) {
            return false;
        }
        m_started = m_bus.registerService(ServiceName());
        if (!m_started) {
            m_bus.unregisterObject(ObjectPath()); // another instance has the name, and keeps it
        }
        return m_started;
    }

private:
    FileFormLink m_object;
    FileFormAdaptor* m_adaptor = nullptr;
    QDBusConnection m_bus;
    bool m_started = false;
};

DBusServer::DBusServer() = default;
DBusServer::~DBusServer() = default;

bool DBusServer::Start(Handler handler)
{
    Stop();
    if (!HasBus()) {
        return false;
    }
    auto link = std::make_unique<Link>(std::move(handler));
    if (!link->Start()) {
        return false;
    }
    m_link = std::move(link);
    return true;
}

void DBusServer::Stop()
{
    m_link.reset();
}

std::unique_ptr<DdeServer> MakeDdeServer()
{
    return std::make_unique<DBusServer>();
}

} // namespace ls
