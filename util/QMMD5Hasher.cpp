// The plain MD5 functions are deprecated, but unlike their successors they need no provider that a
// system's security policy may have switched off.
#define OPENSSL_SUPPRESS_DEPRECATED

#include "util/QMMD5Hasher.h"

#include <QByteArray>

#include <array>
#include <openssl/md5.h>

QString QMMD5Hasher::hashFromString(const QString &text)
{
    return hashFromBytes(text.toUtf8());
}

QString QMMD5Hasher::hashFromBytes(QByteArrayView bytes)
{
    std::array<unsigned char, MD5_DIGEST_LENGTH> digest{};
    MD5_CTX context;
    MD5_Init(&context);
    MD5_Update(&context, bytes.data(), static_cast<size_t>(bytes.size()));
    MD5_Final(digest.data(), &context);
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char *>(digest.data()), MD5_DIGEST_LENGTH).toHex());
}
