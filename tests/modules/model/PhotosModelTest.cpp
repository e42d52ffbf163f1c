#include "modules/model/Model.h"
#include "modules/photos/CVSyncPhotos.h"
#include "support/PhotoLibraryFile.h"

#include <gtest/gtest.h>

using namespace model;

namespace {

struct Image
{
    std::optional<QString> caption, path;
};

bool isShown(const QString &path, int firmware)
{
    return hasExtension(path, {"JPG", "JPEG"}) ||
           (firmware >= 1 && hasExtension(path, {"TIF", "TIFF", "PNG", "GIF", "BMP"}));
}

std::vector<Wish> wishesOf(const World &world, const std::map<int, Image> &images,
                           const std::vector<Collection> &albums)
{
    std::vector<Wish> wishes;
    for (const Collection &album : albums) {
        if (!world.selected().contains(album.name))
            continue;
        int position = -1;
        for (const int key : album.members) {
            ++position; // also of what is then left out
            const auto image = images.find(key);
            if (image == images.end() || !image->second.path ||
                !isShown(*image->second.path, world.setting("firmwareVersion")))
                continue;
            const QString path = *image->second.path;
            const QString fileName = path.section(u'/', -1).section(u'.', 0, -2);
            QString name = cleanName(image->second.caption.value_or(fileName));
            if (world.setting("sortPhotosBy") == 1)
                name = QStringLiteral("%1. ").arg(position, 3, 10, QChar(u'0')) + name;
            wishes.push_back({path, asComponent(cleanName(album.name)) + u'/' + asComponent(name) +
                                        u'.' + extensionOf(path)});
        }
    }
    return wishes;
}

std::map<int, Image> rollImages(World &world, Dice &dice, const QString &folder)
{
    std::map<int, Image> images;
    for (const auto &[key, path] :
         rollFiles(world, dice, folder,
                   {"jpg", "JPG", "jpeg", "Png", "GIF", "tif", "TIFF", "bmp", "mov", "psd"}))
        images[key] = {dice.maybeWord(), dice.once(8) ? std::nullopt : std::optional(path)};
    return images;
}

QByteArray libraryOf(const std::map<int, Image> &images, const std::vector<Collection> &albums)
{
    PhotoLibraryFile library;
    for (const auto &[number, image] : images) {
        const QString key = QString::number(number);
        if (image.path)
            library.addImage(key, *image.path, image.caption);
        else
            library.addRawImage(key, QVariantMap{{QStringLiteral("Caption"), key}});
    }
    for (const Collection &album : albums) {
        QStringList keys;
        for (const int number : album.members)
            keys.append(QString::number(number));
        library.addAlbum(album.name, keys);
    }
    return library.contents();
}

/// Puts the library where it is looked for, and another where it isn't.
void place(World &world, Dice &dice, SyncHarness &harness, const QByteArray &library,
           const QByteArray &other)
{
    const QString usual = harness.home(QStringLiteral("Pictures/iPhoto Library/AlbumData.xml"));
    const QString own = harness.home(QStringLiteral("Own Library/AlbumData.xml"));
    const bool isNamed = dice.once(2);
    const bool isOwn = isNamed && dice.once(2);
    const auto name = [&own](QVariantMap &domain) {
        domain[QStringLiteral("RootDirectory")] = own.section(u'/', 0, -2);
        return true;
    };
    if (isNamed)
        harness.defaults.editPersistentDomain(QStringLiteral("com.apple.iPhoto"), name);
    put(world.home, isOwn ? own : usual, library);
    if (isOwn || !isNamed)
        put(world.home, isOwn ? usual : own, other);
}

std::vector<Wish> roll(World &world, Dice &dice, SyncHarness &harness)
{
    const auto images = rollImages(world, dice, harness.home(QStringLiteral("files")));
    const auto albums = rollCollections(world, dice);
    std::vector<Wish> wishes;
    if (!dice.once(12)) {
        place(world, dice, harness, libraryOf(images, albums),
              libraryOf({{1, images.at(1)}}, {{albums[0].name, {1}}}));
        wishes = wishesOf(world, images, albums);
    }
    for (const Wish &wish : drop(world, dice, QStringLiteral("Photos"),
                                 {"._a.jpg", "A/x.1.jpg", "A/x.jpg", "Café.TIFF", "a.jpg",
                                  "back.JPEG", "dir.jpg/in.bmp", "film.mov", "front.Png"})) {
        if (isShown(wish.place, world.setting("firmwareVersion")))
            wishes.push_back(wish);
    }
    return wishes;
}

} // namespace

TEST(Model, AgreesOnPhotos)
{
    holdAgainstTheRules({.name = QStringLiteral("Photos"),
                         .folder = QStringLiteral("PSP/PHOTO"),
                         .catalogue = {CVSyncPhotos::kind()},
                         .settings = {{"sortPhotosBy", {0, 1, 1, 2}}},
                         .roll = roll});
}
