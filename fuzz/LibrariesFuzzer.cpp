#include "fuzz/Home.h"
#include "modules/music/MusicLibrary.h"
#include "modules/photos/PhotoLibrary.h"

namespace {

void readMusic(const QString &path)
{
    const auto small = MusicLibrary::read(path, MusicLibrary::Part::PlaylistsOnly);
    const auto library = MusicLibrary::read(path, MusicLibrary::Part::Everything);
    if (!library)
        return; // what is skipped may be damaged all the same
    promise(bool(small), "who can read everything can read a part");
    promise(small->playlists().size() == library->playlists().size(), "both have all playlists");
    for (const MusicLibrary::Playlist &playlist : library->playlists()) {
        promise(static_cast<qsizetype>(playlist.tracks.size()) <= playlist.size,
                "every track is an entry");
        for (const std::int64_t id : playlist.tracks) {
            // Touches every byte of the texts.
            if (const auto track = library->track(id))
                for (const auto &text : {track->location, track->artist, track->album, track->name})
                    QByteArray(text.value_or("").data(),
                               static_cast<qsizetype>(text.value_or("").size()));
        }
    }
}

void readPhotos(const QString &path)
{
    const auto small = PhotoLibrary::read(path, PhotoLibrary::Part::AlbumsOnly);
    const auto library = PhotoLibrary::read(path, PhotoLibrary::Part::Everything);
    if (!library)
        return; // what is skipped may be damaged all the same
    promise(bool(small), "who can read everything can read a part");
    promise(small->albums().size() == library->albums().size(), "both have all albums");
    for (const PhotoLibrary::Album &album : library->albums()) {
        promise(album.keys.size() <= album.size, "every key is an entry");
        for (const QString &key : album.keys)
            library->image(key);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = Home::instance().write(QStringLiteral("library.xml"), bytesOf(data, size));
    readMusic(path);
    readPhotos(path);
    return 0;
}
