#include "modules/photos/own/FolderPhotoLibrary.h"

#include "util/MediaFolder.h"
#include "util/PathComponents.h"

#include <map>

FileResult<PhotoLibrary> readFolderPhotos(const QString &folder,
                                          const std::function<bool(QStringView)> &isPicture,
                                          const QSet<QString> &selected)
{
    const auto found = MediaFolder::read(folder, MediaFolder::Detail::Names);
    if (!found)
        return found.error();
    PhotoLibrary library;
    library.unreadPart = found->unreadableAmong(selected);
    std::map<int, PhotoLibrary::Album> albums; // by the folder's place, as the listing has them
    for (const FolderEntry *file : found->files()) {
        if (!isPicture(PathComponents::extensionOf(file->path)))
            continue;
        PhotoLibrary::Album &album = albums[file->parent];
        album.keys.append(file->path);
        ++album.size;
        library.add(file->path, {std::nullopt, found->path() + u'/' + file->path});
    }
    for (auto &[place, album] : albums) {
        album.name = found->nameOf(place);
        library.add(std::move(album));
    }
    return library;
}
