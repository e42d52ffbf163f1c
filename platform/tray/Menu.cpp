#include "platform/tray/Menu.h"

#include <utility>

void Menu::addItem(Item item)
{
    m_items.push_back(std::move(item));
}

void Menu::setTitle(int index, const QString &title)
{
    if (std::exchange(m_items[static_cast<size_t>(index)].title, title) != title)
        Q_EMIT itemChanged(index);
}

void Menu::setEnabled(int index, bool enabled)
{
    if (std::exchange(m_items[static_cast<size_t>(index)].enabled, enabled) != enabled)
        Q_EMIT itemChanged(index);
}

void Menu::setOpen(bool open)
{
    if (open)
        update();
    if (std::exchange(m_isOpen, open) != open)
        Q_EMIT openChanged(open);
}

void Menu::choose(int index)
{
    if (index < 0 || index >= count() || !itemAtIndex(index).enabled)
        return;
    // An action may end the program; who reports the choice has its answer first.
    const Item &item = itemAtIndex(index);
    if (item.action)
        QMetaObject::invokeMethod(
            this, [action = item.action, title = item.title] { action(title); },
            Qt::QueuedConnection);
}
