#include "app/StatusMenu.h"

#include "platform/core/Localized.h"
#include "sync/CVSyncManager.h"

namespace {

constexpr int statusItem = 0;

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
    for (int index = 0; index < m_menu.count(); ++index)
        m_menu.setEnabled(index, validateMenuItem(index));
}

bool StatusMenu::validateMenuItem(int index)
{
    const auto hasTitle = [&](const char *text) {
        return m_menu.itemAtIndex(index).title == localized(text);
    };
    if (hasTitle("Sync Now") && m_manager.isSyncing())
        m_menu.setTitle(index, localized("Cancel Sync"));
    else if (hasTitle("Cancel Sync") && !m_manager.isSyncing())
        m_menu.setTitle(index, localized("Sync Now"));
    if (hasTitle("Sync Now") || hasTitle("Eject PSP"))
        return m_manager.canSync();
    return !hasTitle("Cancel Sync") || m_manager.canCancelSync();
}
