#include "modules/music/CVSyncMusic.h"

#include "support/MusicLibraryFile.h"
#include "support/SyncHarness.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

using Library = MusicLibraryFile;

QByteArray tags(const QString &name, const QString &artist, const QString &album)
{
    return Library::string("Name", name) + Library::string("Artist", artist) +
           Library::string("Album", album) + Library::integer("Disc Number", 1) +
           Library::integer("Track Number", 5);
}

class CVSyncMusicTest : public testing::Test
{
protected:
    SyncHarness harness;
    Library library;
    const QString path = harness.home(u"Music/iTunes/iTunes Music Library.xml"_s);

    void SetUp() override { harness.set(u"enabledMusic", list("Trip")); }

    std::string wishesOf(const QByteArray &file)
    {
        writeFile(path, file);
        return SyncHarness::wishes(CVSyncMusic(harness.stick()));
    }
    std::string wishes() { return wishesOf(library.contents()); }
    void drop(const char *name) const
    {
        writeFile(harness.home(u"Documents/Caravel/Dropboxes/Music/"_s + QLatin1String(name)), "x");
    }
};

} // namespace

TEST_F(CVSyncMusicTest, NamesFilesByThePreferences)
{
    library.addFile(7, u"/music/x%20y.Mp3"_s, tags(u"Song"_s, u"Band"_s, u"Record"_s));
    library.addFile(8, u"/music/b.m4a"_s, {});
    library.addPlaylist(u"Other"_s, {8});
    library.addPlaylist(u"Trip"_s, {7, 8});
    const struct
    {
        int organize, sort;
        const char *first, *second;
    } cases[] = {
        {2, 2, "Record/105. Song.Mp3", "Unsorted/000. Untitled.MP4"},
        {0, 2, "Trip/105. Band - Song.Mp3", "Trip/000. Unsorted - Untitled.MP4"},
        {1, 1, "Band/Song.Mp3", "Unsorted/Untitled.MP4"},
        {3, 0, "Band - Record/000. Song.Mp3", "Unsorted - Unsorted/001. Untitled.MP4"},
        {99, 99, "Record/105. Song.Mp3", "Unsorted/000. Untitled.MP4"},
    };
    for (const auto &c : cases) {
        harness.set(u"organizeMusicBy", c.organize);
        harness.set(u"sortMusicBy", c.sort);
        EXPECT_EQ(wishes(), std::string(c.first) + " < x y.Mp3\n" + c.second + " < b.m4a");
    }
    EXPECT_EQ(CVSyncMusic(harness.stick()).itemsToSync()[0].description, u"Record/105. Song"_s);
    EXPECT_EQ(CVSyncMusic(harness.stick()).rootSyncFolder(), harness.stick(u"PSP/MUSIC"_s));
}

