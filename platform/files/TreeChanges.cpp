#include "platform/files/FileManager.h"
#include "platform/files/OpenFile.h"
#include "platform/files/own/HeldFiles.h"
#include "platform/files/own/Trees.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

using Posix::Descriptor;
using Posix::Entry;
using Posix::EntryKind;
using Posix::Links;
using Trees::nativeText;
using Operation = FileError::Operation;

namespace {

constexpr size_t copyBlock = 1U << 20;

/// The errors of one operation and whether it goes on after them.
class ErrorReport
{
public:
    explicit ErrorReport(FileOperationHandler *handler)
        : m_handler(handler)
    {
    }

    bool failed() const { return m_failed; }
    bool stopped() const { return m_stopped; }

    void add(Operation operation, const std::string &path, int error)
    {
        add(FileError::of(operation, QString::fromStdString(path), error));
    }

    void add(const FileError &error)
    {
        m_failed = true;
        if (m_handler && !m_handler->fileManagerShouldProceedAfterError(error))
            m_stopped = true;
    }

private:
    FileOperationHandler *m_handler;
    bool m_failed = false;
    bool m_stopped = false;
};

std::string folderOf(const std::string &path)
{
    return path.substr(0, std::max<size_t>(path.rfind('/'), 1));
}

class TreeCopier
{
public:
    TreeCopier(FileManager &files, FileOperationHandler *handler)
        : m_files(files)
        , m_report(handler)
    {
    }

    bool copy(const std::string &source, const std::string &destination)
    {
        copyEntry(source, destination);
        return !m_report.failed();
    }

    /// Whether anything was made at the destination, complete or not.
    bool madeDestination() const { return m_madeDestination; }

private:
    void sourceError(const std::string &path, int error)
    {
        m_report.add(Operation::Copy, path, error);
    }

    void destinationError(const std::string &path, int error)
    {
        m_report.add(Operation::Create, path, error);
    }

    void copyEntry(const std::string &source, const std::string &destination)
    {
        struct stat status;
        if (::lstat(source.c_str(), &status) != 0) {
            sourceError(source, errno);
            return;
        }
        switch (Posix::kindOf(status)) {
        case EntryKind::File:
            copyFile(source, destination);
            break;
        case EntryKind::Folder:
            copyFolder(source, destination, status);
            break;
        case EntryKind::Link:
            copyLink(source, destination);
            break;
        default:
            sourceError(source, ENOTSUP);
        }
    }

    void copyLink(const std::string &source, const std::string &destination)
    {
        const auto target = Trees::linkTarget(source);
        if (!target)
            sourceError(source, errno);
        else if (::symlink(target->c_str(), destination.c_str()) != 0)
            destinationError(destination, errno);
        else
            m_madeDestination = true;
    }

    void copyFolder(const std::string &source, const std::string &destination,
                    const struct stat &status)
    {
        if (isOwnDestination(status)) {
            sourceError(source, EINVAL); // the copy would never end
            return;
        }
        const auto entries = Trees::entriesAt(source, Links::Refuse);
        if (!entries) {
            sourceError(source, errno);
            return;
        }
        if (!makeFolder(destination))
            return;
        for (const Entry &entry : *entries) {
            if (m_report.stopped())
                return;
            copyEntry(source + '/' + entry.name, destination + '/' + entry.name);
        }
    }

    bool isOwnDestination(const struct stat &status) const
    {
        return m_madeDestination && status.st_dev == m_top.st_dev && status.st_ino == m_top.st_ino;
    }

    bool makeFolder(const std::string &path)
    {
        if (::mkdir(path.c_str(), Posix::newFolderMode) != 0) {
            destinationError(path, errno);
            return false;
        }
        if (!m_madeDestination)
            ::lstat(path.c_str(), &m_top);
        m_madeDestination = true;
        return true;
    }

    void copyFile(const std::string &source, const std::string &destination)
    {
        auto from = OpenFile::forReading(QString::fromStdString(source), m_files);
        if (!from) {
            sourceError(source, from.error().number);
            return;
        }
        auto to = OpenFile::forWriting(QString::fromStdString(destination),
                                       FileManager::Existing::Refuse, m_files);
        if (!to) {
            m_report.add(to.error());
            return;
        }
        m_madeDestination = true;
        auto outcome = copyContents(*from, *to, source);
        const auto closed = to->close();
        if (outcome && !closed)
            outcome = closed;
        if (outcome)
            return;
        m_report.add(outcome.error());
        ::unlink(destination.c_str());
    }

