#include "platform/tray/own/StatusImages.h"

const QList<QImage> &StatusImages::named(const QString &name)
{
    const auto known = m_images.constFind(name);
    if (known != m_images.constEnd())
        return *known;
    QList<QImage> sizes;
    for (const QString &ending : {QStringLiteral(".png"), QStringLiteral("@2x.png")}) {
        const QImage image(m_folder + u'/' + name + ending);
        if (!image.isNull())
            sizes.append(image.convertToFormat(QImage::Format_ARGB32));
    }
    return *m_images.insert(name, sizes);
}
