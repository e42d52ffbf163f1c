#include "app/SelectionLists.h"
#include "app/Catalogue.h"

#include "support/MusicLibraryFile.h"
#include "support/PSFFile.h"
#include "support/PhotoLibraryFile.h"
#include "support/SyncHarness.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

/// "identifier icon order size", the name in parentheses where it is another.
std::string described(const QVariantList &rows)
{
    QStringList lines;
    for (const QVariant &item : rows) {
        const QVariantMap row = item.toMap();
        QString line = row.value(QStringLiteral("identifier")).toString();
        if (row.value(QStringLiteral("name")).toString() != line)
            line += QStringLiteral(" (%1)").arg(row.value(QStringLiteral("name")).toString());
        for (const char *key : {"icon", "order", "size"})
            line += u' ' + row.value(QString::fromLatin1(key)).toString();
        if (row.value(QStringLiteral("enabled")).toBool())
            line += QStringLiteral(" enabled");
        EXPECT_EQ(row.size(), row.contains(QStringLiteral("enabled")) ? 6 : 5);
        lines.append(line);
    }
    return lines.join(QStringLiteral(", ")).toStdString();
}

} // namespace

TEST(MusicItems, OffersPlaylistsByKindAndMarksTheSelection)
{
    using Library = MusicLibraryFile;
    SyncHarness harness;
    harness.mountStick();
    const ModuleCatalogue kinds = catalogue(harness.clock);
    const SelectionLists lists(kinds, harness.manager, harness.clock);
    EXPECT_TRUE(lists.musicItems().isEmpty()) << "no library";

    Library library;
    library.addPlaylist(QStringLiteral("Library"), {1, 2, 3}, Library::flag("Master"));
    library.addPlaylist(QStringLiteral("Party"), {1}, Library::flag("Party Shuffle"));
    library.addPlaylist(QStringLiteral("Bought"), {1}, Library::flag("Purchased Music"));
    library.addPlaylist(QStringLiteral("Films"), {1}, Library::flag("Videos"));
    library.addPlaylist(QStringLiteral("Talk"), {}, Library::flag("Podcasts"));
    library.addPlaylist(QStringLiteral("Smart"), {1, 99}, "<key>Smart Info</key><data>AAAA</data>");
    library.addPlaylist(QStringLiteral("AC/DC: Live?"), {1});
    library.addRawPlaylist("<key>Playlist Items</key><array/>");
    writeFile(harness.home(QStringLiteral("Music/iTunes/iTunes Music Library.xml")),
              library.contents());
    lists.setSelected(
        QStringLiteral("Music"),
        {QStringLiteral("Smart"), QStringLiteral("AC/DC: Live?"), QStringLiteral("Films")});

    EXPECT_EQ(described(lists.musicItems()),
              "Library iTunesLibrary 0 3, Talk iTunesPodcasts 1 0, "
              "Smart iTunesSmartPlaylist 2 2 enabled, AC/DC: Live? iTunesPlaylist 3 1 enabled");
    EXPECT_TRUE(treeOf(harness.home(QStringLiteral("Documents")))
                    .contains(QStringLiteral("Caravel/Dropboxes/Music/")));
}

TEST(PhotosItems, OffersAlbumsByKind)
{
    SyncHarness harness;
    const ModuleCatalogue kinds = catalogue(harness.clock);
    const SelectionLists lists(kinds, harness.manager, harness.clock);
    EXPECT_TRUE(lists.photosItems().isEmpty());
    PhotoLibraryFile library;
    const auto type = [](const char *name) {
        return QVariantMap{{QStringLiteral("Album Type"), QString::fromLatin1(name)}};
    };
    library.addAlbum(QStringLiteral("All"), {QStringLiteral("1"), QStringLiteral("2")},
                     {{QStringLiteral("Master"), true}});
    for (const char *name :
         {"Special Roll", "Special Month", "Smart", "Regular", "Book", "Slideshow", "Calendar"})
        library.addAlbum(QString::fromLatin1(name), {}, type(name));
    library.addAlbum(QStringLiteral("Plain"), {QStringLiteral("1")});
    writeFile(harness.home(QStringLiteral("Pictures/iPhoto Library/AlbumData.xml")),
              library.contents());
    lists.setSelected(QStringLiteral("Photos"), {QStringLiteral("Plain")});
    EXPECT_EQ(described(lists.photosItems()),
              "All iPhotoLibrary 0 2, Special Roll iPhotoRoll 1 0, Special Month iPhotoMonth 2 0, "
              "Smart iPhotoSmartAlbum 3 0, Regular iPhotoAlbum 4 0, Book iPhotoBook 5 0, "
              "Slideshow iPhotoSlideshow 6 0, Calendar iPhotoAlbum 7 0, "
              "Plain iPhotoAlbum 7 1 enabled");
}

TEST(BookmarksItems, OffersTopLevelFolders)
{
    SyncHarness harness;
    const ModuleCatalogue kinds = catalogue(harness.clock);
    const SelectionLists lists(kinds, harness.manager, harness.clock);
    EXPECT_TRUE(lists.bookmarksItems().isEmpty());
    const auto folder = [](const char *title, int size) {
        return QByteArray("<dict><key>WebBookmarkType</key><string>WebBookmarkTypeList</string>"
                          "<key>Title</key><string>") +
               title + "</string><key>Children</key><array>" +
               QByteArray("<dict/>").repeated(size) + "</array></dict>";
    };
    writeFile(harness.home(QStringLiteral("Library/Safari/Bookmarks.plist")),
              "<plist><dict><key>Children</key><array>" + folder("BookmarksBar", 2) +
                  folder("BookmarksMenu", 0) + folder("News", 1) + "</array></dict></plist>");
    lists.setSelected(QStringLiteral("Bookmarks"), {QStringLiteral("BookmarksMenu")});
    EXPECT_EQ(described(lists.bookmarksItems()),
              "BookmarksBar (Bookmarks Bar) BookmarksBar 0 2, "
              "BookmarksMenu (Bookmarks Menu) BookmarksMenu 1 0 enabled, News Folder16 2 1");
}

