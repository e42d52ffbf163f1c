#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// Images from bytes of anybody's making.
namespace ImageDecoder {

/// The image in any format that Qt decodes, turned upright as its metadata say. Null, with the
/// reason stored, for what is no such image and for one of more than 64 megapixels, which isn't
/// decoded at all where its format tells the size before. Any thread.
QImage decoded(const QByteArray &bytes, QString *problem);

} // namespace ImageDecoder
