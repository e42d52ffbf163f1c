#include "modules/photos/CVSyncPhotos.h"

#include "support/PhotoLibraryFile.h"
#include "support/SyncHarness.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

class CVSyncPhotosTest : public testing::Test
{
protected:
    SyncHarness harness;
    PhotoLibraryFile library;
    const QString path = harness.home(u"Pictures/iPhoto Library/AlbumData.xml"_s);

    void SetUp() override { harness.set(u"enabledPhotos", QStringList{u"Holiday"_s, u"A / B"_s}); }

    std::string wishes() const { return SyncHarness::wishes(CVSyncPhotos(harness.stick())); }
    std::string wishesOf(const QByteArray &file) const
    {
        writeFile(path, file);
        return wishes();
    }
};

} // namespace

TEST_F(CVSyncPhotosTest, NamesPicturesByTheirCaptions)
{
    const struct
    {
        const char *path;
        std::optional<QString> caption;
    } images[] = {{"/p/a.jpeg", u"Sea"_s},    {"/p/b.JPG", u"IMG_1"_s},
                  {"/p/film.mov", u"Film"_s}, {"/p/c.Png", u"a/b: \"c\"?"_s},
                  {"/p/no caption.gif", {}},  {"relative.jpg", u"Relative"_s}};
    for (int key = 0; key < 6; ++key)
        library.addImage(QString::number(key), QLatin1String(images[key].path),
                         images[key].caption);
    library.addRawImage(u"6"_s, QVariantMap{{u"Caption"_s, u"No path"_s}});
    library.addRawImage(u"7"_s, u"no image"_s);
    library.addAlbum(u"Holiday"_s, list("0 2 99 3 4 5 6 7"));
    library.addAlbum(u"Unwanted"_s, list("0"));
    library.addAlbum(u"A / B"_s, list("1 0"));
    library.addRawAlbum(u"no album"_s);
    library.addRawAlbum(QVariantMap{{u"AlbumName"_s, 5}});
    EXPECT_EQ(wishesOf(library.contents()),
              "Holiday/Sea.jpeg < a.jpeg\nHoliday/a_b_ 'c'_.Png < c.Png\n"
              "Holiday/no caption.gif < no caption.gif\n"
              "A _ B/IMG_1.JPG < b.JPG\nA _ B/Sea.jpeg < a.jpeg");
    harness.set(u"sortPhotosBy", 1);
    EXPECT_EQ(wishes(), "Holiday/000. Sea.jpeg < a.jpeg\nHoliday/003. a_b_ 'c'_.Png < c.Png\n"
                        "Holiday/004. no caption.gif < no caption.gif\n"
                        "A _ B/000. IMG_1.JPG < b.JPG\nA _ B/001. Sea.jpeg < a.jpeg")
        << "what is skipped takes a number";
    harness.set(u"firmwareVersion", 0);
    EXPECT_EQ(wishes(), "Holiday/000. Sea.jpeg < a.jpeg\n"
                        "A _ B/000. IMG_1.JPG < b.JPG\nA _ B/001. Sea.jpeg < a.jpeg");
    const auto albums = CVSyncPhotos::availableIdentifiers();
    ASSERT_TRUE(albums && albums->size() == 4U);
    EXPECT_EQ((*albums)[0].size, 8);
    EXPECT_FALSE((*albums)[3].name);
}

TEST_F(CVSyncPhotosTest, FindsTheLibraryAndTheDropbox)
{
    EXPECT_FALSE(CVSyncPhotos::availableIdentifiers());
    library.addAlbum(u"Holiday"_s, list("1"));
    library.addImage(u"1"_s, u"/p/b.jpg"_s, u"own"_s);
    const QByteArray owned = library.contents();
    library.addImage(u"1"_s, u"/p/a.jpg"_s, u"usual"_s);
    const QByteArray good = library.contents();
    const QString own = harness.home(u"Own Place"_s);
    harness.defaults.editPersistentDomain(u"com.apple.iPhoto"_s, [&own](QVariantMap &domain) {
        domain.insert(u"RootDirectory"_s, own);
        return true;
    });
    EXPECT_EQ(wishesOf(good), "Holiday/usual.jpg < a.jpg") << "nothing lies in the own place";
    const QString preferences = harness.folder / u"preferences/com.apple.iPhoto.plist"_s;
    const QByteArray usable = readFile(preferences);
    writeFile(preferences, "garbage");
    EXPECT_EQ(wishes(), "Holiday/usual.jpg < a.jpg\nunreadable: com.apple.iPhoto.plist");
    writeFile(preferences, usable);
    writeFile(harness.home(u"elsewhere.xml"_s), owned);
    writeFile(own + u"/x"_s, {});
    ASSERT_TRUE(QFile::link(harness.home(u"elsewhere.xml"_s), own + u"/AlbumData.xml"_s));
    EXPECT_EQ(wishes(), "Holiday/own.jpg < b.jpg");
    QFile::remove(own + u"/AlbumData.xml"_s);

    for (const QString &name : list("Cards/front.png back.JPEG notes.txt x.jpg/y.bmp z.TIFF"))
        writeFile(harness.home(u"Documents/Caravel/Dropboxes/Photos/"_s + name), "dropped");
    for (const QByteArray &bad : {good.chopped(30), QByteArray(good).replace("<array>", "<arroy>"),
                                  PropertyList::toXml(QVariantList{1}), QByteArray()}) {
        const SystemLogCapture log;
        EXPECT_EQ(wishesOf(bad), "Cards/front.png < front.png\nback.JPEG < back.JPEG\n"
                                 "x.jpg/y.bmp < y.bmp\nz.TIFF < z.TIFF\n"
                                 "unreadable: AlbumData.xml");
        EXPECT_FALSE(CVSyncPhotos::availableIdentifiers());
        EXPECT_TRUE(log.contains(path)) << bad.constData();
    }
    harness.set(u"firmwareVersion", 0);
    harness.set(u"enabledPhotos", QStringList());
    EXPECT_EQ(wishes(), "back.JPEG < back.JPEG");
    harness.set(u"syncDropboxes", false);
    EXPECT_EQ(wishes(), "");
}

TEST_F(CVSyncPhotosTest, TakesFoldersAsAlbums)
{
    const QString pictures = harness.home(u"Pictures/"_s);
    for (const char *place : {"top.jpg", "Sea/b.PNG", "Sea/a.jpeg", "Sea/film.mov", "Sea/.c.jpg",
                              "Sea/Deep/d.bmp", "Texts/a.txt", ".thumbs/a.jpg"})
        writeFile(pictures + QLatin1String(place), "x");
    harness.set(u"photosSource", 1);
    harness.set(u"sortPhotosBy", 1);
    QStringList albums;
    const auto found = CVSyncPhotos::availableIdentifiers();
    for (const PhotoLibrary::Album &album : *found)
        albums.append(*album.name + u' ' + QString::number(album.size));
    EXPECT_EQ(joined(albums), "Pictures 1\nSea 2\nSea/Deep 1");
    EXPECT_EQ(wishes(), "") << "what is selected belongs to the other source";
    CVSyncPhotos::setSelectedIdentifiers({u"Sea/Deep"_s, u"Sea"_s}, {});
    EXPECT_EQ(wishes(), "Sea/000. a.jpeg < a.jpeg\nSea/001. b.PNG < b.PNG\n"
                        "Sea_Deep/000. d.bmp < d.bmp");
}
