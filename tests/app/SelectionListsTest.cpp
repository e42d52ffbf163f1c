#include "app/SelectionLists.h"

#include "app/Catalogue.h"
#include "support/MusicLibraryFile.h"
#include "support/PSFFile.h"
#include "support/PhotoLibraryFile.h"
#include "support/SyncHarness.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

class SelectionListsTest : public testing::Test
{
protected:
    SyncHarness harness;
    const ModuleCatalogue kinds = catalogue(harness.clock);
    const SelectionLists lists{kinds, harness.manager, harness.clock};

    void SetUp() override { harness.mountStick(); }

    /// The values of each row.
    static std::string shown(const QVariantList &rows, const char *keys)
    {
        QStringList lines;
        for (const QVariant &row : rows) {
            QStringList values;
            for (const QString &key : list(keys))
                values.append(row.toMap().value(key).toString());
            lines.append(values.join(u'|'));
        }
        return joined(lines);
    }
    std::string items(const char *kind) const
    {
        return shown(lists.items(QLatin1String(kind)), "identifier name icon order size enabled");
    }
};

} // namespace

TEST_F(SelectionListsTest, OfferTheLibrariesByKindAndMarkTheSelection)
{
    for (const char *kind : {"Music", "Photos", "Bookmarks", "Backup"})
        EXPECT_EQ(items(kind), "") << "no library";
    MusicLibraryFile music;
    music.addPlaylist(u"Library"_s, {1, 2, 3}, MusicLibraryFile::flag("Master"));
    for (const char *hidden : {"Party Shuffle", "Purchased Music", "Videos"})
        music.addPlaylist(QLatin1String(hidden), {1}, MusicLibraryFile::flag(hidden));
    music.addPlaylist(u"Talk"_s, {}, MusicLibraryFile::flag("Podcasts"));
    music.addPlaylist(u"Smart"_s, {1, 99}, "<key>Smart Info</key><data>AAAA</data>");
    music.addPlaylist(u"AC/DC: Live?"_s, {1});
    music.addRawPlaylist("<key>Playlist Items</key><array/>");
    writeFile(harness.home(u"Music/iTunes/iTunes Music Library.xml"_s), music.contents());
    lists.setSelected(u"Music"_s, {u"Smart"_s, u"AC/DC: Live?"_s, u"Videos"_s});
    EXPECT_EQ(items("Music"), "Library|Library|iTunesLibrary|0|3|\nTalk|Talk|iTunesPodcasts|1|0|\n"
                              "Smart|Smart|iTunesSmartPlaylist|2|2|true\n"
                              "AC/DC: Live?|AC/DC: Live?|iTunesPlaylist|3|1|true\n"
                              "||iTunesPlaylist|3|0|");
    EXPECT_TRUE(QDir(harness.home(u"Documents/Caravel/Dropboxes/Music"_s)).exists());

    PhotoLibraryFile photos;
    photos.addAlbum(u"All"_s, list("1 2"), {{u"Master"_s, true}});
    for (const char *type :
         {"Special Roll", "Special Month", "Smart", "Regular", "Book", "Slideshow", "Calendar"})
        photos.addAlbum(QString(QLatin1Char(*type)), {}, {{u"Album Type"_s, QLatin1String(type)}});
    photos.addAlbum(u"Plain"_s, list("1"));
    photos.addRawAlbum(QVariantMap{{u"KeyList"_s, QVariantList{1}}});
    writeFile(harness.home(u"Pictures/iPhoto Library/AlbumData.xml"_s), photos.contents());
    lists.setSelected(u"Photos"_s, {u"Plain"_s});
    EXPECT_EQ(items("Photos"), "All|All|iPhotoLibrary|0|2|\nS|S|iPhotoRoll|1|0|\n"
                               "S|S|iPhotoMonth|2|0|\nS|S|iPhotoSmartAlbum|3|0|\n"
                               "R|R|iPhotoAlbum|4|0|\nB|B|iPhotoBook|5|0|\n"
                               "S|S|iPhotoSlideshow|6|0|\nC|C|iPhotoAlbum|7|0|\n"
                               "Plain|Plain|iPhotoAlbum|7|1|true\n||iPhotoAlbum|7|1|");

    QVariantList folders;
    for (const char *title : {"BookmarksBar", "BookmarksMenu", "News"})
        folders.append(QVariantMap{{u"WebBookmarkType"_s, u"WebBookmarkTypeList"_s},
                                   {u"Title"_s, QLatin1String(title)},
                                   {u"Children"_s, QVariantList{QVariantMap()}}});
    writeFile(harness.home(u"Library/Safari/Bookmarks.plist"_s),
              PropertyList::toXml(QVariantMap{{u"Children"_s, folders}}));
    lists.setSelected(u"Bookmarks"_s, {u"BookmarksMenu"_s});
    EXPECT_EQ(items("Bookmarks"), "BookmarksBar|Bookmarks Bar|BookmarksBar|0|1|\n"
                                  "BookmarksMenu|Bookmarks Menu|BookmarksMenu|1|1|true\n"
                                  "News|News|Folder16|2|1|");
}

