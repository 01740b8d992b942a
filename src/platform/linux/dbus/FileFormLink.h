#pragma once

#include <QDBusContext>
#include <QObject>
#include <QString>

#include <functional>
#include <string>

namespace ls {

/// The object on the bus: passes each call to a handler and answers a refusal with an error.
class FileFormLink : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    explicit FileFormLink(std::function<bool(const std::string&)> handler) : m_handler(std::move(handler)) {}

public Q_SLOTS:
    void Execute(const QString& command);

private:
    std::function<bool(const std::string&)> m_handler;
};

} // namespace ls
