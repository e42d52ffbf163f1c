#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QList>
#include <QString>

/// The status item's images, each in all its sizes; read once each. For this folder's own use.
class StatusImages
{
public:
    explicit StatusImages(QString folder)
        : m_folder(std::move(folder))
    {
    }

    /// Smallest first; empty where there is no such image.
    const QList<QImage> &named(const QString &name);

private:
    const QString m_folder;
    QHash<QString, QList<QImage>> m_images;
};
