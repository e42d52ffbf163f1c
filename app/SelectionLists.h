#pragma once

#include <QStringList>
#include <QVariantList>

class CVSyncManager;

/// The lists that the front-end offers for selection, and the selections it sends back. A list is
/// read anew at each call. A selection with an identifier that could name a place outside of ours
/// is refused whole, with a line in the system log. Main thread.
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
    /// The same for the photo library's albums.
    QVariantList photosItems() const;
    void setSelectedPhotosIdentifiers(const QStringList &identifiers) const;
    void setSelectedBookmarksIdentifiers(const QStringList &identifiers) const;
    void setSelectedMoviesIdentifiers(const QStringList &identifiers) const;
    void setSelectedBackupIdentifiers(const QStringList &identifiers) const;

private:
    void setSelected(const QString &moduleSaveName, const QStringList &identifiers,
                     bool (*isGood)(const QString &)) const;

    const CVSyncManager &m_manager;
};
