#include "modules/photos/CVSyncPhotos.h"

#include "support/PhotoLibraryFile.h"
#include "support/SyncHarness.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

class CVSyncPhotosTest : public testing::Test
{
protected:
    SyncHarness harness{{CVSyncPhotos::kind()}};
    PhotoLibraryFile library;
    const QString defaultPlace = harness.home(u"Pictures/iPhoto Library/AlbumData.xml"_s);

    void SetUp() override
    {
        harness.mountStick();
        select(list({"Holiday", "Trip / 2006"}));
    }

    void select(const QStringList &names) const
    {
        CVSyncPhotos::setSelectedIdentifiers(names, harness.stick());
    }
    void set(const char *key, const QVariant &value)
    {
        harness.defaults.setObject(QString::fromLatin1(key), value);
    }
    void addImage(const char *key, const char *path, std::optional<QString> caption)
    {
        library.addImage(QString::fromLatin1(key), QString::fromUtf8(path), caption);
    }
    /// "place on the stick < source" of everything that is to be synced.
    QStringList items()
    {
        QStringList lines;
        for (const CVSyncItem &item : CVSyncPhotos(harness.stick()).itemsToSync())
            lines.append(item.destination.mid(harness.stick(u"PSP/PHOTO/"_s).size()) + u" < "_s +
                         item.source.section(u'/', -1));
        return lines;
    }
};

} // namespace

TEST_F(CVSyncPhotosTest, NamesPicturesByTheirCaptions)
{
    addImage("1", "/pics/a.jpeg", u"Beach"_s);
    addImage("2", "/pics/b.JPG", u"IMG_0001"_s);
    addImage("3", "/pics/film.mov", u"Film"_s);
    addImage("4", "/pics/c.Png", QStringLiteral("a/b: \"c\"?"));
    addImage("5", "/pics/no caption.gif", std::nullopt);
    addImage("6", "relative.jpg", u"Relative"_s);
    library.addRawImage(u"7"_s, QVariantMap{{u"Caption"_s, u"No path"_s}});
    library.addRawImage(u"8"_s, u"no image"_s);
    library.addAlbum(u"Holiday"_s, list({"1", "3", "99", "4", "5", "6", "7", "8"}));
    library.addAlbum(u"Unwanted"_s, list({"1"}));
    library.addAlbum(u"Trip / 2006"_s, list({"2", "1"}));
    library.addRawAlbum(u"no album"_s);
    library.addRawAlbum(QVariantMap{{u"AlbumName"_s, 5}});
    writeFile(defaultPlace, library.contents());
    EXPECT_EQ(items(),
              list({"Holiday/Beach.jpeg < a.jpeg", "Holiday/a_b_ 'c'_.Png < c.Png",
                    "Holiday/no caption.gif < no caption.gif", "Trip _ 2006/IMG_0001.JPG < b.JPG",
                    "Trip _ 2006/Beach.jpeg < a.jpeg"}));
    set("sortPhotosBy", 1);
    set("firmwareVersion", 0);
    EXPECT_EQ(items(),
              list({"Holiday/000. Beach.jpeg < a.jpeg", "Trip _ 2006/000. IMG_0001.JPG < b.JPG",
                    "Trip _ 2006/001. Beach.jpeg < a.jpeg"}));
    set("firmwareVersion", 1);
    EXPECT_EQ(items().mid(0, 3),
              list({"Holiday/000. Beach.jpeg < a.jpeg", "Holiday/003. a_b_ 'c'_.Png < c.Png",
                    "Holiday/004. no caption.gif < no caption.gif"}))
        << "what is skipped takes a number";

    const auto albums = CVSyncPhotos::availableIdentifiers();
    ASSERT_TRUE(albums);
    ASSERT_EQ(albums->size(), 4U);
    EXPECT_EQ((*albums)[0].size, 8);
    EXPECT_FALSE((*albums)[3].name);
}

TEST_F(CVSyncPhotosTest, FindsTheLibraryAndTheDropbox)
{
    EXPECT_FALSE(CVSyncPhotos::availableIdentifiers());
    addImage("1", "/pics/a.jpg", u"default"_s);
    library.addAlbum(u"Holiday"_s, list({"1"}));
    writeFile(defaultPlace, library.contents());
    const QString own = harness.home(u"Own Place"_s);
    harness.defaults.editPersistentDomain(u"com.apple.iPhoto"_s, [&own](QVariantMap &domain) {
        domain.insert(u"RootDirectory"_s, own);
        return true;
    });
    EXPECT_EQ(items(), list({"Holiday/default.jpg < a.jpg"})) << "nothing lies in the own place";
    addImage("1", "/pics/b.jpg", u"own"_s);
    writeFile(harness.home(u"elsewhere.xml"_s), library.contents());
    writeFile(own + u"/x"_s, {});
    ASSERT_TRUE(QFile::link(harness.home(u"elsewhere.xml"_s), own + u"/AlbumData.xml"_s));
    EXPECT_EQ(items(), list({"Holiday/own.jpg < b.jpg"}));

    for (const char *name : {"Cards/front.png", "back.JPEG", "notes.txt", "x.jpg/y.bmp"})
        writeFile(harness.home(u"Documents/Caravel/Dropboxes/Photos/"_s + QString::fromUtf8(name)),
                  "dropped");
    select({});
    EXPECT_EQ(items(), list({"Cards/front.png < front.png", "back.JPEG < back.JPEG",
                             "x.jpg/y.bmp < y.bmp"}));
    set("firmwareVersion", 0);
    EXPECT_EQ(items(), list({"back.JPEG < back.JPEG"}));
    set("syncDropboxes", false);
    EXPECT_TRUE(items().isEmpty());
}

TEST_F(CVSyncPhotosTest, SyncsEqualCaptionsApartAndSurvivesABrokenLibrary)
{
    for (const char *name : {"one.jpg", "two.jpg"}) {
        writeFile(harness.home(QString::fromUtf8(name)), name);
        library.addImage(QString::fromUtf8(name), harness.home(QString::fromUtf8(name)), u"Same"_s);
    }
    library.addAlbum(u"Holiday"_s, list({"one.jpg", "two.jpg"}));
    writeFile(defaultPlace, library.contents());
    writeFile(harness.home(u"Documents/Caravel/Dropboxes/Photos/d.jpg"_s), "d");
    ASSERT_TRUE(harness.run());
    const QString photos = harness.stick(u"PSP/PHOTO"_s);
    EXPECT_EQ(treeOf(photos),
              list({"Holiday/", "Holiday/Same.1.jpg", "Holiday/Same.jpg", "d.jpg"}));
    EXPECT_EQ(readFile(photos + u"/Holiday/Same.1.jpg"_s), "two.jpg");

    const QByteArray good = library.contents();
    for (const QByteArray &bad :
         {good.chopped(30), QByteArray(good).replace("<array>", "<arroy>"), QByteArray("garbage"),
          PropertyList::toXml(QVariantList{1}), QByteArray()}) {
        writeFile(defaultPlace, bad);
        const SystemLogCapture log;
        EXPECT_EQ(items(), list({"d.jpg < d.jpg"})) << bad.constData();
        EXPECT_FALSE(CVSyncPhotos::availableIdentifiers());
        EXPECT_TRUE(log.contains(defaultPlace)) << bad.constData();
    }
}
