#pragma once

#include <QByteArray>
#include <QString>

/// The small pictures of contacts.
namespace ContactPicture {

inline constexpr int side = 64; ///< pixels

struct Rendered
{
    QByteArray jpeg; ///< empty only where no JPEG can be written at all
    QString problem; ///< why the picture is plain light grey instead; empty where all went well
};

/// The whole image, in any format that Qt decodes, stretched to 64 by 64 pixels as a JPEG that
/// carries the mark (plain ASCII) as a comment. An image that can't be decoded, or that has more
/// than 64 megapixels, becomes a plain light grey picture without a mark. Any thread.
Rendered render(const QByteArray &image, const QString &mark);

/// Whether the bytes are a complete picture of render() that carries the mark.
bool carriesMark(const QByteArray &jpeg, const QString &mark);

} // namespace ContactPicture
