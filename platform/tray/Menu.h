#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

/// A menu as its owner sees it: titles to choose from. Who shows it (a tray, a bus) follows its
/// signals and tells it what the user does. Main thread.
class Menu : public QObject
{
    Q_OBJECT
public:
    struct Item
    {
        QString title;
        /// Called with the title that was chosen; empty: choosing it does nothing.
        std::function<void(const QString &title)> action;
        bool enabled = true;
    };

    using QObject::QObject;

    int count() const { return static_cast<int>(m_items.size()); }
    const Item &itemAtIndex(int index) const { return m_items[static_cast<size_t>(index)]; }
    void addItem(Item item);
    void setTitle(int index, const QString &title);
    void setEnabled(int index, bool enabled);

    /// Whether someone shows it now.
    bool isOpen() const { return m_isOpen; }

    // --- For who shows it

    /// Lets the owner bring titles and enabled states up to date.
    void update() { Q_EMIT needsUpdate(); }
    /// Tells that it is on the screen, after an update(), or no longer.
    void setOpen(bool open);
    /// Performs an item's action from the event loop; passed over where the item is disabled or
    /// isn't there.
    void choose(int index);

Q_SIGNALS:
    void needsUpdate();
    void openChanged(bool open);
    void itemChanged(int index);

private:
    std::vector<Item> m_items;
    bool m_isOpen = false;
};
