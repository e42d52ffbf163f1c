#pragma once

#include <QString>

#include <memory>

/// How an alert presses; numbers as the protocol carries them.
enum class AlertStyle { Warning = 0, Informational = 1, Critical = 2 };

/// Shows alerts to the user. Main thread; never waits for the user.
class Alerts
{
public:
    virtual ~Alerts() = default;
    virtual void show(const QString &title, const QString &message, AlertStyle style) = 0;
    /// Good news, as a desktop notification that goes by itself; nothing where there are none.
    virtual void notify(const QString &title, const QString &message) = 0;
};

/// Windows that block nothing: one per alert, which the same alert again brings forward.
std::unique_ptr<Alerts> makeAlertWindows();

/// Desktop notifications; an alert that none is there for goes to the system log.
std::unique_ptr<Alerts> makeAlertNotifications();

/// Windows where there is a display, else notifications.
std::unique_ptr<Alerts> makeAlerts();
