#pragma once

#include "sync/ModuleKind.h"

#include <QStringList>
#include <QVariantList>

#include <atomic>

class Clock;
class CVSyncManager;

/// The lists that the front-end offers for selection, and the selections it sends back. A list is
/// read anew at each call. Of a selection, an identifier that could name a place outside of ours is
/// left out, with a line in the system log. Lists on any thread, all else on the main one.
class SelectionLists
{
public:
    /// Not owned, outlive the lists.
    SelectionLists(const ModuleCatalogue &catalogue, CVSyncManager &manager, const Clock &clock)
        : m_catalogue(catalogue)
        , m_manager(manager)
        , m_clock(clock)
    {
    }

    /// Readings that would leave something behind end early from now on; for a process that is
    /// about to end.
    void close() { m_isClosed = true; }

    /// The rows of the kind of that save name; none for a kind without a list here.
    QVariantList items(const QString &saveName) const;
    void setSelected(const QString &saveName, const QStringList &identifiers) const;

    /// Rows of the selectable playlists in library order: "identifier", "name", "icon" (image
    /// name), "order" (rank of its kind), "size" (entries), and "enabled" = true where selected.
    QVariantList musicItems() const;
    /// The same for the photo library's albums.
    QVariantList photosItems() const;
    /// The same for the top-level folders of the chosen browser's bookmarks.
    QVariantList bookmarksItems() const;
    /// Rows of the game saves that have backups: "identifier", "name", "icon" (an image's path),
    /// "description" and "date" of the newest one.
    QVariantList backupItems() const;
    /// Rows of one save's backups, oldest first: "identifier" ("<save>/<timestamp>"), "icon",
    /// "description", "date" and "timestamp" (seconds since 1970).
    QVariantList backupSubItemsForIdentifier(const QString &identifier) const;

private:
    QString dateText(double timestamp) const;

    const ModuleCatalogue &m_catalogue;
    CVSyncManager &m_manager;
    const Clock &m_clock;
    std::atomic<bool> m_isClosed = false;
};
