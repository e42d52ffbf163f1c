#pragma once

#include "platform/lists/PropertyList.h"

#include <QVariantMap>

/// The album file of a photo library in the making.
class PhotoLibraryFile
{
public:
    /// An image under that key; nothing for `caption` leaves the caption out.
    void addImage(const QString &key, const QString &path, const std::optional<QString> &caption)
    {
        QVariantMap image{{QStringLiteral("ImagePath"), path},
                          {QStringLiteral("ThumbPath"), QStringLiteral("/passed/over")}};
        if (caption)
            image.insert(QStringLiteral("Caption"), *caption);
        m_images.insert(key, image);
    }
    void addRawImage(const QString &key, const QVariant &image) { m_images.insert(key, image); }
    void addAlbum(const QString &name, const QStringList &keys, const QVariantMap &more = {})
    {
        QVariantMap album = more;
        album.insert(QStringLiteral("AlbumName"), name);
        album.insert(QStringLiteral("KeyList"), keys);
        m_albums.append(album);
    }
    void addRawAlbum(const QVariant &album) { m_albums.append(album); }

    QByteArray contents() const
    {
        return PropertyList::toXml(QVariantMap{{QStringLiteral("List of Albums"), m_albums},
                                               {QStringLiteral("Master Image List"), m_images}});
    }

private:
    QVariantList m_albums;
    QVariantMap m_images;
};
