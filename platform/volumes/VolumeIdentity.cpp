#include "platform/volumes/VolumeIdentity.h"

#include "platform/core/own/Posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

// An unplugged stick's leaves at once, while its mount stays until somebody unmounts it.
bool hasBlockDevice(const struct statx &root)
{
    const QByteArray device = "/sys/dev/block/" + QByteArray::number(root.stx_dev_major) + ':' +
                              QByteArray::number(root.stx_dev_minor);
    return ::access(device.constData(), F_OK) == 0;
}

} // namespace

std::optional<VolumeIdentity> VolumeIdentity::of(const QString &path)
{
    struct statx root = {};
    const unsigned wanted = STATX_BASIC_STATS | STATX_BTIME | STATX_MNT_ID;
    if (::statx(AT_FDCWD, Posix::native(path).constData(), 0, wanted, &root) != 0 ||
        !S_ISDIR(root.stx_mode))
        return std::nullopt;
    VolumeIdentity identity;
    identity.m_device = (std::uint64_t(root.stx_dev_major) << 32) | root.stx_dev_minor;
    identity.m_inode = root.stx_ino;
    identity.m_hasBlockDevice = hasBlockDevice(root);
    if (root.stx_mask & STATX_MNT_ID)
        identity.m_mount = root.stx_mnt_id;
    if (root.stx_mask & STATX_BTIME) {
        identity.m_birthSeconds = root.stx_btime.tv_sec;
        identity.m_birthNanoseconds = root.stx_btime.tv_nsec;
    }
    return identity;
}
