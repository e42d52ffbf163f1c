#include "modules/photos/CVSyncPhotos.h"

#include "modules/photos/own/FolderPhotoLibrary.h"
#include "platform/core/Localized.h"
#include "platform/lists/UserDefaults.h"
#include "sync/ModuleSelection.h"
#include "util/FileManagerTools.h"
#include "util/Filename.h"
#include "util/Folders.h"
#include "util/PathComponents.h"
#include "util/Settings.h"
#include "util/StringTools.h"

#include <algorithm>
#include <utility>

namespace {

FileResult<QVariantMap> preferencesOfIPhoto()
{
    return UserDefaults::standard().persistentDomain(QStringLiteral("com.apple.iPhoto"));
}

// Where iPhoto itself says that its library lies, else where it lies by default.
QString iPhotoPath(const FileResult<QVariantMap> &preferences)
{
    const QString name = QStringLiteral("AlbumData.xml");
    const QVariant root = preferences.valueOr({}).value(QStringLiteral("RootDirectory"));
    if (root.typeId() == QMetaType::QString && root.toString().startsWith(u'/')) {
        const QString own = StringTools::appendingPathComponent(root.toString(), name);
        if (FileManager::defaultManager().exists(own))
            return FileManagerTools::pathByResolvingAliasesInPath(own);
    }
    return FileManagerTools::pathByResolvingAliasesInPath(
        StringTools::expandingTilde(QStringLiteral("~/Pictures/iPhoto Library/")) + name);
}

QString dropbox()
{
    return Folders::dropbox(QStringLiteral("Photos"));
}

bool isShown(QStringView extension, qint64 firmware)
{
    static constexpr QStringView formats[] = {u"JPG", u"JPEG", u"TIF", u"TIFF",
                                              u"PNG", u"GIF",  u"BMP"};
    constexpr ptrdiff_t formatsOfFirmware0 = 2;
    const auto *const end =
        firmware < 1 ? std::begin(formats) + formatsOfFirmware0 : std::end(formats);
    return std::any_of(std::begin(formats), end, [&](QStringView format) {
        return extension.compare(format, Qt::CaseInsensitive) == 0;
    });
}

FileResult<PhotoLibrary> readIPhoto(PhotoLibrary::Part part)
{
    const auto preferences = preferencesOfIPhoto();
    FileResult<PhotoLibrary> library = PhotoLibrary::read(iPhotoPath(preferences), part);
    // The library that the preferences name may be another.
    if (!preferences && library)
        library->unreadPart = preferences.error();
    else if (!preferences && library.error().isMissing())
        return preferences.error();
    return library;
}

FileResult<PhotoLibrary> readLibrary(Settings::PhotosSource source, PhotoLibrary::Part part,
                                     const QSet<QString> &selected)
{
    if (source == Settings::PhotosSource::IPhoto)
        return readIPhoto(part);
    const qint64 firmware = Settings::firmwareVersion();
    return readFolderPhotos(
        Folders::pictures(),
        [firmware](QStringView extension) { return isShown(extension, firmware); }, selected);
}

QString captionOf(const PhotoLibrary::Image &image)
{
    return image.caption ? *image.caption : PathComponents::stemOf(*image.path);
}

} // namespace

CVSyncPhotos::CVSyncPhotos(const QString &volume)
    : CVSyncModule(volume, saveName())
{
}

ModuleKind CVSyncPhotos::kind()
{
    return {.saveName = saveName(),
            .make = [](const QString &volume) { return std::make_unique<CVSyncPhotos>(volume); },
            .hasDropbox = true,
            .setSelectedIdentifiers = setSelectedIdentifiers};
}

QString CVSyncPhotos::saveName()
{
    return QStringLiteral("Photos");
}

FileResult<std::vector<PhotoLibrary::Album>> CVSyncPhotos::availableIdentifiers()
{
    return albumsOf(Settings::photoLibrary());
}

