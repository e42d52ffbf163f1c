#pragma once

#include "platform/lists/PropertyList.h"
#include "support/TestSupport.h"

#include <QVariantMap>

/// The album file of a photo library in the making.
class PhotoLibraryFile
{
public:
    /// An image under that key; nothing for `caption` leaves the caption out.
    void addImage(const QString &key, const QString &path, const std::optional<QString> &caption)
    {
        QVariantMap image{{u"ImagePath"_s, path}, {u"ThumbPath"_s, u"/passed/over"_s}};
        if (caption)
            image.insert(u"Caption"_s, *caption);
        m_images.insert(key, image);
    }
    void addRawImage(const QString &key, const QVariant &image) { m_images.insert(key, image); }
    void addAlbum(const QString &name, const QStringList &keys, const QVariantMap &more = {})
    {
        QVariantMap album = more;
        album.insert(u"AlbumName"_s, name);
        album.insert(u"KeyList"_s, keys);
        m_albums.append(album);
    }
    void addRawAlbum(const QVariant &album) { m_albums.append(album); }

    QByteArray contents() const
    {
        return PropertyList::toXml(
            QVariantMap{{u"List of Albums"_s, m_albums}, {u"Master Image List"_s, m_images}});
    }

private:
    QVariantList m_albums;
    QVariantMap m_images;
};
