#pragma once

#include "platform/tray/Menu.h"

#include <functional>

class CVSyncManager;

/// The status item's menu: the status text, "Sync Now" (or "Cancel Sync"), "Eject PSP", "Open
/// Caravel" and "Quit", kept in line with what the sync manager can do. Main thread.
class StatusMenu
{
public:
    /// Each is called with the title that was chosen.
    struct Actions
    {
        using Action = std::function<void(const QString &title)>;
        Action syncNow;
        Action ejectPSP;
        Action openCaravel;
        Action quit;
    };
    /// The manager is not owned and outlives the menu.
    StatusMenu(CVSyncManager &manager, Actions actions);

    Menu &menu() { return m_menu; }

    void setStatusText(const QString &text);

    /// Brings titles and enabled states in line with the manager; whoever shows the menu asks for
    /// it too.
    void update();

private:
    CVSyncManager &m_manager;
    Menu m_menu;
};