FileResult<std::vector<PhotoLibrary::Album>> CVSyncPhotos::albumsOf(Settings::PhotosSource source)
{
    const auto library = readLibrary(source, PhotoLibrary::Part::AlbumsOnly, {});
    if (!library)
        return library.error();
    return library->albums();
}

QString CVSyncPhotos::placeOf(Settings::PhotosSource source)
{
    return source == Settings::PhotosSource::IPhoto ? iPhotoPath(preferencesOfIPhoto())
                                                    : Folders::pictures();
}

std::optional<QStringList> CVSyncPhotos::selectedIdentifiersForPSP(const QString &volume)
{
    return ModuleSelection::read(saveName(), volume);
}

void CVSyncPhotos::setSelectedIdentifiers(const QStringList &identifiers, const QString &forPSP)
{
    ModuleSelection::store(identifiers, saveName(), forPSP);
}

QString CVSyncPhotos::moduleName() const
{
    return localized("Photos");
}

QString CVSyncPhotos::rootSyncFolder() const
{
    return pspVolume() + QStringLiteral("/PSP/PHOTO");
}

bool CVSyncPhotos::shouldClearUnsyncedFiles() const
{
    return true;
}

QStringList CVSyncPhotos::ownSettings() const
{
    return {QString::number(static_cast<int>(Settings::sortPhotosBy()))};
}

std::vector<CVSyncItem> CVSyncPhotos::itemsToSync()
{
    std::vector<CVSyncItem> items;
    addAlbumItems(items);
    if (Settings::syncDropboxes())
        addDropboxItems(items);
    return items;
}

void CVSyncPhotos::addAlbumItems(std::vector<CVSyncItem> &items)
{
    const auto library = readLibrary(Settings::photoLibrary(), PhotoLibrary::Part::Everything,
                                     selectedIdentifiers());
    if (library && library->unreadPart && isAnythingSelected())
        noteUnreadableLibrary(*library->unreadPart);
    if (!library) {
        if (isAnythingSelected())
            noteUnreadableLibrary(library.error());
        return;
    }
    for (const PhotoLibrary::Album &album : library->albums()) {
        if (album.name && isSelected(*album.name) && !shouldStop())
            addAlbum(*library, album, items);
    }
}

void CVSyncPhotos::addAlbum(const PhotoLibrary &library, const PhotoLibrary::Album &album,
                            std::vector<CVSyncItem> &items) const
{
    const bool numbered = Settings::sortPhotosBy() == Settings::PhotoPrefix::Position;
    const QString folder = PathComponents::safe(FileManagerTools::makeFilename(*album.name));
    const QString root = rootSyncFolder() + u'/';
    const qint64 firmware = Settings::firmwareVersion();
    int position = 0;
    for (const QString &key : album.keys) {
        // What the PSP can't show has its number all the same.
        const int place = position++;
        const PhotoLibrary::Image *image = library.image(key);
        if (!image || !image->path || !image->path->startsWith(u'/'))
            continue;
        const QStringView extension = PathComponents::extensionOf(*image->path);
        if (!isShown(extension, firmware))
            continue;
        QString name = FileManagerTools::makeFilename(captionOf(*image));
        if (numbered)
            name = QStringLiteral("%1. %2").arg(place, 3, 10, QChar(u'0')).arg(name);
        const QString suffix = u'.' + extension.toString();
        const QString relative = folder + u'/' + PathComponents::safe(name, suffix);
        items.emplace_back(*image->path, root + relative + suffix, relative);
    }
}

void CVSyncPhotos::addDropboxItems(std::vector<CVSyncItem> &items) const
{
    const QString from = dropbox() + u'/';
    const QString root = rootSyncFolder() + u'/';
    const qint64 firmware = Settings::firmwareVersion();
    for (const FolderEntry &entry : FileManager::defaultManager().subpaths(dropbox())) {
        if (!entry.isFolder && isShown(PathComponents::extensionOf(entry.path), firmware))
            items.emplace_back(from + entry.path, root + entry.path, entry.path);
    }
}
