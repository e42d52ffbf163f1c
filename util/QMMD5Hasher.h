#pragma once

#include <QByteArrayView>
#include <QString>

namespace QMMD5Hasher {

/// The MD5 digest (RFC 1321) as 32 lowercase hexadecimal digits: of the text's UTF-8 bytes, or of
/// bytes as they are. It tells names apart; it protects nothing.
QString hashFromString(const QString &text);
QString hashFromBytes(QByteArrayView bytes);

} // namespace QMMD5Hasher
