#pragma once

#include <QObject>
#include <QString>

#include <functional>

/// Notifications by name between the user's processes, over the session bus: signals of the object
/// "/org/caravel/DistributedNotificationCenter" and the interface
/// "org.caravel.DistributedNotificationCenter", the member being the notification's name, without
/// arguments. Main thread.
class DistributedNotificationCenter : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// The session bus's centre, made at the first call. Without a bus it posts into the void.
    static DistributedNotificationCenter &defaultCenter();

    /// Sends the notification to every observer in every process of the user.
    virtual void post(const QString &name) = 0;

    enum class Own { Hear, Ignore };

    /// Calls `observer` on the main thread for each notification of that name, whoever posted it,
    /// as long as `context` lives. With Own::Ignore not for those that this process posted.
    virtual void observe(const QString &name, QObject *context, std::function<void()> observer,
                         Own own = Own::Hear) = 0;
};
