#include "platform/bus/NamedConnection.h"

#include "platform/bus/own/BusValues.h"
#include "platform/core/Log.h"
#include "platform/core/MainThread.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <algorithm>

namespace {

void checkTypes(const RemoteMethod &method)
{
    QStringList types = method.in;
    if (!method.out.isEmpty())
        types.append(method.out);
    for (const QString &type : types) {
        if (!BusValues::isType(type))
            qFatal("%ls: \"%ls\" is no type that a method can have", qUtf16Printable(method.name),
                   qUtf16Printable(type));
    }
}

// One exported object: checks a call against the table of methods, and runs and answers it.
class ServedObject : public QDBusVirtualObject
{
public:
    ServedObject(QString path, QString interfaceName, std::vector<RemoteMethod> methods)
        : m_path(std::move(path))
        , m_interface(std::move(interfaceName))
        , m_methods(std::move(methods))
    {
        for (const RemoteMethod &method : m_methods)
            checkTypes(method);
    }

    QString path() const { return m_path; }
    void stop() { m_stopped = true; }

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    const RemoteMethod *method(const QString &name) const;
    bool answerOther(const QDBusMessage &message, const QDBusConnection &connection) const;

    const QString m_path;
    const QString m_interface;
    const std::vector<RemoteMethod> m_methods;
    bool m_stopped = false;
};

QString argumentXml(const QString &name, const QString &type, QStringView direction)
{
    const QString nameXml = name.isEmpty() ? QString() : QStringLiteral("name=\"%1\" ").arg(name);
    return QStringLiteral("      <arg %1type=\"%2\" direction=\"%3\"/>\n")
        .arg(nameXml, type, direction);
}

QString methodXml(const RemoteMethod &method)
{
    QString xml = QStringLiteral("    <method name=\"%1\">\n").arg(method.name);
    for (qsizetype i = 0; i < method.in.size(); ++i)
        xml += argumentXml(method.inNames.value(i), method.in[i], u"in");
    if (!method.out.isEmpty())
        xml += argumentXml({}, method.out, u"out");
    if (method.oneway)
        xml += u"      <annotation name=\"org.freedesktop.DBus.Method.NoReply\" value=\"true\"/>\n";
    return xml + QStringLiteral("    </method>\n");
}

QString ServedObject::introspect(const QString &) const
{
    QString xml = QStringLiteral("  <interface name=\"%1\">\n").arg(m_interface);
    for (const RemoteMethod &method : m_methods)
        xml += methodXml(method);
    return xml + QStringLiteral("  </interface>\n");
}

const RemoteMethod *ServedObject::method(const QString &name) const
{
    const auto found = std::find_if(m_methods.begin(), m_methods.end(),
                                    [&](const RemoteMethod &each) { return each.name == name; });
    return found == m_methods.end() ? nullptr : &*found;
}

// Errors go out like answers: only to a caller that waits for one.
bool refuse(const QDBusMessage &message, const QDBusConnection &connection,
            QDBusError::ErrorType type, const QString &text)
{
    if (message.isReplyRequired())
        connection.send(message.createErrorReply(type, text));
    return true;
}

bool refuseArguments(const QDBusMessage &message, const QDBusConnection &connection,
                     const QString &expected)
{
    const QString text = QStringLiteral("%1 takes the types \"%2\", not \"%3\"")
                             .arg(message.member(), expected, message.signature());
    qCWarning(lcPlatform, "refused a call by %ls: %ls", qUtf16Printable(message.service()),
              qUtf16Printable(text));
    return refuse(message, connection, QDBusError::InvalidArgs, text);
}

void reply(const QDBusMessage &message, const QDBusConnection &connection,
           const QVariantList &results = {})
{
    if (message.isReplyRequired())
        connection.send(message.createReply(results));
}

// What every object offers besides its own methods is QtDBus's business.
bool isStandardInterface(const QString &name)
{
    return name.startsWith(u"org.freedesktop.DBus.");
}

bool isStandardMethod(const QString &name)
{
    static const QStringList methods = {
        QStringLiteral("Introspect"), QStringLiteral("Ping"), QStringLiteral("GetMachineId"),
        QStringLiteral("Get"),        QStringLiteral("Set"),  QStringLiteral("GetAll"),
    };
    return methods.contains(name);
}

bool ServedObject::answerOther(const QDBusMessage &message, const QDBusConnection &connection) const
{
    if (message.interface().isEmpty() && isStandardMethod(message.member()))
        return false;
    if (!message.interface().isEmpty() && message.interface() != m_interface)
        return refuse(message, connection, QDBusError::UnknownInterface,
                      QStringLiteral("%1 has no interface %2").arg(m_path, message.interface()));
    return refuse(message, connection, QDBusError::UnknownMethod,
                  QStringLiteral("%1 has no method %2").arg(m_interface, message.member()));
}

bool ServedObject::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    serveWaitingCalls();
    if (message.type() != QDBusMessage::MethodCallMessage ||
        isStandardInterface(message.interface()))
        return false;
    if (m_stopped)
        return refuse(message, connection, QDBusError::UnknownObject,
                      QStringLiteral("%1 is no longer served").arg(m_path));
    const bool ours = message.interface().isEmpty() || message.interface() == m_interface;
    const RemoteMethod *called = ours ? method(message.member()) : nullptr;
    if (!called)
        return answerOther(message, connection);
    if (message.signature() != called->in.join(QString()))
        return refuseArguments(message, connection, called->in.join(QString()));
    const RemoteRequest request{message.service(), BusValues::toPlain(message.arguments())};
    if (called->oneway) {
        reply(message, connection);
        called->call(request);
        return true;
    }
    const auto answer = [message, connection, out = called->out](const QVariant &result) {
        reply(message, connection,
              out.isEmpty() ? QVariantList() : QVariantList{BusValues::toBus(result, out)});
    };
    if (called->begin)
        called->begin(request, answer);
    else
        answer(called->call(request));
    return true;
}

