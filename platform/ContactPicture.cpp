#include "platform/ContactPicture.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

namespace {

constexpr qint64 maximumPixels = 64'000'000;
constexpr int maximumMegabytes = 512; // of the largest image, at eight bytes a pixel

QString markLine(const QString &mark)
{
    return QStringLiteral("Source: ") + mark;
}

/// A null image and the reason where the bytes are none.
QImage decoded(const QByteArray &bytes, QString *problem)
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

QByteArray encoded(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter(&buffer, "jpg").write(image);
    return bytes;
}

} // namespace

ContactPicture::Rendered ContactPicture::render(const QByteArray &image, const QString &mark)
{
    Rendered result;
    const QImage source = decoded(image, &result.problem);
    QImage canvas(side, side, QImage::Format_RGB32);
    canvas.fill(source.isNull() ? Qt::lightGray : Qt::white);
    if (!source.isNull()) {
        QPainter painter(&canvas);
        painter.drawImage(
            0, 0, source.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    canvas.setText(QStringLiteral("Source"), mark);
    result.jpeg = encoded(canvas);
    return result;
}

bool ContactPicture::carriesMark(const QByteArray &jpeg, const QString &mark)
{
    return jpeg.startsWith("\xFF\xD8") && jpeg.endsWith("\xFF\xD9") &&
           jpeg.contains(markLine(mark).toLatin1());
}
