#include "app/SelectionLists.h"

#include "app/Log.h"
#include "modules/CVSyncMovies.h"
#include "modules/CVSyncMusic.h"
#include "sync/CVSyncManager.h"
#include "sync/ModuleSelection.h"

#include <QSet>

#include <algorithm>

namespace {

struct Kind
{
    QString icon;
    int order;
};

Kind kindOf(const MusicLibrary::Playlist &playlist)
{
    if (playlist.isMaster)
        return {QStringLiteral("iTunesLibrary"), 0};
    if (playlist.isPodcasts)
        return {QStringLiteral("iTunesPodcasts"), 1};
    if (playlist.isSmart)
        return {QStringLiteral("iTunesSmartPlaylist"), 2};
    return {QStringLiteral("iTunesPlaylist"), 3};
}

QVariantMap row(const MusicLibrary::Playlist &playlist, const QSet<QString> &selected)
{
    const Kind kind = kindOf(playlist);
    QVariantMap row{
        {QStringLiteral("identifier"), *playlist.name},
        {QStringLiteral("name"), *playlist.name},
        {QStringLiteral("icon"), kind.icon},
        {QStringLiteral("order"), kind.order},
        {QStringLiteral("size"), static_cast<int>(playlist.size)},
    };
    if (selected.contains(*playlist.name))
        row.insert(QStringLiteral("enabled"), true);
    return row;
}

// What comes over the bus may name anything. Slashes in names are the user's own.
bool isRelativePath(const QString &identifier)
{
    const QStringList components = identifier.split(u'/');
    return std::none_of(components.begin(), components.end(), [](const QString &each) {
        return each.isEmpty() || each == u"." || each == u"..";
    });
}

// A movie that waits for its conversion goes by the path of its source.
bool isMovie(const QString &identifier)
{
    return isRelativePath(identifier.startsWith(u'/') ? identifier.mid(1) : identifier);
}

} // namespace

QVariantList SelectionLists::musicItems() const
{
    const auto playlists = CVSyncMusic::availableIdentifiers();
    if (!playlists)
        return {};
    const QStringList selection =
        CVSyncMusic::selectedIdentifiersForPSP(m_manager.pspVolume()).value_or(QStringList());
    const QSet<QString> selected(selection.begin(), selection.end());
    QVariantList rows;
    for (const MusicLibrary::Playlist &playlist : *playlists) {
        if (!playlist.isPartyShuffle && !playlist.isPurchasedMusic && !playlist.isVideos &&
            playlist.name)
            rows.append(row(playlist, selected));
    }
    return rows;
}

void SelectionLists::setSelected(const QString &moduleSaveName, const QStringList &identifiers,
                                 bool (*isGood)(const QString &)) const
{
    const auto bad = std::find_if_not(identifiers.begin(), identifiers.end(), isGood);
    if (bad != identifiers.end()) {
        qCWarning(lcApp).noquote().nospace() << "A selection was refused for its identifier \""
                                             << *bad << "\" (" << moduleSaveName << ')';
        return;
    }
    ModuleSelection::store(identifiers, moduleSaveName, m_manager.pspVolume());
}

void SelectionLists::setSelectedMusicIdentifiers(const QStringList &identifiers) const
{
    setSelected(CVSyncMusic::saveName(), identifiers, isRelativePath);
}

void SelectionLists::setSelectedPhotosIdentifiers(const QStringList &identifiers) const
{
    setSelected(QStringLiteral("Photos"), identifiers, isRelativePath);
}

void SelectionLists::setSelectedBookmarksIdentifiers(const QStringList &identifiers) const
{
    setSelected(QStringLiteral("Bookmarks"), identifiers, isRelativePath);
}

void SelectionLists::setSelectedMoviesIdentifiers(const QStringList &identifiers) const
{
    setSelected(CVSyncMovies::saveName(), identifiers, isMovie);
}

void SelectionLists::setSelectedBackupIdentifiers(const QStringList &identifiers) const
{
    setSelected(QStringLiteral("Backup"), identifiers, isRelativePath);
}