// Hears the one message that a connection sends itself.
class LossObserver : public QObject
{
    Q_OBJECT
public:
    LossObserver(QObject *context, std::function<void()> lost)
        : QObject(context)
        , m_lost(std::move(lost))
    {
    }

public Q_SLOTS:
    void disconnected() { m_lost(); }

private:
    const std::function<void()> m_lost;
};

} // namespace

class NamedConnection::Private
{
public:
    QDBusConnection bus = QDBusConnection::sessionBus();
    QStringList names;
    // Kept until the end even when no longer served: one of them may be in the middle of a call.
    std::vector<std::unique_ptr<ServedObject>> objects;
};

NamedConnection::NamedConnection(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

NamedConnection::~NamedConnection()
{
    invalidate();
}

QString NamedConnection::busName(const QString &connectionName)
{
    const auto isPlain = [](QChar c) {
        return c == u'_' || (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') ||
               (c >= u'a' && c <= u'z');
    };
    QString name = connectionName;
    std::replace_if(name.begin(), name.end(), std::not_fn(isPlain), u'_');
    return QStringLiteral("org.caravel.") + name;
}

bool NamedConnection::busAvailable()
{
    return QDBusConnection::sessionBus().isConnected();
}

void NamedConnection::observeLoss(QObject *context, std::function<void()> lost)
{
    QDBusConnection::sessionBus().connect(
        QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
        new LossObserver(context, std::move(lost)), SLOT(disconnected()));
}

void NamedConnection::flush()
{
    // The bus reads a connection's messages in order, so its answer comes after all of them.
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusConnection::sessionBus().call(
        QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                       QStringLiteral("GetId")),
        QDBus::Block, 1000);
}

bool NamedConnection::exportObject(const QString &objectPath, const QString &interfaceName,
                                   std::vector<RemoteMethod> methods)
{
    auto object = std::make_unique<ServedObject>(objectPath, interfaceName, std::move(methods));
    if (!d->bus.registerVirtualObject(objectPath, object.get()))
        return false;
    d->objects.push_back(std::move(object));
    return true;
}

bool NamedConnection::registerName(const QString &connectionName)
{
    QDBusConnectionInterface *bus = d->bus.interface();
    if (!bus)
        return false;
    const QString name = busName(connectionName);
    const auto answer = bus->registerService(name, QDBusConnectionInterface::QueueService,
                                             QDBusConnectionInterface::DontAllowReplacement);
    if (answer.value() == QDBusConnectionInterface::ServiceNotRegistered)
        return false;
    d->names.append(name);
    return answer.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool NamedConnection::hasName(const QString &connectionName) const
{
    QDBusConnectionInterface *bus = d->bus.interface();
    return bus && bus->serviceOwner(busName(connectionName)).value() == d->bus.baseService();
}

void NamedConnection::invalidate()
{
    for (const QString &name : d->names)
        d->bus.unregisterService(name);
    d->names.clear();
    for (const auto &object : d->objects) {
        object->stop();
        d->bus.unregisterObject(object->path());
    }
}

#include "NamedConnection.moc"
