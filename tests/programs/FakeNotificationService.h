#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The desktop's notifications, as "title: text", on the test program's session bus.
class FakeNotificationService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    FakeNotificationService()
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(m_name);
    }
    ~FakeNotificationService() override { QDBusConnection::sessionBus().unregisterService(m_name); }

    QStringList shown;

public Q_SLOTS:
    uint Notify(const QString &, uint replaces, const QString &, const QString &title,
                const QString &text, const QStringList &, const QVariantMap &, int)
    {
        shown.append(title + QStringLiteral(": ") + text);
        return replaces == 0 ? 1 : replaces;
    }

private:
    const QString m_name = QStringLiteral("org.freedesktop.Notifications");
};
