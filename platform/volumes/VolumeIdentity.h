#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// Tells one mounted file system from whatever else may lie at its path later: the empty mount
/// point that an unplugged stick leaves behind, another stick mounted in the same place, or its own
/// mount once the device is gone.
class VolumeIdentity
{
public:
    /// Of the folder at the path, or nothing when there is none. Two system calls.
    static std::optional<VolumeIdentity> of(const QString &path);

    bool operator==(const VolumeIdentity &) const = default;

private:
    std::uint64_t m_device = 0;
    std::uint64_t m_inode = 0;
    bool m_hasBlockDevice = false;   // one that the kernel still knows
    std::uint64_t m_mount = 0;       // mount id where the kernel tells, else 0
    std::int64_t m_birthSeconds = 0; // of the root folder where the file system keeps it, else 0
    std::uint32_t m_birthNanoseconds = 0;
};
