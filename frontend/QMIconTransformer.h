#pragma once

#include <QImage>
#include <QMetaType>
#include <QString>

/// Turns the "icon" of a list's row into an image to show; there is no way back. Any thread.
class QMIconTransformer
{
public:
    /// Where the images lie that rows name: a bundle's resource folder.
    explicit QMIconTransformer(QString resourcePath);

    static QMetaType transformedValueClass() { return QMetaType::fromType<QImage>(); }
    static constexpr bool allowsReverseTransformation() { return false; }

    /// The resource of that name, or the image in the file at that absolute path (a relative one is
    /// never read); else, also for a file of more than 64 MiB or 64 megapixels, an empty one of 1
    /// by 1 pixels. Never null.
    QImage transformedValue(const QString &icon) const;

private:
    const QString m_resourcePath;
};
