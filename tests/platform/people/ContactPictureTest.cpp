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

TEST(ContactPicture, StretchesTheWholeImage)
{
    QImage wide(400, 100, QImage::Format_RGB32);
    wide.fill(Qt::red);
    QPainter(&wide).fillRect(200, 0, 200, 100, Qt::blue);
    for (const char *format : {"PNG", "JPG", "BMP"}) {
        const auto picture = ContactPicture::render(encoded(wide, format), mark);
        EXPECT_TRUE(picture.problem.isEmpty()) << qPrintable(picture.problem);
        const QImage image = QImage::fromData(picture.jpeg, "JPG");
        ASSERT_EQ(image.size(), QSize(64, 64));
        for (const int y : {2, 61}) {
            EXPECT_GT(qRed(image.pixel(2, y)), 200);
            EXPECT_LT(qBlue(image.pixel(2, y)), 60);
            EXPECT_GT(qBlue(image.pixel(61, y)), 200);
        }
    }
    QImage clear(10, 10, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    const auto picture = ContactPicture::render(encoded(clear, "PNG"), mark);
    EXPECT_GT(grey(QImage::fromData(picture.jpeg).pixel(32, 32)), 250);
}

TEST(ContactPicture, IsGreyWhereNothingCanBeDecoded)
{
    const QByteArray good = encoded(QImage(100, 100, QImage::Format_RGB32), "PNG");
    const struct
    {
        QByteArray bytes;
        const char *problem;
    } cases[] = {{{}, "format"},
                 {"no image", "format"},
                 {good.first(40), ""},
                 {bomb(8001, 8000), "8001 by 8000 pixels"},
                 {bomb(12000, 12000), "12000 by 12000 pixels"},
                 {bomb(INT32_MAX, INT32_MAX), ""}};
    for (const auto &[bytes, problem] : cases) {
        const auto picture = ContactPicture::render(bytes, mark);
        EXPECT_FALSE(picture.problem.isEmpty());
        EXPECT_TRUE(picture.problem.contains(QString::fromLatin1(problem)))
            << qPrintable(picture.problem);
        const QImage image = QImage::fromData(picture.jpeg, "JPG");
        ASSERT_EQ(image.size(), QSize(64, 64));
        EXPECT_NEAR(grey(image.pixel(1, 1)), 192, 3);
        EXPECT_NEAR(grey(image.pixel(62, 62)), 192, 3);
    }
}

TEST(ContactPicture, TakesNearlySixtyFourMegapixels)
{
    const auto picture =
        ContactPicture::render(encoded(QImage(8000, 7999, QImage::Format_Grayscale8), "BMP"), mark);
    EXPECT_TRUE(picture.problem.isEmpty()) << qPrintable(picture.problem);
}

TEST(ContactPicture, KnowsItsOwnMark)
{
    const QByteArray jpeg = ContactPicture::render("no image", mark).jpeg;
    EXPECT_TRUE(ContactPicture::carriesMark(jpeg, mark));
    EXPECT_FALSE(ContactPicture::carriesMark(jpeg, QStringLiteral("0123") + u'0'));
    EXPECT_FALSE(ContactPicture::carriesMark(jpeg.chopped(1), mark)) << "cut off";
    EXPECT_FALSE(ContactPicture::carriesMark({}, mark));
}
