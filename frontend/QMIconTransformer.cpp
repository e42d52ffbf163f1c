#include "frontend/QMIconTransformer.h"

#include "platform/core/ImageDecoder.h"
#include "platform/files/FileManager.h"

namespace {

constexpr quint64 maximumBytes = 64ULL << 20;

QImage imageIn(const QString &path)
{
    QString problem;
    const auto bytes = FileManager::defaultManager().readFile(path, maximumBytes);
    return bytes ? ImageDecoder::decoded(*bytes, &problem) : QImage();
}

QImage emptyImage()
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

QMIconTransformer::QMIconTransformer(QString resourcePath)
    : m_resourcePath(std::move(resourcePath))
{
}

QImage QMIconTransformer::transformedValue(const QString &icon) const
{
    const QString name = QStringLiteral("%1/%2.png").arg(m_resourcePath, icon);
    QImage image = icon.contains(u'/') ? QImage() : imageIn(name);
    if (image.isNull() && !icon.isEmpty())
        image = imageIn(icon);
    return image.isNull() ? emptyImage() : image;
}
