#include "app/StatusMenu.h"

#include "platform/core/Localized.h"
#include "sync/CVSyncManager.h"

namespace {

// The items that change, by their places.
constexpr int statusItem = 0;
constexpr int syncItem = 1;
constexpr int ejectItem = 2;

} // namespace

StatusMenu::StatusMenu(CVSyncManager &manager, Actions actions)
    : m_manager(manager)
{
    m_menu.addItem({QString(), {}});
    m_menu.addItem({localized("Sync Now"), std::move(actions.syncNow)});
    m_menu.addItem({localized("Eject PSP"), std::move(actions.ejectPSP)});
    m_menu.addItem({localized("Open Caravel"), std::move(actions.openCaravel)});
    m_menu.addItem({localized("Quit"), std::move(actions.quit)});
    QObject::connect(&m_menu, &Menu::needsUpdate, &m_menu, [this] { update(); });
}

void StatusMenu::setStatusText(const QString &text)
{
    m_menu.setTitle(statusItem, text);
}

void StatusMenu::update()
{
    const bool syncing = m_manager.isSyncing();
    const bool canSync = m_manager.canSync();
    m_menu.setTitle(syncItem, syncing ? localized("Cancel Sync") : localized("Sync Now"));
    m_menu.setEnabled(syncItem, syncing ? m_manager.canCancelSync() : canSync);
    m_menu.setEnabled(ejectItem, canSync);
}
