#include "modules/model/Model.h"
#include "modules/music/CVSyncMusic.h"
#include "support/MusicLibraryFile.h"

#include <QUrl>

#include <gtest/gtest.h>

using namespace model;

namespace {

struct Track
{
    std::optional<QString> artist, album, name;
    QString path; // of its file, which may be missing
    bool isLossy;
    bool isFile;      // else a stream
    int disc, number; // 0: none
};

bool isPlayed(const QString &path, int firmware)
{
    return hasExtension(path, {"MP3"}) ||
           (firmware >= 1 && hasExtension(path, {"M4A", "AAC", "WAV", "MP4"}));
}

QString stickExtension(const QString &extension)
{
    const QString upper = extension.toUpper();
    return upper == u"M4A" || upper == u"AAC" ? u"MP4"_s : extension;
}

QString placeOf(const World &world, const QString &playlist, const Track &track, int position)
{
    const int sort = world.setting("sortMusicBy");
    const int organize = world.setting("organizeMusicBy");
    const QString a = cleanName(track.artist.value_or(u"Unsorted"_s));
    const QString l = cleanName(track.album.value_or(u"Unsorted"_s));
    const QString t = cleanName(track.name.value_or(u"Untitled"_s));
    QString prefix;
    if (sort == 0)
        prefix = u"%1. "_s.arg(position, 3, 10, QChar(u'0'));
    else if (sort != 1)
        prefix = u"%1%2. "_s.arg(track.disc).arg(track.number, 2, 10, QChar(u'0'));
    const QString folder = organize == 0   ? cleanName(playlist)
                           : organize == 1 ? a
                           : organize == 3 ? a + u" - "_s + l
                                           : l;
    const QString name = organize == 0 ? prefix + a + u" - "_s + t : prefix + t;
    return asComponent(folder) + u'/' + asComponent(name) + u'.' +
           stickExtension(extensionOf(track.path));
}

std::vector<Wish> wishesOf(const World &world, const std::map<int, Track> &tracks,
                           const std::vector<Collection> &playlists)
{
    std::vector<Wish> wishes;
    for (const Collection &playlist : playlists) {
        if (!world.selected().contains(playlist.name))
            continue;
        int position = 0;
        for (const int id : playlist.members) {
            const auto track = tracks.find(id);
            if (track == tracks.end() || !track->second.isFile || !track->second.isLossy ||
                !isPlayed(track->second.path, world.setting("firmwareVersion")))
                continue;
            wishes.push_back(
                {track->second.path, placeOf(world, playlist.name, track->second, position++)});
        }
    }
    return wishes;
}

std::map<int, Track> rollTracks(World &world, Dice &dice, const QString &folder)
{
    std::map<int, Track> tracks;
    for (const auto &[id, path] : rollFiles(
             world, dice, folder, {"mp3", "MP3", "m4a", "aac", "wav", "mp4", "Mp3", "ogg", "aif"}))
        tracks[id] = {dice.maybeWord(), dice.maybeWord(), dice.maybeWord(), path,
                      !dice.once(8),    !dice.once(8),    dice.below(3),    dice.below(13)};
    return tracks;
}

QByteArray insideOf(const Track &track)
{
    const auto text = [](const char *key, const std::optional<QString> &value) {
        return value ? MusicLibraryFile::string(key, *value) : QByteArray();
    };
    const auto number = [](const char *key, int value) {
        return value > 0 ? MusicLibraryFile::integer(key, value) : QByteArray();
    };
    return text("Artist", track.artist) + text("Album", track.album) + text("Name", track.name) +
           text("Kind", track.isLossy ? u"MPEG audio file"_s : u"Apple Lossless audio file"_s) +
           text("Track Type", track.isFile ? u"File"_s : u"URL"_s) +
           text("Location", QString::fromLatin1(QUrl::fromLocalFile(track.path).toEncoded())) +
           number("Disc Number", track.disc) + number("Track Number", track.number);
}

std::vector<Wish> roll(World &world, Dice &dice, SyncHarness &harness)
{
    const auto tracks = rollTracks(world, dice, harness.home(u"files/Music"_s));
    const auto playlists = rollCollections(world, dice);
    MusicLibraryFile library;
    for (const auto &[id, track] : tracks)
        library.addTrack(id, insideOf(track));
    for (const Collection &playlist : playlists)
        library.addPlaylist(playlist.name, playlist.members);
    put(world.home, harness.home(u"Music/iTunes/iTunes Music Library.xml"_s), library.contents());

    std::vector<Wish> wishes = wishesOf(world, tracks, playlists);
    for (const auto &[source, place] :
         drop(world, dice, u"Music"_s,
              {"._0.mp3", "0.MP4", "0.aac", "0.m4a", "0.mp3", "0.ogg", "Band/1.wav",
               "Own.mp3/in.Mp3", "x/x.1.mp3", "x/x.mp3"})) {
        const QString extension = extensionOf(place);
        if (isPlayed(place, world.setting("firmwareVersion")))
            wishes.push_back({source, place.chopped(extension.size()) + stickExtension(extension)});
    }
    return wishes;
}

} // namespace

TEST(Model, AgreesOnMusic)
{
    holdAgainstTheRules(
        {.name = u"Music"_s,
         .folder = u"PSP/MUSIC"_s,
         .catalogue = {CVSyncMusic::kind()},
         .settings = {{"sortMusicBy", {0, 1, 2, 7}}, {"organizeMusicBy", {0, 1, 2, 3}}},
         .roll = roll});
}
