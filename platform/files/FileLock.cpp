#include "platform/files/FileLock.h"

#include "platform/core/own/Posix.h"
#include "platform/files/FileManager.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <thread>
#include <utility>

namespace {

/// Whether the lock was had; errno is EWOULDBLOCK where time was over.
bool lockWithin(int descriptor, std::chrono::milliseconds limit)
{
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + limit;
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || Clock::now() >= end)
            return false;
        // There is no call that waits for so long and no longer.
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

} // namespace

FileLock::FileLock(FileLock &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
{
}

FileLock::~FileLock()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

FileResult<FileLock> FileManager::lock(const QString &path, std::chrono::milliseconds limit)
{
    constexpr mode_t onlyOurs = 0600;
    Posix::Descriptor file(
        ::open(Posix::native(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, onlyOurs));
    if (!file || !lockWithin(file.get(), limit))
        return FileError::of(FileError::Operation::Lock, path, errno);
    return FileLock(file.release());
}

std::optional<FileStamp> FileManager::stamp(const QString &path) const
{
    struct stat status;
    if (::stat(Posix::native(path).constData(), &status) != 0)
        return std::nullopt;
    return FileStamp{status.st_dev, status.st_ino, status.st_size,
                     qint64(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec};
}
