#include "modules/music/CVSyncMusic.h"
#include "support/MusicLibraryFile.h"
#include "support/SyncHarness.h"
#include "util/PathComponents.h"

#include <QDir>

#include <gmock/gmock.h>

namespace {

using Library = MusicLibraryFile;

QByteArray tags(const QString &name, const QString &artist, const QString &album, int disc = 1,
                int track = 5)
{
    return Library::string("Name", name) + Library::string("Artist", artist) +
           Library::string("Album", album) + Library::integer("Disc Number", disc) +
           Library::integer("Track Number", track);
}

class CVSyncMusicTest : public testing::Test
{
protected:
    SyncHarness harness;
    Library library;

    void SetUp() override
    {
        harness.mountStick();
        select({u"Road Trip"_s});
    }

    QString libraryPath() const { return harness.home(u"Music/iTunes/iTunes Music Library.xml"_s); }
    void select(const QStringList &names)
    {
        CVSyncMusic::setSelectedIdentifiers(names, harness.stick());
    }
    void set(const char *key, const QVariant &value)
    {
        harness.defaults.setObject(QString::fromLatin1(key), value);
    }

    std::vector<CVSyncItem> itemsOf(const QByteArray &file)
    {
        writeFile(libraryPath(), file);
        return CVSyncMusic(harness.stick()).itemsToSync();
    }
    /// Destinations of everything that is to be synced, below the module's folder.
    QStringList placesOf(const QByteArray &file)
    {
        QStringList places;
        for (const CVSyncItem &item : itemsOf(file))
            places.append(item.destination.mid(harness.stick(u"PSP/MUSIC/"_s).size()));
        return places;
    }
    QStringList places() { return placesOf(library.contents()); }
};

} // namespace

TEST_F(CVSyncMusicTest, NamesFilesByThePreferences)
{
    library.addFile(7, u"/music/x%20y.Mp3"_s, tags(u"Song"_s, u"Band"_s, u"Record"_s));
    library.addFile(8, u"/music/b.m4a"_s, QByteArray());
    library.addPlaylist(u"Road Trip"_s, {7, 8});
    struct Case
    {
        int organize;
        int sort;
        const char *first;
        const char *second;
    };
    const Case cases[] = {
        {2, 2, "Record/105. Song.Mp3", "Unsorted/000. Untitled.MP4"},
        {0, 2, "Road Trip/105. Band - Song.Mp3", "Road Trip/000. Unsorted - Untitled.MP4"},
        {1, 1, "Band/Song.Mp3", "Unsorted/Untitled.MP4"},
        {3, 0, "Band - Record/000. Song.Mp3", "Unsorted - Unsorted/001. Untitled.MP4"},
        {99, 99, "Record/105. Song.Mp3", "Unsorted/000. Untitled.MP4"},
    };
    for (const Case &c : cases) {
        set("organizeMusicBy", c.organize);
        set("sortMusicBy", c.sort);
        EXPECT_EQ(places(),
                  (QStringList{QString::fromLatin1(c.first), QString::fromLatin1(c.second)}));
    }
    const auto items = itemsOf(library.contents());
    EXPECT_EQ(items[0].source, u"/music/x y.Mp3"_s);
    EXPECT_EQ(items[0].description, u"Record/105. Song"_s);
}

TEST_F(CVSyncMusicTest, NumbersWhatIsPlayableInEachSelectedPlaylist)
{
    const auto file = [](const char *path) {
        return Library::string("Location", u"file://localhost/m/"_s + QString::fromLatin1(path));
    };
    const QByteArray isFile = Library::string("Track Type", u"File"_s);
    library.addTrack(1, isFile + file("1.mp3"));
    library.addTrack(2, isFile + file("2.m4a") +
                            Library::string("Kind", u"Apple Lossless audio file"_s));
    library.addTrack(3, Library::string("Track Type", u"URL"_s) + file("3.mp3"));
    library.addTrack(4, file("4.mp3"));
    library.addTrack(5, isFile);
    library.addTrack(6, isFile + file("6.ogg"));
    library.addTrack(7, isFile + Library::string("Location", u"https://host/7.mp3"_s));
    library.addTrack(8, isFile + file("8.AAC"));
    library.addTrack(9, isFile + file("9.wav"));
    library.addTrack(10, isFile + file("%00.mp3"));
    library.addPlaylist(u"Other"_s, {1});
    library.addPlaylist(u"Road Trip"_s, {99, 1, 2, 3, 4, 5, 6, 7, 8, 10, 9});
    library.addPlaylist(u"Road Trip"_s, {9});
    set("organizeMusicBy", 0);
    set("sortMusicBy", 0);
    const QString name = u"Road Trip/%1. Unsorted - Untitled.%2"_s;
    EXPECT_EQ(places(), (QStringList{name.arg(u"000"_s, u"mp3"_s), name.arg(u"002"_s, u"MP4"_s),
                                     name.arg(u"004"_s, u"wav"_s), name.arg(u"000"_s, u"wav"_s)}));
    set("firmwareVersion", 0);
    EXPECT_EQ(places(), QStringList{name.arg(u"000"_s, u"mp3"_s)});
    select({});
    EXPECT_TRUE(places().isEmpty());
}

