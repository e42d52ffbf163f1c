#include "platform/people/ContactPicture.h"

#include "platform/core/ImageDecoder.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

namespace {

// Pictures from before this name carry one even where they are grey.
const QString markKey = QStringLiteral("Made of");

QString markLine(const QString &mark)
{
    return markKey + QStringLiteral(": ") + mark;
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
    // A grey one is tried again: the decoder may come with the next update.
    if (!source.isNull())
        canvas.setText(markKey, mark);
    result.jpeg = encoded(canvas);
    return result;
}

bool ContactPicture::carriesMark(const QByteArray &jpeg, const QString &mark)
{
    return jpeg.startsWith("\xFF\xD8") && jpeg.endsWith("\xFF\xD9") &&
           jpeg.contains(markLine(mark).toLatin1());
}
