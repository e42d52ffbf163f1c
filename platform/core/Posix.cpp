#include "platform/core/own/Posix.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace Posix {

namespace {

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

EntryKind kindOf(const dirent &entry, int folder)
{
    switch (entry.d_type) {
    case DT_REG:
        return EntryKind::File;
    case DT_DIR:
        return EntryKind::Folder;
    case DT_LNK:
        return EntryKind::Link;
    case DT_UNKNOWN: {
        struct stat status;
        const bool seen = ::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0;
        return seen ? Posix::kindOf(status) : EntryKind::Unknown;
    }
    default:
        return EntryKind::Special;
    }
}

Entry measured(const dirent &entry, int folder)
{
    struct stat status;
    if (::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return {entry.d_name, EntryKind::Unknown};
    return {entry.d_name, Posix::kindOf(status), static_cast<std::uint64_t>(status.st_size),
            modifiedTime(status)};
}

bool isSelfOrParent(const char *name)
{
    return name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0));
}

int openForReading(int at, const char *path, int flags)
{
    // So that reading a stick writes nothing to it; only a file's owner may ask for that.
    const int file = ::openat(at, path, O_RDONLY | O_CLOEXEC | O_NOATIME | flags);
    return file < 0 && errno == EPERM ? ::openat(at, path, O_RDONLY | O_CLOEXEC | flags) : file;
}

} // namespace

QByteArray native(const QString &path)
{
    const QByteArray bytes = path.toUtf8();
    return bytes.contains('\0') ? QByteArray() : bytes;
}

QString reason(int error)
{
    char buffer[256];
    return QString::fromLocal8Bit(::strerror_r(error, buffer, sizeof buffer));
}

Descriptor::~Descriptor()
{
    if (m_descriptor < 0)
        return;
    const int error = errno;
    ::close(m_descriptor);
    errno = error;
}

int Descriptor::release()
{
    return std::exchange(m_descriptor, -1);
}

int openRegularFile(const char *path)
{
    Descriptor file(openForReading(AT_FDCWD, path, O_NONBLOCK | O_NOCTTY));
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0)
        return -1;
    if (!S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return -1;
    }
    return file.release();
}

EntryKind kindOf(const struct stat &status)
{
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        return EntryKind::File;
    case S_IFDIR:
        return EntryKind::Folder;
    case S_IFLNK:
        return EntryKind::Link;
    default:
        return EntryKind::Special;
    }
}

std::int64_t modifiedTime(const struct stat &status)
{
    return std::int64_t(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec;
}

std::optional<std::vector<Entry>> entriesOf(Descriptor folder, Sizes sizes)
{
    const std::unique_ptr<DIR, CloseFolder> listing(folder ? ::fdopendir(folder.get()) : nullptr);
    if (!listing)
        return std::nullopt;
    const int descriptor = folder.release();
    std::vector<Entry> entries;
    errno = 0;
    while (const dirent *entry = ::readdir(listing.get())) {
        if (!isSelfOrParent(entry->d_name))
            entries.push_back(sizes == Sizes::Read
                                  ? measured(*entry, descriptor)
                                  : Entry{entry->d_name, kindOf(*entry, descriptor)});
        errno = 0;
    }
    if (errno != 0)
        return std::nullopt;
    std::ranges::sort(entries, {}, &Entry::name);
    return entries;
}

Descriptor openFolder(int at, const char *path, Links links)
{
    const int follow = links == Links::Refuse ? O_NOFOLLOW : 0;
    return Descriptor(openForReading(at, path, O_DIRECTORY | follow));
}

bool renameExclusively(const char *source, const char *destination)
{
    if (::renameat2(AT_FDCWD, source, AT_FDCWD, destination, RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    struct stat status;
    if (::lstat(destination, &status) == 0) {
        errno = EEXIST;
        return false;
    }
    return std::rename(source, destination) == 0;
}

} // namespace Posix