TEST_F(CVSyncMusicTest, KeepsEveryNameInItsPlace)
{
    const QString accent = u"Cafe\u0301"_s;
    const QString emoji = QString::fromUtf8("\xF0\x9F\x8E\xB5");
    struct Case
    {
        QString title;
        QString place;
    };
    const Case cases[] = {
        {u"AC/DC: Live?"_s, u"AC_DC_ Live_"_s},
        {QString(), u"_"_s},
        {u"."_s, u"_"_s},
        {u".."_s, u"._"_s},
        {u".. "_s, u"_"_s},
        {u"../../x"_s, u".._.._x"_s},
        {u"a\tb"_s, u"a\tb"_s},
        {u"Caf\u00e9"_s, accent},
        {QString(300, u'n'), QString(251, u'n')},
        {emoji.repeated(100), emoji.repeated(62)},
        {accent.repeated(60), accent.repeated(41) + u"Cafe\u0301"_s.left(3)},
    };
    set("organizeMusicBy", 1);
    set("sortMusicBy", 1);
    for (const Case &c : cases) {
        Library one;
        one.addFile(1, u"/m/1.mp3"_s, tags(c.title, c.title, QString()));
        one.addPlaylist(u"Road Trip"_s, {1});
        const QStringList found = placesOf(one.contents());
        ASSERT_EQ(found.size(), 1) << qPrintable(c.title);
        const QStringList components = found[0].split(u'/');
        ASSERT_EQ(components.size(), 2) << qPrintable(found[0]);
        EXPECT_EQ(components[1], c.place + u".mp3"_s) << qPrintable(c.title);
        for (const QString &component : components) {
            EXPECT_LE(component.toUtf8().size(), PathComponents::maximumBytes);
            EXPECT_NE(component, u".."_s);
            EXPECT_FALSE(component.isEmpty());
        }
    }
}

TEST_F(CVSyncMusicTest, AddsTheDropbox)
{
    const QString dropbox = harness.home(u"Documents/Caravel/Dropboxes/Music/"_s);
    writeFile(dropbox + u"Live/Set.M4A"_s, "set");
    writeFile(dropbox + u"folder.mp3/inside.txt"_s, "not for the stick");
    writeFile(dropbox + u"a.Mp3"_s, "a");
    const auto items = itemsOf(library.contents());
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].source, dropbox + u"Live/Set.M4A"_s);
    EXPECT_EQ(items[0].destination, harness.stick(u"PSP/MUSIC/Live/Set.MP4"_s));
    EXPECT_EQ(items[0].description, u"Live/Set.M4A"_s);
    EXPECT_EQ(items[1].destination, harness.stick(u"PSP/MUSIC/a.Mp3"_s));
    set("syncDropboxes", false);
    EXPECT_TRUE(places().isEmpty());
}

