#include "platform/bus/RemoteObject.h"

#include "platform/bus/own/BusValues.h"
#include "platform/core/Log.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

#include <limits>

namespace {

RemoteObject::Answer answerIn(const QDBusMessage &reply)
{
    if (reply.type() == QDBusMessage::ReplyMessage)
        return {BusValues::toPlain(reply.arguments().value(0)), {}};
    const auto error = QDBusError(reply).type();
    return {std::nullopt, reply.errorMessage(),
            error == QDBusError::ServiceUnknown || error == QDBusError::UnknownObject ||
                reply.errorName() == u"org.freedesktop.DBus.Error.NameHasNoOwner"};
}

} // namespace

class RemoteObject::Private
{
public:
    Private(QString service, QString path, QString interfaceName)
        : m_service(std::move(service))
        , m_path(std::move(path))
        , m_interface(std::move(interfaceName))
        , m_bus(QDBusConnection::sessionBus())
        , m_watcher(m_service, m_bus, QDBusServiceWatcher::WatchForOwnerChange)
    {
    }

    QDBusMessage message(const QString &method, const QVariantList &arguments) const
    {
        QDBusMessage call = QDBusMessage::createMethodCall(m_service, m_path, m_interface, method);
        call.setArguments(BusValues::toBus(arguments));
        return call;
    }

    const QString m_service;
    const QString m_path;
    const QString m_interface;
    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
};

RemoteObject::RemoteObject(QString service, QString path, QString interfaceName, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(std::move(service), std::move(path), std::move(interfaceName)))
{
    connect(&d->m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &before, const QString &now) {
                if (!before.isEmpty())
                    Q_EMIT vanished();
                if (!now.isEmpty())
                    Q_EMIT appeared();
            });
}

RemoteObject::~RemoteObject() = default;

QString RemoteObject::service() const
{
    return d->m_service;
}

void RemoteObject::send(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = d->message(method, arguments);
    call.setAutoStartService(false);
    if (!d->m_bus.send(call))
        qCWarning(lcPlatform, "can't send %ls to %ls: %ls", qUtf16Printable(method),
                  qUtf16Printable(d->m_service), qUtf16Printable(d->m_bus.lastError().message()));
}

void RemoteObject::ask(const QString &method, const QVariantList &arguments, QObject *context,
                       std::function<void(const Answer &)> answered, Service service)
{
    QDBusMessage call = d->message(method, arguments);
    call.setAutoStartService(service == Service::Started);
    constexpr int noLimit = std::numeric_limits<int>::max();
    auto *watcher = new QDBusPendingCallWatcher(d->m_bus.asyncCall(call, noLimit), context);
    connect(watcher, &QDBusPendingCallWatcher::finished, context,
            [watcher, answered = std::move(answered)] {
                answered(answerIn(watcher->reply()));
                watcher->deleteLater();
            });
}

std::function<RemoteObject::Answer()> RemoteObject::begin(const QString &method,
                                                          const QVariantList &arguments,
                                                          std::chrono::milliseconds limit)
{
    QDBusMessage call = d->message(method, arguments);
    call.setAutoStartService(false);
    return [pending = d->m_bus.asyncCall(call, static_cast<int>(limit.count()))]() mutable {
        pending.waitForFinished();
        return answerIn(pending.reply());
    };
}

RemoteObject::Answer RemoteObject::call(const QString &method, const QVariantList &arguments,
                                        std::chrono::milliseconds limit, bool startService)
{
    QDBusMessage call = d->message(method, arguments);
    call.setAutoStartService(startService);
    return answerIn(d->m_bus.call(call, QDBus::Block, static_cast<int>(limit.count())));
}

bool RemoteObject::isAvailable() const
{
    QDBusConnectionInterface *bus = d->m_bus.interface();
    return bus && bus->isServiceRegistered(d->m_service).value();
}