TEST_F(SelectionListsTest, TellWhatTheGamesSay)
{
    const QString root = harness.home(u"Documents/Caravel/Backup/Game Saves/"_s);
    const qint64 now = harness.clock.current.toSecsSinceEpoch();
    const struct
    {
        const char *save;
        qint64 ago;
        const char *texts;
    } backups[] = {{"A", 86400, "Game Slot Detail"},
                   {"A", 60, "Game"},
                   {"A", 120, "Game Slot"},
                   {"B", 60, nullptr},
                   {"C", 172800, "Other Slot2 Night3"}};
    for (const auto &backup : backups) {
        PSFFile parameters;
        const char *const keys[] = {"TITLE", "SAVEDATA_TITLE", "SAVEDATA_DETAIL"};
        for (int i = 0; backup.texts && i < 3; ++i)
            parameters.add(keys[i], 2, list(backup.texts).value(i).toUtf8() + '\0');
        writeFile(root +
                      u"%1/%2/%1/PARAM.SFO"_s.arg(QLatin1String(backup.save)).arg(now - backup.ago),
                  backup.texts ? parameters.contents() : QByteArray("garbage"));
    }
    for (const char *stray : {".DS_Store", "A/.DS_Store"})
        writeFile(root + QLatin1String(stray), {});
    QDir().mkpath(root + u"Empty"_s);
    EXPECT_EQ(shown(lists.backupItems(), "identifier name icon description date"),
              u"A|Game|%1A/%2/A/ICON0.PNG|No description available|Today 03:08 PM\n"
              "B|B|%1B/%2/B/ICON0.PNG|Unknown game save|Today 03:08 PM\n"
              "C|Other|%1C/%3/C/ICON0.PNG|Slot2|12-Mar-26 03:09 PM\n"
              "Empty|Empty||Unknown game save|01-Jan-70 12:00 AM"_s.arg(root)
                  .arg(now - 60)
                  .arg(now - 172800)
                  .toStdString());
    const QVariantList rows = lists.backupSubItemsForIdentifier(u"A"_s);
    EXPECT_EQ(shown(rows, "icon description date"), "Backup|Detail|Yesterday 03:09 PM\n"
                                                    "Backup|Slot|Today 03:07 PM\n"
                                                    "Backup|Game|Today 03:08 PM");
    EXPECT_EQ(rows[0].toMap()[u"identifier"_s], u"A/%1"_s.arg(now - 86400));
    EXPECT_EQ(rows[0].toMap()[u"timestamp"_s], double(now - 86400));
    for (const char *bad : {"", "..", "/", "A/..", "../Game Saves/A"})
        EXPECT_TRUE(lists.backupSubItemsForIdentifier(QLatin1String(bad)).isEmpty()) << bad;
}

TEST_F(SelectionListsTest, LeaveOutIdentifiersThatNameOtherPlaces)
{
    const QStringList sent =
        QString(u"AC/DC|AC//DC|Gym w/||.|..|a/../b|../x|/a.avi|Trip. .."_s).split(u'|');
    for (const QString &kind : list("Music Photos Bookmarks Movies Backup")) {
        const bool isPath = kind == u"Movies" || kind == u"Backup";
        QStringList taken = isPath ? QStringList{u"AC/DC"_s, u"Trip. .."_s} : sent;
        if (kind == u"Movies")
            taken.insert(1, u"/a.avi"_s);
        const SystemLogCapture log;
        lists.setSelected(kind, sent);
        EXPECT_EQ(harness.defaults.stringArrayForKey(u"enabled"_s + kind), taken);
        EXPECT_EQ(PropertyList::readStringArray(harness.stick(u".caravel/%1.plist"_s.arg(kind)))
                      .valueOr({}),
                  taken)
            << "the stick's own";
        EXPECT_EQ(log.contains(u"\"a/../b\""_s), isPath);
    }
}
