#include "app/SelectionLists.h"

#include "app/Log.h"
#include "modules/CVSyncMovies.h"
#include "modules/CVSyncMusic.h"
#include "modules/CVSyncPhotos.h"
#include "sync/CVSyncManager.h"
#include "sync/ModuleSelection.h"

#include <QHash>
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

Kind kindOf(const PhotoLibrary::Album &album)
{
    static const QHash<QString, Kind> kinds{
        {QStringLiteral("Special Roll"), {QStringLiteral("iPhotoRoll"), 1}},
        {QStringLiteral("Special Month"), {QStringLiteral("iPhotoMonth"), 2}},
        {QStringLiteral("Smart"), {QStringLiteral("iPhotoSmartAlbum"), 3}},
        {QStringLiteral("Regular"), {QStringLiteral("iPhotoAlbum"), 4}},
        {QStringLiteral("Book"), {QStringLiteral("iPhotoBook"), 5}},
        {QStringLiteral("Slideshow"), {QStringLiteral("iPhotoSlideshow"), 6}},
    };
    if (album.isMaster)
        return {QStringLiteral("iPhotoLibrary"), 0};
    return kinds.value(album.type.value_or(QString()), {QStringLiteral("iPhotoAlbum"), 7});
}

QSet<QString> toSet(const std::optional<QStringList> &selection)
{
    return selection ? QSet<QString>(selection->begin(), selection->end()) : QSet<QString>();
}

QVariantMap row(const QString &name, const Kind &kind, qsizetype size,
                const QSet<QString> &selected)
{
    QVariantMap row{
        {QStringLiteral("identifier"), name},
        {QStringLiteral("name"), name},
        {QStringLiteral("icon"), kind.icon},
        {QStringLiteral("order"), kind.order},
        {QStringLiteral("size"), static_cast<int>(size)},
    };
    if (selected.contains(name))
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
    const QSet<QString> selected =
        toSet(CVSyncMusic::selectedIdentifiersForPSP(m_manager.pspVolume()));
    QVariantList rows;
    for (const MusicLibrary::Playlist &playlist : *playlists) {
        if (!playlist.isPartyShuffle && !playlist.isPurchasedMusic && !playlist.isVideos &&
            playlist.name)
            rows.append(row(*playlist.name, kindOf(playlist), playlist.size, selected));
    }
    return rows;
}

QVariantList SelectionLists::photosItems() const
{
    const auto albums = CVSyncPhotos::availableIdentifiers();
    if (!albums)
        return {};
    const QSet<QString> selected =
        toSet(CVSyncPhotos::selectedIdentifiersForPSP(m_manager.pspVolume()));
    QVariantList rows;
    for (const PhotoLibrary::Album &album : *albums) {
        if (album.name)
            rows.append(row(*album.name, kindOf(album), album.size, selected));
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
    setSelected(CVSyncPhotos::saveName(), identifiers, isRelativePath);
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
