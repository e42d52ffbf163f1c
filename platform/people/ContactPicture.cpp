#include "platform/people/ContactPicture.h"

#include "platform/core/ImageDecoder.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

namespace {

QString markLine(const QString &mark)
{
    return QStringLiteral("Source: ") + mark;
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
    const QImage source = ImageDecoder::decoded(image, &result.problem);
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
