#include "app/Sources.h"

#include "modules/bookmarks/CVSyncBookmarks.h"
#include "modules/music/CVSyncMusic.h"
#include "modules/photos/CVSyncPhotos.h"
#include "platform/files/FileManager.h"
#include "util/Settings.h"

namespace {

// Libraries of one file that are longer are not read to be counted: that would be felt.
constexpr quint64 countedBytes = 64ULL << 20;

template <typename Number>
struct Source
{
    Number number;
    const char *title;
};

template <typename Number, typename Place, typename List>
QVariantMap row(const QString &kind, const Source<Number> &source, bool isChosen, Place placeOf,
                List listOf)
{
    const QString place = placeOf(source.number);
    const FileStatus status = files().status(place);
    int entries = status.exists() ? -1 : 0;
    if (status.exists() && (status.isFolder() || status.size <= countedBytes)) {
        if (const auto list = listOf(source.number))
            entries = static_cast<int>(list->size());
    }
    return {
        {QStringLiteral("kind"), kind},
        {QStringLiteral("value"), static_cast<int>(source.number)},
        {QStringLiteral("title"), QString::fromLatin1(source.title)},
        {QStringLiteral("place"), place},
        {QStringLiteral("found"), status.exists()},
        {QStringLiteral("chosen"), isChosen},
        {QStringLiteral("entries"), entries},
    };
}

} // namespace

QVariantList Sources::rows()
{
    using Settings::BookmarkBrowser;
    using Settings::MusicSource;
    using Settings::PhotosSource;
    static constexpr Source<MusicSource> music[] = {
        {MusicSource::ITunes, "iTunes"},
        {MusicSource::Folders, "Folders and playlists"},
        {MusicSource::Rhythmbox, "Rhythmbox"},
    };
    static constexpr Source<PhotosSource> photos[] = {
        {PhotosSource::IPhoto, "iPhoto"},
        {PhotosSource::Folders, "Folders"},
    };
    static constexpr Source<BookmarkBrowser> bookmarks[] = {
        {BookmarkBrowser::Safari, "Safari"},   {BookmarkBrowser::Firefox, "Firefox (page)"},
        {BookmarkBrowser::OmniWeb, "OmniWeb"}, {BookmarkBrowser::Camino, "Camino"},
        {BookmarkBrowser::Places, "Firefox"},  {BookmarkBrowser::Chromium, "Chromium"},
    };
    QVariantList rows;
    for (const auto &source : music)
        rows.append(row(CVSyncMusic::saveName(), source, source.number == Settings::musicLibrary(),
                        CVSyncMusic::placeOf, CVSyncMusic::playlistsOf));
    for (const auto &source : photos)
        rows.append(row(CVSyncPhotos::saveName(), source, source.number == Settings::photoLibrary(),
                        CVSyncPhotos::placeOf, CVSyncPhotos::albumsOf));
    for (const auto &source : bookmarks)
        rows.append(
            row(CVSyncBookmarks::saveName(), source, source.number == Settings::bookmarkSource(),
                CVSyncBookmarks::placeOf,
                [](BookmarkBrowser browser) { return CVSyncBookmarks::foldersOf(browser); }));
    return rows;
}
