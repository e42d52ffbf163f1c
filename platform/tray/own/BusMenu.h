#pragma once

#include <QString>

#include <memory>

class Menu;

/// A menu on the session bus, for who draws it: the interface "com.canonical.dbusmenu", version 3.
/// The root's id is 0, an item's its index + 1. Main thread. For this folder's own use.
class BusMenu
{
public:
    /// Served at the path as long as this lives. The menu is not owned and outlives this.
    BusMenu(Menu &menu, QString path);
    ~BusMenu();

    QString path() const { return m_path; }

private:
    class Object;

    const QString m_path;
    std::unique_ptr<Object> m_object;
};
