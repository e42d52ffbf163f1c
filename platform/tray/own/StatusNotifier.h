#pragma once

#include "platform/tray/own/BusMenu.h"
#include "platform/tray/own/StatusImages.h"

#include <QString>

#include <memory>

class Menu;

/// A status item on the session bus, as the StatusNotifierItem interface describes it: trays read
/// its image and its menu. Main thread. For this folder's own use.
class StatusNotifier
{
public:
    /// Served as long as this lives, under a bus name of its own; what it refers to outlives it.
    StatusNotifier(StatusImages &images, Menu &menu);
    ~StatusNotifier();

    void setImage(const QString &name);
    void setToolTip(const QString &text);
    /// Asks the desktop's watcher to show it. Once for each watcher that appears.
    void registerWithWatcher() const;
    /// The watcher's bus name.
    static QString watcher();

private:
    class Object;

    BusMenu m_menu;
    std::unique_ptr<Object> m_object;
    QString m_busName;
};
