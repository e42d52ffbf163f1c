#include "platform/files/FileManager.h"

#include "platform/core/own/Posix.h"
#include "platform/files/own/HeldFiles.h"
#include "platform/files/own/LateClosing.h"
#include "platform/files/own/MountInfo.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>

using Posix::newFileMode;
using Posix::retryInterrupted;

namespace {

constexpr int readOnly = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

std::atomic<FileManager *> replacement = nullptr;

FileStatus statusFrom(const struct stat &status)
{
    const auto kind = S_ISDIR(status.st_mode)   ? FileStatus::Kind::Folder
                      : S_ISLNK(status.st_mode) ? FileStatus::Kind::Link
                                                : FileStatus::Kind::File;
    return {kind, static_cast<quint64>(status.st_size)};
}

/// And lets go of what was removed before. 0, or the error that kept something from the device;
/// every file system is flushed where that one can't be.
int flushFileSystemOf(int any)
{
    const HeldFiles::Batch removed = HeldFiles::take();
    const bool isDone = any >= 0 && retryInterrupted([any] { return ::syncfs(any); }) == 0;
    const int error = isDone ? 0 : any < 0 ? EBADF : errno;
    if (error != 0)
        ::sync();
    HeldFiles::flushOthers(removed, any);
    const bool isUnknownThere = error == EBADF || error == ENOSYS || error == EINVAL;
    return isUnknownThere ? 0 : error;
}

/// Some file systems have nothing to flush for a folder and say EINVAL.
bool flushFolderOf(const QByteArray &path)
{
    const QByteArray folder = path.left(std::max<qsizetype>(path.lastIndexOf('/'), 1));
    const auto descriptor = Posix::openFolder(AT_FDCWD, folder.constData(), Posix::Links::Follow);
    return descriptor &&
           (retryInterrupted([&] { return ::fsync(descriptor.get()); }) == 0 || errno == EINVAL);
}

/// A file that stands in for another until all of it is on the device. Removed again unless it was
/// moved into place. It has one name for each target, so that what a killed process leaves is taken
/// over by the next, and a lock, so that no two write it at once.
class TemporaryFile
{
public:
    explicit TemporaryFile(const QByteArray &target)
    {
        const qsizetype slash = target.lastIndexOf('/');
        m_path = target.left(slash + 1) + '.' + target.mid(slash + 1) + ".new";
        openOurs();
        if (m_file >= 0 && HeldFiles::areNeededAt(m_file) && ::lseek(m_file, 0, SEEK_END) > 0) {
            HeldFiles::hold(AT_FDCWD, m_path.constData());
            ::unlink(m_path.constData());
            openOurs();
        }
        if (m_file >= 0 && ::ftruncate(m_file, 0) != 0)
            close();
    }

    ~TemporaryFile()
    {
        const int error = errno;
        if (m_file >= 0)
            ::unlink(m_path.constData());
        close();
        errno = error;
    }

    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    int descriptor() const { return m_file; }

    bool moveIntoPlace(const QByteArray &target)
    {
        // There fsync would write the name before the clusters that it leads to.
        const bool isOrdered = HeldFiles::areNeededAt(m_file);
        if (isOrdered)
            errno = flushFileSystemOf(m_file);
        if (isOrdered ? errno != 0 : !flushFile())
            return false;
        const Posix::Descriptor old(isOrdered ? ::open(target.constData(), readOnly) : -1);
        if (std::rename(m_path.constData(), target.constData()) != 0)
            return false;
        // First that the temporary's name has gone, then what the other leads to; only then may the
        // old file's clusters be free.
        const bool isFlushed = !old || (flushFolderOf(target) && flushFile());
        close(); // and unlocked, which must not come before the file has its place
        return isFlushed;
    }

private:
    void openOurs()
    {
        while (!isOurs() && open())
            ;
    }

    bool open()
    {
        close();
        m_file =
            ::open(m_path.constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, newFileMode);
        // A file system without locks has to do without.
        if (m_file >= 0)
            retryInterrupted([this] { return ::flock(m_file, LOCK_EX); });
        return m_file >= 0;
    }

    bool flushFile()
    {
        return retryInterrupted([this] { return ::fsync(m_file); }) == 0;
    }

    /// Whether the open file still has the name: whoever held the lock has moved it into place.
    bool isOurs() const
    {
        struct stat file;
        struct stat name;
        return m_file >= 0 && ::fstat(m_file, &file) == 0 &&
               ::lstat(m_path.constData(), &name) == 0 && file.st_ino == name.st_ino &&
               file.st_dev == name.st_dev;
    }

    void close()
    {
        if (m_file >= 0)
            ::close(std::exchange(m_file, -1));
    }

    QByteArray m_path;
    int m_file = -1;
};

} // namespace

FileManager &FileManager::defaultManager()
{
    static auto *real = new FileManager; // never destroyed: workers may outlast the statics
    FileManager *manager = replacement.load();
    return manager ? *manager : *real;
}

void FileManager::setDefaultManager(FileManager *manager)
{
    replacement = manager;
}

FileStatus FileManager::status(const QString &path) const
{
    struct stat status;
    return ::stat(Posix::native(path).constData(), &status) == 0 ? statusFrom(status)
                                                                 : FileStatus();
}

