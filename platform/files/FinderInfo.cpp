#include "platform/files/FinderInfo.h"

#include "platform/core/own/Posix.h"

#include <QtEndian>

#include <sys/xattr.h>

#include <algorithm>
#include <cerrno>
#include <optional>

namespace {

constexpr auto attribute = "user.com.apple.FinderInfo";
constexpr qsizetype blockSize = 32;
constexpr qsizetype flagsOffset = 8;
constexpr quint16 hasCustomIcon = 0x0400;
constexpr quint16 hasBeenInited = 0x0100;

/// The block as it stands, filled up with zeros to its full size; nothing where it can't be read.
std::optional<QByteArray> readBlock(const char *folder)
{
    QByteArray block(65536, '\0'); // the longest attribute that Linux knows
    const ssize_t size =
        ::getxattr(folder, attribute, block.data(), static_cast<size_t>(block.size()));
    if (size < 0 && errno != ENODATA)
        return std::nullopt;
    block.resize(std::max<qsizetype>(size, 0));
    return block.leftJustified(blockSize, '\0');
}

} // namespace

bool FinderInfo::setCustomIconFlag(const QString &folder)
{
    const QByteArray path = Posix::native(folder);
    auto block = readBlock(path.constData());
    if (!block)
        return false;
    const QByteArray before = *block;
    char *const field = block->data() + flagsOffset;
    const auto flags = qFromBigEndian<quint16>(field);
    qToBigEndian<quint16>((flags | hasCustomIcon) & quint16(~hasBeenInited), field);
    return *block == before || ::setxattr(path.constData(), attribute, block->constData(),
                                          static_cast<size_t>(block->size()), 0) == 0;
}
