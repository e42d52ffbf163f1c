#include "app/SelectionLists.h"

#include "support/MusicLibraryFile.h"
#include "support/PhotoLibraryFile.h"
#include "support/SyncHarness.h"

#include <gtest/gtest.h>

TEST(MusicItems, OffersPlaylistsByKindAndMarksTheSelection)
{
    using Library = MusicLibraryFile;
    SyncHarness harness;
    harness.mountStick();
    const SelectionLists lists(harness.manager, harness.clock);
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
    lists.setSelectedMusicIdentifiers(
        {QStringLiteral("Smart"), QStringLiteral("AC/DC: Live?"), QStringLiteral("Films")});

    QStringList rows;
    for (const QVariant &item : lists.musicItems()) {
        const QVariantMap row = item.toMap();
        EXPECT_EQ(row.value(QStringLiteral("name")), row.value(QStringLiteral("identifier")));
        rows.append(QStringLiteral("%1 %2 %3 %4 %5")
                        .arg(row.value(QStringLiteral("name")).toString(),
                             row.value(QStringLiteral("icon")).toString())
                        .arg(row.value(QStringLiteral("order")).toInt())
                        .arg(row.value(QStringLiteral("size")).toInt())
                        .arg(row.contains(QStringLiteral("enabled")) ? QStringLiteral("enabled")
                                                                     : QStringLiteral("-")));
    }
    EXPECT_EQ(rows, (QStringList{QStringLiteral("Library iTunesLibrary 0 3 -"),
                                 QStringLiteral("Talk iTunesPodcasts 1 0 -"),
                                 QStringLiteral("Smart iTunesSmartPlaylist 2 2 enabled"),
                                 QStringLiteral("AC/DC: Live? iTunesPlaylist 3 1 enabled")}));
    EXPECT_TRUE(treeOf(harness.home(QStringLiteral("Documents")))
                    .contains(QStringLiteral("Caravel/Dropboxes/Music/")));
}

TEST(PhotosItems, OffersAlbumsByKind)
{
    SyncHarness harness;
    const SelectionLists lists(harness.manager, harness.clock);
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
    lists.setSelectedPhotosIdentifiers({QStringLiteral("Plain")});
    QStringList rows;
    for (const QVariant &item : lists.photosItems()) {
        const QVariantMap row = item.toMap();
        rows.append(
            QStringLiteral("%1 %2 %3%4")
                .arg(row.value(QStringLiteral("icon")).toString())
                .arg(row.value(QStringLiteral("order")).toInt())
                .arg(row.value(QStringLiteral("size")).toInt())
                .arg(row.contains(QStringLiteral("enabled")) ? QStringLiteral("+") : QString()));
    }
    EXPECT_EQ(rows.join(u','),
              QStringLiteral("iPhotoLibrary 0 2,iPhotoRoll 1 0,iPhotoMonth 2 0,iPhotoSmartAlbum 3 "
                             "0,iPhotoAlbum 4 0,iPhotoBook 5 0,iPhotoSlideshow 6 0,iPhotoAlbum 7 "
                             "0,iPhotoAlbum 7 1+"));
}

TEST(Selections, RefuseIdentifiersThatNameOtherPlaces)
{
    SyncHarness harness;
    const SelectionLists lists(harness.manager, harness.clock);
    using Select = void (SelectionLists::*)(const QStringList &) const;
    const struct
    {
        const char *key;
        Select select;
        bool takesPaths; // of sources
    } kinds[] = {
        {"enabledMusic", &SelectionLists::setSelectedMusicIdentifiers, false},
        {"enabledPhotos", &SelectionLists::setSelectedPhotosIdentifiers, false},
        {"enabledBookmarks", &SelectionLists::setSelectedBookmarksIdentifiers, false},
        {"enabledMovies", &SelectionLists::setSelectedMoviesIdentifiers, true},
        {"enabledBackup", &SelectionLists::setSelectedBackupIdentifiers, false},
    };
    for (const auto &kind : kinds) {
        const QString key = QString::fromLatin1(kind.key);
        const QStringList good{QStringLiteral("AC/DC"), QStringLiteral("Trip. ..")};
        (lists.*kind.select)(good);
        EXPECT_EQ(harness.defaults.stringArrayForKey(key), good);
        const SystemLogCapture log;
        for (const char *bad : {"", ".", "..", "a/../b", "a//b", "a/", "../x"}) {
            (lists.*kind.select)({QStringLiteral("other"), QString::fromLatin1(bad)});
            EXPECT_EQ(harness.defaults.stringArrayForKey(key), good) << kind.key << ' ' << bad;
        }
        (lists.*kind.select)({QStringLiteral("/etc/passwd")});
        EXPECT_EQ(harness.defaults.stringArrayForKey(key) == good, !kind.takesPaths) << kind.key;
        EXPECT_TRUE(log.contains(QStringLiteral("\"a/../b\""))) << kind.key;
    }
}