FileStatus FileManager::linkStatus(const QString &path) const
{
    struct stat status;
    return ::lstat(Posix::native(path).constData(), &status) == 0 ? statusFrom(status)
                                                                  : FileStatus();
}

FileResult<> FileManager::createFolder(const QString &path)
{
    if (::mkdir(Posix::native(path).constData(), Posix::newFolderMode) == 0)
        return {};
    return FileError::of(FileError::Operation::Create, path, errno);
}

int FileManager::openForReading(const QString &path)
{
    return Posix::openRegularFile(Posix::native(path).constData());
}

int FileManager::createForWriting(const QString &path, Existing existing)
{
    const QByteArray native = Posix::native(path);
    const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW |
                      (existing == Existing::Refuse ? O_EXCL : O_TRUNC);
    return retryInterrupted([&] { return ::open(native.constData(), flags, newFileMode); });
}

qint64 FileManager::read(int descriptor, void *buffer, size_t count)
{
    return retryInterrupted([=] { return ::read(descriptor, buffer, count); });
}

qint64 FileManager::write(int descriptor, const void *buffer, size_t count)
{
    return retryInterrupted([=] { return ::write(descriptor, buffer, count); });
}

qint64 FileManager::transfer(int from, int to, size_t count)
{
    return retryInterrupted([=] { return ::sendfile(to, from, nullptr, count); });
}

bool FileManager::close(int descriptor)
{
    // Linux has let go of the descriptor even when it says EINTR.
    return ::close(descriptor) == 0 || errno == EINTR;
}

bool FileManager::closeAndFlush(int descriptor)
{
    Posix::Descriptor any(::fcntl(descriptor, F_DUPFD_CLOEXEC, 0));
    const int closing = close(descriptor) ? 0 : errno;
    const int flushing = flushFileSystemOf(any.get());
    if (any && LateClosing::isWorthwhile(any.get()))
        LateClosing::close(any.release());
    errno = closing != 0 ? closing : flushing;
    return errno == 0;
}

std::vector<FileError> FileManager::finishClosing()
{
    HeldFiles::flushOthers(HeldFiles::take(), -1);
    return LateClosing::finish();
}

FileResult<> FileManager::flush(const QString &path)
{
    const Posix::Descriptor any(::open(Posix::native(path).constData(), readOnly));
    if (const int error = flushFileSystemOf(any.get()); error != 0)
        return FileError::of(FileError::Operation::Write, path, error);
    return {};
}

FileResult<> FileManager::writeAtomically(const QString &path, const QByteArray &contents)
{
    const QByteArray target = Posix::native(path);
    TemporaryFile temporary(target);
    if (temporary.descriptor() >= 0 &&
        writeAll(temporary.descriptor(), contents.constData(), size_t(contents.size())) &&
        temporary.moveIntoPlace(target) && flushFolderOf(target))
        return {};
    return FileError::of(FileError::Operation::Write, path, errno);
}

bool FileManager::writeAll(int descriptor, const void *bytes, size_t count)
{
    const char *rest = static_cast<const char *>(bytes);
    while (count > 0) {
        errno = 0; // a write of nothing sets none
        const qint64 written = write(descriptor, rest, count);
        if (written <= 0)
            return false;
        rest += written;
        count -= static_cast<size_t>(written);
    }
    return true;
}

FileResult<QByteArray> FileManager::readFile(const QString &path, quint64 limit) const
{
    const auto failed = [&path](int error) {
        return FileError::of(FileError::Operation::Read, path, error);
    };
    const Posix::Descriptor file(Posix::openRegularFile(Posix::native(path).constData()));
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0)
        return failed(errno);
    if (static_cast<quint64>(status.st_size) > limit)
        return failed(EFBIG);
    QByteArray contents;
    qint64 count = 0;
    do {
        // One byte more than is expected tells the end of an ordinary file in two reads.
        const qsizetype known = contents.size();
        contents.resize(std::max<qsizetype>(known + 4096, qsizetype(status.st_size) + 1));
        count = retryInterrupted([&] {
            return ::read(file.get(), contents.data() + known, size_t(contents.size() - known));
        });
        contents.resize(known + std::max<qint64>(count, 0));
    } while (count > 0 && static_cast<quint64>(contents.size()) <= limit);
    if (count != 0)
        return failed(count < 0 ? errno : EFBIG);
    return contents;
}

std::optional<VolumeSpace> FileManager::volumeSpace(const QString &path) const
{
    struct statvfs space;
    if (::statvfs(Posix::native(path).constData(), &space) != 0)
        return std::nullopt;
    return VolumeSpace{quint64(space.f_blocks) * space.f_frsize,
                       quint64(space.f_bavail) * space.f_frsize,
                       std::max<quint64>(space.f_frsize, 1), (space.f_flag & ST_RDONLY) != 0};
}

QString FileManager::fileSystemType(const QString &path) const
{
    return QString::fromLatin1(MountInfo::typeOf(path));
}

QString FileManager::displayName(const QString &path) const
{
    return path == u"/" ? path : path.mid(path.lastIndexOf(u'/') + 1);
}
