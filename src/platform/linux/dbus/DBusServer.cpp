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

// If there is a display but no bus, the bus library would start a bus that outlives the program. In that case
// no bus is used.
bool HasBus()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           (!runtime.isEmpty() && QFileInfo::exists(runtime + QStringLiteral("/bus")));
}

} // namespace

// The object and its adaptor; the object owns the adaptor.
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

    // Registers the object before the name, so that a caller that waits for the name finds the object.
    bool Start()
    {
        if (!m_bus.isConnected() || !m_bus.registerObject(ObjectPath(), &m_object)) {
            return false;
        }
        m_started = m_bus.registerService(ServiceName());
        if (!m_started) {
            m_bus.unregisterObject(ObjectPath()); // another instance owns the name and keeps it
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