TEST_F(CVSyncMusicTest, SurvivesLibrariesThatAreBroken)
{
    library.addFile(1, u"/m/1.mp3"_s, tags(u"Song"_s, u"Band"_s, u"Record"_s));
    library.addPlaylist(u"Road Trip"_s, {1});
    const QByteArray good = library.contents();
    writeFile(harness.home(u"Documents/Caravel/Dropboxes/Music/drop.mp3"_s), "drop");
    const QStringList dropboxOnly{u"drop.mp3"_s};

    struct Case
    {
        const char *what;
        QByteArray file;
        const char *said;
    };
    const Case cases[] = {
        {"empty", {}, "empty"},
        {"truncated", good.left(good.size() / 2), "line 5"},
        {"cut after the tracks", good.left(good.indexOf("<key>Playlists")), "line 7"},
        {"not a list", "<html><body>\n</body></html>", "line 1"},
        {"text", "iTunes", "line 1"},
        {"an array", "<plist><array/></plist>", "no dictionary"},
        {"broken binary", "bplist00garbage", "music library"},
    };
    for (const Case &c : cases) {
        const SystemLogCapture log;
        EXPECT_EQ(placesOf(c.file), dropboxOnly) << c.what;
        EXPECT_TRUE(log.contains(libraryPath())) << c.what;
        EXPECT_TRUE(log.contains(QString::fromLatin1(c.said)))
            << c.what << qPrintable(log.lines().join(u'\n'));
    }
    const SystemLogCapture log;
    QFile::remove(libraryPath());
    EXPECT_FALSE(CVSyncMusic::availableIdentifiers());
    EXPECT_TRUE(log.lines().isEmpty()) << "no library is nothing to speak of";
}

TEST_F(CVSyncMusicTest, PassesOverValuesOfAWrongType)
{
    library.addFile(1, u"/m/1.mp3"_s, tags(u"Song"_s, u"Band"_s, u"Record"_s));
    library.addFile(2, u"/m/2.mp3"_s,
                    "<key>Name</key><dict><key>x</key><string>y</string></dict><key>Artist</"
                    "key><integer>5</integer>"
                    "<key>Album</key><array><string>z</string></array><key>Track "
                    "Number</key><string>7</string>");
    library.addTrack(3, "<key>Track Type</key><true/><key>Location</key><data>AAAA</data>");
    library.addRawPlaylist("<key>Name</key><array/><key>Playlist Items</key><dict/>");
    library.addRawPlaylist(Library::string("Name", u"Road Trip"_s) +
                           "<key>Playlist Items</key><array><string>1</string><dict><key>Track "
                           "ID</key><string>1</string></dict>"
                           "<dict><key>Track ID</key><integer>2</integer></dict><array/><dict/>"
                           "<dict><key>Track ID</key><integer>1</integer></dict></array>");
    const QStringList expected{u"Unsorted/000. Untitled.mp3"_s, u"Record/105. Song.mp3"_s};
    EXPECT_EQ(places(), expected);
    for (const char *root :
         {"<key>Tracks</key><array><dict/></array>", "<key>Playlists</key><string>none</string>"})
        EXPECT_TRUE(placesOf("<plist><dict>" + QByteArray(root) + "</dict></plist>").isEmpty());
}

TEST_F(CVSyncMusicTest, SyncsThroughAPretendedRun)
{
    SyncHarness run{{CVSyncMusic::kind()}};
    run.mountStick();
    writeFile(run.folder / u"m/1.mp3"_s, "one");
    QDir().mkpath(run.folder / u"m/2.mp3"_s);
    Library mixed;
    const QByteArray names = tags(u"Song"_s, u"Band"_s, u"Record"_s);
    mixed.addFile(1, run.folder / u"m/1.mp3"_s, names);
    mixed.addFile(2, run.folder / u"m/2.mp3"_s, tags(u"A folder"_s, QString(), QString()));
    mixed.addFile(3, run.folder / u"m/missing.mp3"_s, tags(u"Missing"_s, QString(), QString()));
    mixed.addPlaylist(u"Road Trip"_s, {1, 2, 3, 1});
    writeFile(run.home(u"Music/iTunes/iTunes Music Library.xml"_s), mixed.contents());
    CVSyncMusic::setSelectedIdentifiers({u"Road Trip"_s}, run.stick());
    ASSERT_TRUE(run.run());
    EXPECT_TRUE(treeOf(run.stick(u"PSP/MUSIC"_s)).contains(u"Record/105. Song.mp3"_s));
    EXPECT_TRUE(treeOf(run.stick(u"PSP/MUSIC"_s)).contains(u"Record/105. Song.1.mp3"_s));
    EXPECT_TRUE(run.run());
    EXPECT_EQ(run.delegate.events.filter(u"syncWillProcessItem"_s).size(), 0) << "all is in place";
}