TEST_F(CVSyncMusicTest, NumbersWhatIsPlayableInEachSelectedPlaylist)
{
    const QByteArray file = Library::string("Track Type", u"File"_s);
    const auto at = [](const char *place) {
        return Library::string("Location", u"file://localhost/m/"_s + QLatin1String(place));
    };
    const QByteArray tracks[] = {file + at("0.mp3"),
                                 file + at("1.m4a") +
                                     Library::string("Kind", u"Apple Lossless audio file"_s),
                                 Library::string("Track Type", u"URL"_s) + at("2.mp3"),
                                 at("3.mp3"),
                                 file,
                                 file + at("5.ogg"),
                                 file + Library::string("Location", u"https://host/6.mp3"_s),
                                 file + at("7.AAC"),
                                 file + at("%00.mp3"),
                                 file + at("9.wav"),
                                 file + at("10.mp3/")};
    for (int id = 0; id < 11; ++id)
        library.addTrack(id, tracks[id]);
    library.addPlaylist(u"Trip"_s, {99, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    library.addPlaylist(u"Trip"_s, {9});
    harness.set(u"organizeMusicBy", 0);
    harness.set(u"sortMusicBy", 0);
    EXPECT_EQ(wishes(), "Trip/000. Unsorted - Untitled.mp3 < 0.mp3\n"
                        "Trip/002. Unsorted - Untitled.MP4 < 7.AAC\n"
                        "Trip/004. Unsorted - Untitled.wav < 9.wav\n"
                        "Trip/005. Unsorted - Untitled.mp3 < 10.mp3\n"
                        "Trip/000. Unsorted - Untitled.wav < 9.wav");
    harness.set(u"firmwareVersion", 0);
    EXPECT_EQ(wishes(), "Trip/000. Unsorted - Untitled.mp3 < 0.mp3\n"
                        "Trip/003. Unsorted - Untitled.mp3 < 10.mp3");
    harness.set(u"enabledMusic", QStringList());
    EXPECT_EQ(wishes(), "");
    EXPECT_EQ(wishesOf("garbage"), "") << "a library that nobody asks for";
}

TEST_F(CVSyncMusicTest, KeepsEveryNameInItsPlace)
{
    harness.set(u"organizeMusicBy", 3);
    harness.set(u"sortMusicBy", 1);
    library.addFile(1, u"/m/1.mp3"_s, tags(u"../../x"_s, {}, u".. "_s));
    library.addFile(2, u"/m/2.mp3"_s, tags({}, u"AC/DC"_s, u"Live?"_s));
    library.addFile(3, u"/m/3.mp3"_s, tags(QString(300, u'n'), QString(300, u'a'), u"x"_s));
    library.addPlaylist(u"Trip"_s, {1, 2, 3});
    EXPECT_EQ(wishes(), " - ../.._.._x.mp3 < 1.mp3\nAC_DC - Live_/_.mp3 < 2.mp3\n" +
                            std::string(255, 'a') + '/' + std::string(251, 'n') + ".mp3 < 3.mp3");
}

TEST_F(CVSyncMusicTest, TakesWhatItCanOfLibrariesAndTheDropbox)
{
    for (const char *name : {"a.Mp3", "Live/Set.M4A", "folder.mp3/in.txt"})
        drop(name);
    const std::string dropped = "Live/Set.MP4 < Set.M4A\na.Mp3 < a.Mp3";
    library.addFile(1, u"/m/1.mp3"_s, tags(u"Song"_s, u"Band"_s, u"Record"_s));
    library.addFile(2, u"/m/2.mp3"_s,
                    "<key>Name</key><dict><key>x</key><string>y</string></dict>"
                    "<key>Artist</key><integer>5</integer><key>Album</key><array/>"
                    "<key>Track Number</key><string>7</string>");
    library.addTrack(3, "<key>Track Type</key><true/><key>Location</key><data>AAAA</data>");
    library.addRawPlaylist("<key>Name</key><array/><key>Playlist Items</key><dict/>");
    library.addRawPlaylist(Library::string("Name", u"Trip"_s) +
                           "<key>Playlist Items</key><array><string>1</string><dict><key>Track "
                           "ID</key><string>1</string></dict><dict><key>Track ID</key><integer>2"
                           "</integer></dict><array/><dict/><dict><key>Track ID</key><integer>1"
                           "</integer></dict></array>");
    EXPECT_EQ(wishes(),
              "Unsorted/000. Untitled.mp3 < 2.mp3\nRecord/105. Song.mp3 < 1.mp3\n" + dropped);
    const QByteArray good = library.contents();
    const struct
    {
        QByteArray file;
        const char *said;
    } cases[] = {
        {{}, "empty"},
        {good.left(good.size() / 2), "line"},
        {good.left(good.indexOf("<key>Playlists")), "line"},
        {"<html><body>\n</body></html>", "line 1"},
        {"<plist><array/></plist>", "no dictionary"},
        {"bplist00garbage", "music library"},
        {"<plist><dict><key>Tracks</key><array><dict/></array></dict></plist>", nullptr},
        {"<plist><dict><key>Playlists</key><string>none</string></dict></plist>", nullptr},
    };
    for (const auto &c : cases) {
        const SystemLogCapture log;
        const char *const unreadable = c.said ? "\nunreadable: iTunes Music Library.xml" : "";
        EXPECT_EQ(wishesOf(c.file), dropped + unreadable) << c.file.constData();
        EXPECT_EQ(log.contains(path), c.said != nullptr) << c.file.constData();
        EXPECT_TRUE(!c.said || log.contains(QLatin1String(c.said))) << joined(log.lines());
    }
    QFile::remove(path);
    const SystemLogCapture log;
    EXPECT_FALSE(CVSyncMusic::availableIdentifiers());
    EXPECT_TRUE(log.lines().isEmpty()) << "no library is nothing to speak of";
    harness.set(u"syncDropboxes", false);
    EXPECT_EQ(wishes(), "Unsorted/000. Untitled.mp3 < 2.mp3\nRecord/105. Song.mp3 < 1.mp3");
}
