#include "fuzz/Home.h"
#include "modules/music/own/FolderMusicLibrary.h"
#include "modules/music/own/RhythmboxLibrary.h"
#include "modules/music/own/TagIndex.h"

namespace {

using Part = MusicLibrary::Part;

/// What is selected is all that both ways of reading name.
void read(FileResult<MusicLibrary> (*reader)(const QString &, const MusicReading &),
          const QString &place)
{
    const auto small = reader(place, {});
    MusicReading reading{.part = Part::Everything};
    for (const MusicLibrary::Playlist &playlist :
         small ? small->playlists() : std::vector<MusicLibrary::Playlist>())
        reading.selected.insert(playlist.identifier().value_or(QString()));
    const auto library = reader(place, reading);
    promise(bool(small) == bool(library), "who can read a part can read everything");
    if (!library)
        return;
    promise(small->playlists().size() == library->playlists().size(), "both have all playlists");
    for (const MusicLibrary::Playlist &playlist : library->playlists()) {
        promise(static_cast<qsizetype>(playlist.tracks.size()) == playlist.size,
                "every entry is a track");
        for (const std::int64_t id : playlist.tracks)
            promise(library->track(id) && library->track(id)->location, "every track is a file");
    }
}

} // namespace

// The same bytes as each kind of playlist, as both of Rhythmbox's files, and as our own index of
// tags.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = bytesOf(data, size);
    const Home &home = Home::instance();
    home.write(QStringLiteral("Music/Band/One.mp3"), {});
    home.write(QStringLiteral("Music/Two.wav"), {});
    for (const char *extension : {"m3u", "m3u8", "pls", "xspf"})
        home.write(QStringLiteral("Music/List.") + QLatin1String(extension), input);
    home.write(QStringLiteral("Library/Application Support/Caravel/MusicTags"), input);
    read(readFolderMusic, home / QStringLiteral("Music"));
    const QString database = home.write(QStringLiteral("rhythmbox/rhythmdb.xml"), input);
    home.write(QStringLiteral("rhythmbox/playlists.xml"), input);
    read(readRhythmbox, database);
    return 0;
}
