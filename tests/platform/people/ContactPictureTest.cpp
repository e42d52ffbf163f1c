#include "platform/people/ContactPicture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QtEndian>

#include <gtest/gtest.h>

namespace {

const QString mark = QStringLiteral("0123456789abcdef");

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// A few bytes whose header announces a larger image.
QByteArray bomb(qint32 width, qint32 height)
{
    QByteArray bytes = encoded(QImage(1, 1, QImage::Format_RGB32), "BMP");
    qToLittleEndian(width, bytes.data() + 18);
    qToLittleEndian(height, bytes.data() + 22);
    return bytes;
}

int grey(QRgb pixel)
{
    return qAbs(qRed(pixel) - qGreen(pixel)) < 4 && qAbs(qRed(pixel) - qBlue(pixel)) < 4
               ? qRed(pixel)
               : -1;
}

} // namespace

TEST(ContactPicture, StretchesTheWholeImageOntoWhite)
{
    QImage wide(400, 100, QImage::Format_ARGB32);
    wide.fill(Qt::transparent);
    QPainter(&wide).fillRect(0, 0, 200, 100, Qt::blue);
    for (const char *format : {"PNG", "BMP", "TIFF", "WEBP", "ICNS"}) {
        const auto picture = ContactPicture::render(encoded(wide, format), mark);
        EXPECT_TRUE(picture.problem.isEmpty()) << format << qPrintable(picture.problem);
        EXPECT_TRUE(ContactPicture::carriesMark(picture.jpeg, mark));
        EXPECT_FALSE(ContactPicture::carriesMark(picture.jpeg, mark + u'0'));
        EXPECT_FALSE(ContactPicture::carriesMark(picture.jpeg.chopped(1), mark)) << "cut off";
        const QImage image = QImage::fromData(picture.jpeg, "JPG");
        ASSERT_EQ(image.size(), QSize(64, 64));
        for (const int y : {2, 61}) {
            EXPECT_GT(qBlue(image.pixel(2, y)), 200);
            EXPECT_LT(qRed(image.pixel(2, y)), 60);
            EXPECT_TRUE(QByteArray(format) != "PNG" || grey(image.pixel(61, y)) > 250);
        }
    }
}

TEST(ContactPicture, IsGreyWhereNothingCanBeDecoded)
{
    const QByteArray good = encoded(QImage(100, 100, QImage::Format_RGB32), "PNG");
    const std::pair<QByteArray, const char *> cases[] = {
        {"no image", "format"},
        {good.first(40), ""},
        {bomb(8001, 8000), "8001 by 8000 pixels"},
        {bomb(INT32_MAX, INT32_MAX), ""},
    };
    for (const auto &[bytes, problem] : cases) {
        const auto picture = ContactPicture::render(bytes, mark);
        EXPECT_FALSE(picture.problem.isEmpty());
        EXPECT_TRUE(picture.problem.contains(QLatin1String(problem)))
            << qPrintable(picture.problem);
        EXPECT_NEAR(grey(QImage::fromData(picture.jpeg, "JPG").pixel(62, 62)), 192, 3);
        EXPECT_FALSE(ContactPicture::carriesMark(picture.jpeg, mark)) << "never tried again";
    }
}

TEST(ContactPicture, TakesNearlySixtyFourMegapixels)
{
    const QByteArray large = encoded(QImage(8000, 7999, QImage::Format_Grayscale8), "BMP");
    EXPECT_EQ(ContactPicture::render(large, mark).problem, QString());
}
