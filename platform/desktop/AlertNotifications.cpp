#include "platform/desktop/Alerts.h"

#include "platform/core/Log.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QHash>
#include <QVariantMap>

#include <utility>

namespace {

QString iconName(AlertStyle style)
{
    switch (style) {
    case AlertStyle::Warning:
        return QStringLiteral("dialog-warning");
    case AlertStyle::Informational:
        return QStringLiteral("dialog-information");
    case AlertStyle::Critical:
        return QStringLiteral("dialog-error");
    }
    return {};
}

// An alert is never to be missed.
enum class Lasts { AsUsual, UntilDismissed };

struct Look
{
    uint replaced; // the service's number of the notification whose place it takes; 0: none
    QString icon;
    Lasts lasts;
};

QDBusMessage callFor(const Look &look, const QString &title, const QString &message)
{
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"),
                                       service, QStringLiteral("Notify"));
    const bool stays = look.lasts == Lasts::UntilDismissed;
    // Urgency: 1 is normal, 2 stays until it is dismissed. Time: 0 is for ever, -1 the service's.
    const QVariantMap hints{
        {QStringLiteral("urgency"), QVariant::fromValue<uchar>(stays ? 2 : 1)},
        {QStringLiteral("desktop-entry"), QStringLiteral("org.caravel.Caravel")}};
    call.setArguments({QStringLiteral("Caravel"), look.replaced, look.icon, title,
                       message.toHtmlEscaped(), QStringList(), hints, stays ? 0 : -1});
    return call;
}

/// Through the bus service "org.freedesktop.Notifications".
class AlertNotifications : public Alerts
{
public:
    void show(const QString &title, const QString &message, AlertStyle style) override
    {
        const QDBusMessage call =
            callFor({m_shown.value({title, message}, 0U), iconName(style), Lasts::UntilDismissed},
                    title, message);
        auto *watcher =
            new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), &m_calls);
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &m_calls,
                         [this, title, message, watcher] { answered(title, message, *watcher); });
    }

    void notify(const QString &title, const QString &message) override
    {
        QDBusConnection::sessionBus().send(
            callFor({0U, iconName(AlertStyle::Informational), Lasts::AsUsual}, title, message));
    }

private:
    void answered(const QString &title, const QString &message, QDBusPendingCallWatcher &watcher)
    {
        const QDBusPendingReply<uint> reply = watcher;
        if (reply.isError())
            qCWarning(lcPlatform).noquote() << "An alert that can't be shown:" << title << message;
        else
            m_shown.insert({title, message}, reply.value());
        watcher.deleteLater();
    }

    // The service's number of the notification of that title and message
    QHash<std::pair<QString, QString>, uint> m_shown;
    QObject m_calls; // owns those under way
};

} // namespace

std::unique_ptr<Alerts> makeAlertNotifications()
{
    return std::make_unique<AlertNotifications>();
}
