#include "platform/core/ImageDecoder.h"

#include <QBuffer>
#include <QImageReader>

namespace {

constexpr qint64 maximumPixels = 64'000'000;
constexpr int maximumMegabytes = 512; // of the largest image, at eight bytes a pixel

/// Where it is too large, its size.
QString tooLarge(QSize size)
{
    return qint64(size.width()) * size.height() > maximumPixels
               ? QStringLiteral("it has %1 by %2 pixels").arg(size.width()).arg(size.height())
               : QString();
}

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
    if (!reader.canRead()) {
        *problem = QStringLiteral("its format is unknown");
        return {};
    }
    *problem = tooLarge(reader.size());
    if (!problem->isEmpty())
        return {};
    // Some formats tell their size only now; the limit above holds for these too.
    const QImage image = reader.read();
    *problem = image.isNull() ? reader.errorString() : tooLarge(image.size());
    return problem->isEmpty() ? image : QImage();
}
