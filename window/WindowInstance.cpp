#include "window/WindowInstance.h"

#include "platform/bus/RemoteObject.h"

namespace {

const QString connectionName = QStringLiteral("CaravelWindow");
const QString objectPath = QStringLiteral("/CaravelWindow");
const QString interfaceName = QStringLiteral("org.caravel.CaravelWindow");
const QString raise = QStringLiteral("raise");

} // namespace

bool WindowInstance::isFirst()
{
    if (!NamedConnection::busAvailable())
        return true;
    // Served before it has the name: who finds the name finds the object.
    RemoteMethod method;
    method.name = raise;
    method.oneway = true;
    method.call = [this](const RemoteRequest &) {
        Q_EMIT raiseWanted();
        return QVariant();
    };
    m_connection.exportObject(objectPath, interfaceName, {method});
    if (m_connection.registerName(connectionName))
        return true;
    RemoteObject(NamedConnection::busName(connectionName), objectPath, interfaceName).send(raise);
    NamedConnection::flush();
    return false;
}