TEST(BackupItems, TellWhatTheGameSays)
{
    SyncHarness harness;
    const ModuleCatalogue kinds = catalogue(harness.clock);
    const SelectionLists lists(kinds, harness.manager, harness.clock);
    EXPECT_TRUE(lists.backupItems().isEmpty());
    const QString root = harness.home(QStringLiteral("Documents/Caravel/Backup/Game Saves/"));
    const qint64 now = harness.clock.current.toSecsSinceEpoch();
    const auto put = [&](const char *save, qint64 ago, std::optional<QList<QByteArray>> texts) {
        const QString name = QString::fromLatin1(save);
        const QString folder = root + QStringLiteral("%1/%2/%1").arg(name).arg(now - ago);
        PSFFile parameters;
        for (int i = 0; texts && i < 3; ++i) {
            const char *const keys[] = {"TITLE", "SAVEDATA_TITLE", "SAVEDATA_DETAIL"};
            parameters.add(keys[i], 2, texts->at(i) + '\0');
        }
        writeFile(folder + QStringLiteral("/PARAM.SFO"),
                  texts ? parameters.contents() : QByteArray("garbage"));
    };
    put("A", 86400, {{"Game", "Slot", "Detail"}});
    put("A", 60, {{"Game", "", ""}});
    put("A", 120, {{"Game", "Slot", ""}});
    put("B", 60, std::nullopt);
    put("C", 2 * 86400, {{"Other", "Slot 2", "Night 3"}});
    for (const char *stray : {".DS_Store", "A/.DS_Store", "Empty/x"})
        writeFile(root + QString::fromLatin1(stray), {});
    QFile::remove(root + QStringLiteral("Empty/x"));

    const auto texts = [](const QVariantList &rows, std::initializer_list<const char *> keys) {
        QStringList lines;
        for (const QVariant &row : rows) {
            QStringList parts;
            for (const char *key : keys)
                parts.append(row.toMap().value(QString::fromLatin1(key)).toString());
            lines.append(parts.join(u'|'));
        }
        return lines.join(u'\n').toStdString();
    };
    EXPECT_EQ(texts(lists.backupItems(), {"identifier", "name", "description", "date"}),
              "A|Game|No description available|Today 03:08 PM\n"
              "B|B|Unknown game save|Today 03:08 PM\n"
              "C|Other|Slot 2|12-Mar-26 03:09 PM");
    EXPECT_EQ(texts(lists.backupItems(), {"icon"}).substr(0, 400),
              (root + QStringLiteral("A/%1/A/ICON0.PNG\n").arg(now - 60) + root +
               QStringLiteral("B/%1/B/ICON0.PNG\n").arg(now - 60) + root +
               QStringLiteral("C/%1/C/ICON0.PNG").arg(now - 2 * 86400))
                  .toStdString());
    EXPECT_EQ(texts(lists.backupSubItemsForIdentifier(QStringLiteral("A")),
                    {"icon", "description", "date"}),
              "Backup|Detail|Yesterday 03:09 PM\nBackup|Slot|Today 03:07 PM\n"
              "Backup|Game|Today 03:08 PM");
    EXPECT_EQ(lists.backupSubItemsForIdentifier(QStringLiteral("A"))[0],
              QVariant(QVariantMap{
                  {QStringLiteral("identifier"), QStringLiteral("A/%1").arg(now - 86400)},
                  {QStringLiteral("icon"), QStringLiteral("Backup")},
                  {QStringLiteral("description"), QStringLiteral("Detail")},
                  {QStringLiteral("date"), QStringLiteral("Yesterday 03:09 PM")},
                  {QStringLiteral("timestamp"), double(now - 86400)}}));
    for (const char *bad : {"", "..", "/", "A/..", "../Game Saves/A"})
        EXPECT_TRUE(lists.backupSubItemsForIdentifier(QString::fromLatin1(bad)).isEmpty()) << bad;
}

TEST(Selections, RefuseIdentifiersThatNameOtherPlaces)
{
    SyncHarness harness;
    const ModuleCatalogue kinds = catalogue(harness.clock);
    const SelectionLists lists(kinds, harness.manager, harness.clock);
    for (const char *name : {"Music", "Photos", "Bookmarks", "Movies", "Backup"}) {
        const QString saveName = QString::fromLatin1(name);
        const QString key = QStringLiteral("enabled") + saveName;
        const QStringList good{QStringLiteral("AC/DC"), QStringLiteral("Trip. ..")};
        lists.setSelected(saveName, good);
        EXPECT_EQ(harness.defaults.stringArrayForKey(key), good);
        const SystemLogCapture log;
        for (const char *bad : {"", ".", "..", "a/../b", "a//b", "a/", "../x"}) {
            lists.setSelected(saveName, {QStringLiteral("other"), QString::fromLatin1(bad)});
            EXPECT_EQ(harness.defaults.stringArrayForKey(key), good) << name << ' ' << bad;
        }
        lists.setSelected(saveName, {QStringLiteral("/etc/passwd")});
        EXPECT_EQ(harness.defaults.stringArrayForKey(key) == good, saveName != u"Movies") << name;
        EXPECT_TRUE(log.contains(QStringLiteral("\"a/../b\""))) << name;
    }
}
