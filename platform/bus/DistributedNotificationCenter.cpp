#include "platform/bus/DistributedNotificationCenter.h"

#include "platform/core/Log.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>

namespace {

const QString objectPath = QStringLiteral("/org/caravel/DistributedNotificationCenter");
const QString interfaceName = QStringLiteral("org.caravel.DistributedNotificationCenter");

// One observation; a child of its context, so that it ends with it.
class Observation : public QObject
{
    Q_OBJECT
public:
    Observation(QObject *context, std::function<void()> observer,
                DistributedNotificationCenter::Own own)
        : QObject(context)
        , m_observer(std::move(observer))
        , m_own(own)
    {
    }

public Q_SLOTS:
    void received(const QDBusMessage &signal)
    {
        if (m_own == DistributedNotificationCenter::Own::Ignore &&
            signal.service() == QDBusConnection::sessionBus().baseService())
            return;
        m_observer();
    }

private:
    const std::function<void()> m_observer;
    const DistributedNotificationCenter::Own m_own;
};

class BusNotificationCenter : public DistributedNotificationCenter
{
public:
    BusNotificationCenter()
        : m_bus(QDBusConnection::sessionBus())
    {
        if (!m_bus.isConnected())
            qCWarning(lcPlatform, "no session bus (%ls): notifications reach no other process",
                      qUtf16Printable(m_bus.lastError().message()));
    }

    void post(const QString &name) override
    {
        if (!m_bus.isConnected())
            return;
        if (!m_bus.send(QDBusMessage::createSignal(objectPath, interfaceName, name)))
            qCWarning(lcPlatform, "can't post the notification \"%ls\": %ls", qUtf16Printable(name),
                      qUtf16Printable(m_bus.lastError().message()));
    }

    void observe(const QString &name, QObject *context, std::function<void()> observer,
                 Own own) override
    {
        if (!m_bus.isConnected())
            return;
        auto *observation = new Observation(context, std::move(observer), own);
        if (!m_bus.connect(QString(), objectPath, interfaceName, name, observation,
                           SLOT(received(QDBusMessage))))
            qCWarning(lcPlatform, "can't observe the notification \"%ls\"", qUtf16Printable(name));
    }

private:
    QDBusConnection m_bus;
};

} // namespace

DistributedNotificationCenter &DistributedNotificationCenter::defaultCenter()
{
    static BusNotificationCenter center;
    return center;
}

#include "DistributedNotificationCenter.moc"
