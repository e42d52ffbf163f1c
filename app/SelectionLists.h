#pragma once

#include <QStringList>
#include <QVariantList>

class CVSyncManager;

/// The lists that the front-end offers for selection, and the selections it sends back. A list is
/// read anew at each call. Main thread.
class SelectionLists
{
public:
    /// Not owned, outlives the lists.
    explicit SelectionLists(const CVSyncManager &manager)
        : m_manager(manager)
    {
    }

    /// Rows of the selectable playlists in library order: "identifier", "name", "icon" (image
    /// name), "order" (rank of its kind), "size" (entries), and "enabled" = true where selected.
    QVariantList musicItems() const;
    void setSelectedMusicIdentifiers(const QStringList &identifiers) const;

private:
    const CVSyncManager &m_manager;
};