    FileResult<> copyContents(OpenFile &from, OpenFile &to, const std::string &source)
    {
        m_buffer.resize(copyBlock);
        for (;;) {
            const auto count = from.read(m_buffer.data(), m_buffer.size());
            if (!count)
                return FileError::of(Operation::Copy, QString::fromStdString(source),
                                     count.error().number);
            if (*count == 0)
                return {};
            if (const auto written = to.write(m_buffer.data(), *count); !written)
                return written;
        }
    }

    FileManager &m_files;
    ErrorReport m_report;
    std::vector<char> m_buffer;
    bool m_madeDestination = false;
    struct stat m_top = {}; // of the folder that the whole copy made first
};

class TreeRemover
{
public:
    explicit TreeRemover(FileOperationHandler *handler)
        : m_report(handler)
    {
    }

    bool remove(const std::string &path)
    {
        m_holds = HeldFiles::areNeededIn(folderOf(path));
        removeEntry(AT_FDCWD, path.c_str(), path, EntryKind::Unknown);
        return !m_report.failed();
    }

private:
    void fail(const std::string &path, int error) { m_report.add(Operation::Remove, path, error); }

    static bool isGone(int error) { return error == ENOENT || error == ENOTDIR; }

    /// Whether nothing is left; what failed has been reported.
    bool removeEntry(int at, const char *name, const std::string &path, EntryKind kind)
    {
        if (m_holds)
            HeldFiles::hold(at, name);
        if (kind == EntryKind::Folder)
            return removeFolder(at, name, path);
        if (::unlinkat(at, name, 0) == 0 || isGone(errno))
            return true;
        const int error = errno;
        struct stat status;
        // Other systems' file systems say EPERM of a folder.
        if ((error == EISDIR || error == EPERM) &&
            ::fstatat(at, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode))
            return removeFolder(at, name, path);
        fail(path, error);
        return false;
    }

    bool removeFolder(int at, const char *name, const std::string &path)
    {
        // An empty folder goes even where it can't be read.
        if (::unlinkat(at, name, AT_REMOVEDIR) == 0 || isGone(errno))
            return true;
        if (errno != ENOTEMPTY && errno != EEXIST) {
            fail(path, errno);
            return false;
        }
        if (!removeContents(at, name, path))
            return false;
        if (::unlinkat(at, name, AT_REMOVEDIR) == 0 || isGone(errno))
            return true;
        fail(path, errno);
        return false;
    }

    bool removeContents(int at, const char *name, const std::string &path)
    {
        const Descriptor folder = Posix::openFolder(at, name, Links::Refuse);
        const auto entries =
            folder ? Posix::entriesOf(Posix::openFolder(folder.get(), ".", Links::Refuse))
                   : std::nullopt;
        if (!entries) {
            fail(path, errno);
            return false;
        }
        bool empty = true;
        for (const Entry &entry : *entries) {
            if (m_report.stopped())
                return false;
            empty &=
                removeEntry(folder.get(), entry.name.c_str(), path + '/' + entry.name, entry.kind);
        }
        return empty;
    }

    ErrorReport m_report;
    bool m_holds = false;
};

} // namespace

bool FileManager::copy(const QString &source, const QString &destination,
                       FileOperationHandler *handler)
{
    return TreeCopier(*this, handler).copy(nativeText(source), nativeText(destination));
}

bool FileManager::move(const QString &source, const QString &destination,
                       FileOperationHandler *handler)
{
    const std::string from = nativeText(source);
    const std::string to = nativeText(destination);
    if (Posix::renameExclusively(from.c_str(), to.c_str()))
        return true;
    if (errno != EXDEV) {
        ErrorReport(handler).add(Operation::Move, from, errno);
        return false;
    }
    TreeCopier copier(*this, handler);
    if (copier.copy(from, to)) {
        // The only copy must not be one that a power cut can take.
        if (const auto flushed = flush(destination); !flushed) {
            ErrorReport(handler).add(flushed.error());
            return false;
        }
        return remove(source, handler);
    }
    if (copier.madeDestination())
        remove(destination, nullptr);
    return false;
}

bool FileManager::remove(const QString &path, FileOperationHandler *handler)
{
    return TreeRemover(handler).remove(nativeText(path));
}

bool FileManager::removeEmptyFolder(const QString &path, FileOperationHandler *handler)
{
    const std::string folder = nativeText(path);
    if (HeldFiles::areNeededIn(folder))
        HeldFiles::hold(AT_FDCWD, folder.c_str());
    if (::rmdir(folder.c_str()) == 0 || errno == ENOENT)
        return true;
    ErrorReport(handler).add(Operation::Remove, folder, errno);
    return false;
}
