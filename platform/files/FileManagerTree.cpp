#include "platform/files/FileManager.h"

#include "platform/core/Log.h"
#include "platform/core/own/Posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

using Posix::Descriptor;
using Posix::Entry;
using Posix::EntryKind;
using Posix::Links;

namespace {

constexpr size_t copyBlock = 1U << 20;
constexpr size_t compareBlock = 128U << 10;
constexpr mode_t newFileMode = 0644;
constexpr mode_t newFolderMode = 0755;

std::string nativeText(const QString &path)
{
    return Posix::native(path).toStdString();
}

/// The target's text of a link; nothing where it can't be read.
std::optional<std::string> linkTarget(const std::string &path)
{
    std::array<char, 4096> target;
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    if (length < 0)
        return std::nullopt;
    return std::string(target.data(), static_cast<size_t>(length));
}

std::optional<std::vector<Entry>> entriesAt(const std::string &folder, Links links)
{
    return Posix::entriesOf(Posix::openFolder(AT_FDCWD, folder.c_str(), links));
}

// Listing

class Lister
{
public:
    enum class Depth { Whole, Top };

    Lister(std::string top, Depth depth)
        : m_top(std::move(top))
        , m_depth(depth)
    {
    }

    std::vector<FolderEntry> list()
    {
        listFolder(m_top, QString(), -1, Links::Follow);
        return std::move(m_found);
    }

private:
    void listFolder(const std::string &folder, const QString &prefix, int parent, Links links)
    {
        const auto entries = entriesAt(folder, links);
        if (!entries && parent < 0 && (errno == ENOENT || errno == ENOTDIR))
            return;
        if (!entries) {
            qCWarning(lcPlatform, "Can't read the folder %s: %s", folder.c_str(),
                      qPrintable(Posix::reason(errno)));
            return;
        }
        for (const Entry &entry : *entries)
            add(entry, folder, prefix, parent);
    }

    void add(const Entry &entry, const std::string &folder, const QString &prefix, int parent)
    {
        const QUtf8StringView name(entry.name.data(), qsizetype(entry.name.size()));
        if (!name.isValidUtf8()) {
            qCWarning(lcPlatform, "Leaving out %s/%s: its name is no valid UTF-8", folder.c_str(),
                      QByteArray::fromStdString(entry.name).toPercentEncoding(" ").constData());
            return;
        }
        const bool isFolder = entry.kind == EntryKind::Folder;
        const QString path = prefix + name.toString();
        m_found.push_back({path, isFolder, parent});
        const int index = static_cast<int>(m_found.size()) - 1;
        if (isFolder && m_depth == Depth::Whole)
            listFolder(folder + '/' + entry.name, path + u'/', index, Links::Refuse);
    }

    const std::string m_top;
    const Depth m_depth;
    std::vector<FolderEntry> m_found;
};

// Comparing

class Comparer
{
public:
    bool equal(const std::string &first, const std::string &second)
    {
        struct stat one;
        struct stat two;
        if (::lstat(first.c_str(), &one) != 0 || ::lstat(second.c_str(), &two) != 0)
            return false;
        const EntryKind kind = Posix::kindOf(one);
        if (kind != Posix::kindOf(two))
            return false;
        switch (kind) {
        case EntryKind::File:
            return one.st_size == two.st_size && filesEqual(first, second);
        case EntryKind::Folder:
            return foldersEqual(first, second);
        case EntryKind::Link:
            return linksEqual(first, second);
        default:
            return false;
        }
    }

private:
    static bool linksEqual(const std::string &first, const std::string &second)
    {
        const auto target = linkTarget(first);
        return target && target == linkTarget(second);
    }

    bool foldersEqual(const std::string &first, const std::string &second)
    {
        const auto one = entriesAt(first, Links::Refuse);
        const auto two = entriesAt(second, Links::Refuse);
        const auto same = [](const Entry &a, const Entry &b) {
            return a.name == b.name && a.kind == b.kind;
        };
        if (!one || !two || !std::ranges::equal(*one, *two, same))
            return false;
        return std::ranges::all_of(*one, [&](const Entry &entry) {
            return equal(first + '/' + entry.name, second + '/' + entry.name);
        });
    }

    bool filesEqual(const std::string &first, const std::string &second)
    {
        const Descriptor one(Posix::openRegularFile(first.c_str()));
        const Descriptor two(Posix::openRegularFile(second.c_str()));
        if (!one || !two)
            return false;
        m_blocks.resize(2 * compareBlock);
        char *const left = m_blocks.data();
        char *const right = left + compareBlock;
        for (;;) {
            const ssize_t count = readBlock(one.get(), left);
            if (count < 0 || count != readBlock(two.get(), right))
                return false;
            if (std::memcmp(left, right, static_cast<size_t>(count)) != 0)
                return false;
            if (static_cast<size_t>(count) < compareBlock)
                return true;
        }
    }

