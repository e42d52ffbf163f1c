#include "platform/core/ImageDecoder.h"

#include <QBuffer>
#include <QImageReader>

namespace {

constexpr qint64 maximumPixels = 64'000'000;
constexpr int maximumMegabytes = 512; // of the largest image, at eight bytes a pixel

} // namespace

QImage ImageDecoder::decoded(const QByteArray &bytes, QString *problem)
{
    // Qt's own limit would refuse what ours takes. It is one for the whole process.
    static const bool isLimitSet = (QImageReader::setAllocationLimit(maximumMegabytes), true);
    Q_UNUSED(isLimitSet)

    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > maximumPixels) {
        *problem = QStringLiteral("it has %1 by %2 pixels").arg(size.width()).arg(size.height());
        return {};
    }
    const QImage image = size.isEmpty() ? QImage() : reader.read();
    if (image.isNull())
        *problem = size.isEmpty() ? QStringLiteral("its format is unknown") : reader.errorString();
    return image;
}
