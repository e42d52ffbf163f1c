#include "app/SelectionLists.h"

#include "app/Log.h"
#include "modules/CVSyncMusic.h"
#include "sync/CVSyncManager.h"

#include <QSet>

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

void SelectionLists::setSelectedMusicIdentifiers(const QStringList &identifiers) const
{
    if (identifiers.contains(QString())) {
        qCWarning(lcApp) << "A music selection with an empty name was refused";
        return;
    }
    CVSyncMusic::setSelectedIdentifiers(identifiers, m_manager.pspVolume());
}