    /// Fills the block as far as the file reaches; -1 where reading fails.
    static ssize_t readBlock(int file, char *block)
    {
        size_t filled = 0;
        while (filled < compareBlock) {
            const ssize_t count = ::read(file, block + filled, compareBlock - filled);
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                return -1;
            if (count == 0)
                break;
            filled += static_cast<size_t>(count);
        }
        return static_cast<ssize_t>(filled);
    }

    std::vector<char> m_blocks;
};

// Copying and removing

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

    void add(const QString &what, const std::string &path, int error)
    {
        m_failed = true;
        const ErrorInfo info{{QStringLiteral("Error"), what},
                             {QStringLiteral("Path"), QString::fromStdString(path)},
                             {QStringLiteral("Reason"), Posix::reason(error)}};
        if (m_handler && !m_handler->fileManagerShouldProceedAfterError(info))
            m_stopped = true;
    }

private:
    FileOperationHandler *m_handler;
    bool m_failed = false;
    bool m_stopped = false;
};

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
        m_report.add(QStringLiteral("Couldn't copy"), path, error);
    }

    void destinationError(const std::string &path, int error)
    {
        m_report.add(QStringLiteral("Couldn't create"), path, error);
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
        const auto target = linkTarget(source);
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
        const auto entries = entriesAt(source, Links::Refuse);
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
        if (::mkdir(path.c_str(), newFolderMode) != 0) {
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
        const Descriptor from(Posix::openRegularFile(source.c_str()));
        if (!from) {
            sourceError(source, errno);
            return;
        }
        const int to =
            ::open(destination.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, newFileMode);
        if (to < 0) {
            destinationError(destination, errno);
            return;
        }
        m_madeDestination = true;
        bool complete = copyContents(from.get(), to, source, destination);
        if (!m_files.close(to) && complete) {
            m_report.add(QStringLiteral("Couldn't write"), destination, errno);
            complete = false;
        }
        if (!complete)
            ::unlink(destination.c_str());
    }

    bool copyContents(int from, int to, const std::string &source, const std::string &destination)
    {
        m_buffer.resize(copyBlock);
        for (;;) {
            const qint64 count = m_files.read(from, m_buffer.data(), m_buffer.size());
            if (count < 0)
                sourceError(source, errno);
            if (count <= 0)
                return count == 0;
            if (!writeBlock(to, static_cast<size_t>(count))) {
                m_report.add(QStringLiteral("Couldn't write"), destination, errno);
                return false;
            }
        }
    }

    bool writeBlock(int to, size_t size)
    {
        for (size_t written = 0; written < size;) {
            const qint64 count = m_files.write(to, m_buffer.data() + written, size - written);
            if (count <= 0)
                return false;
            written += static_cast<size_t>(count);
        }
        return true;
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
        removeEntry(AT_FDCWD, path.c_str(), path, EntryKind::Unknown);
        return !m_report.failed();
    }

private:
    void fail(const std::string &path, int error)
    {
        m_report.add(QStringLiteral("Couldn't remove"), path, error);
    }

    static bool isGone(int error) { return error == ENOENT || error == ENOTDIR; }

    /// Whether nothing is left; what failed has been reported.
    bool removeEntry(int at, const char *name, const std::string &path, EntryKind kind)
    {
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
};

} // namespace

std::vector<FolderEntry> FileManager::subpaths(const QString &folder) const
{
    return Lister(nativeText(folder), Lister::Depth::Whole).list();
}

std::vector<FolderEntry> FileManager::entries(const QString &folder) const
{
    return Lister(nativeText(folder), Lister::Depth::Top).list();
}

bool FileManager::contentsEqual(const QString &first, const QString &second) const
{
    return Comparer().equal(nativeText(first), nativeText(second));
}

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
        ErrorReport(handler).add(QStringLiteral("Couldn't move"), from, errno);
        return false;
    }
    TreeCopier copier(*this, handler);
    if (copier.copy(from, to)) {
        flush(destination); // the only copy must not be one that a power cut can take
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
    if (::rmdir(folder.c_str()) == 0 || errno == ENOENT)
        return true;
    ErrorReport(handler).add(QStringLiteral("Couldn't remove"), folder, errno);
    return false;
}
