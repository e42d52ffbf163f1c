#pragma once

#include "platform/files/FileError.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// An iPhoto library, read from its album file ("AlbumData.xml", a property list).
class PhotoLibrary
{
public:
    struct Album
    {
        std::optional<QString> name; ///< "AlbumName"
        std::optional<QString> type; ///< "Album Type"
        bool isMaster = false;
        int size = 0;     ///< number of its images' keys
        QStringList keys; ///< of its images, in album order; empty with Part::AlbumsOnly
    };

    struct Image
    {
        std::optional<QString> caption;
        std::optional<QString> path; ///< "ImagePath"
    };

    enum class Part { AlbumsOnly, Everything };

    /// Reads the file as a stream, keeping what is asked for. Errors are those of
    /// readPropertyList(); one but that the file is missing is in the system log, with its line.
    /// Any thread.
    static FileResult<PhotoLibrary> read(const QString &path, Part part);

    /// In file order.
    const std::vector<Album> &albums() const { return m_albums; }
    /// Null where the key names none.
    const Image *image(const QString &key) const;

    void add(Album album) { m_albums.push_back(std::move(album)); }
    void add(const QString &key, Image image) { m_images.insert(key, std::move(image)); }

    /// Why a part that is selected could not be read: what it holds is missing here.
    std::optional<FileError> unreadPart;

private:
    class Reader;

    std::vector<Album> m_albums;
    QHash<QString, Image> m_images;
};
