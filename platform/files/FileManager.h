#pragma once

#include "platform/files/FileError.h"
#include "platform/files/FileLock.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

/// Told of the progress and the errors of file operations, on the thread that runs them.
class FileOperationHandler
{
public:
    virtual ~FileOperationHandler() = default;

    /// A chunked copy wrote so many bytes of one file (at most 1 MiB a call). True stops the copy.
    virtual bool fileManagerCopiedBytes(quint64 bytes, const QString &toPath) = 0;

    /// One step of an operation failed; the operation goes on with the next step when the answer is
    /// true and ends there when it is false. The chunked copy ignores the answer.
    virtual bool fileManagerShouldProceedAfterError(const FileError &error) = 0;
};

/// What one look at a path tells.
struct FileStatus
{
    enum class Kind {
        Missing, ///< nothing there, or it can't be reached
        File,    ///< a regular file, or anything that is neither of the others
        Folder,
        Link, ///< a symbolic link; only where links are not followed
    };
    Kind kind = Kind::Missing;
    quint64 size = 0; ///< bytes; 0 for what is missing

    bool exists() const { return kind != Kind::Missing; }
    bool isFolder() const { return kind == Kind::Folder; }
};

/// One entry of a recursive listing.
struct FolderEntry
{
    QString path; ///< relative to the listed folder, in normal form, without a leading slash
    bool isFolder = false; ///< a folder itself; false for a link to one
    /// Index of the folder that holds it in the same listing; -1: the listed folder.
    int parent = -1;
    // Only where sizes were asked for
    bool isLink = false;
    quint64 size = 0;    ///< bytes; of a link itself
    qint64 modified = 0; ///< as in FileStamp; of a link itself
};

/// Size and free space of a file system in bytes; free is what an ordinary user can still fill.
struct VolumeSpace
{
    quint64 size = 0;
    quint64 free = 0;
    quint64 clusterSize = 1; ///< what the smallest file takes
    bool isReadOnly = false; ///< as it is mounted now
};

/// What tells that a file is still the one that was looked at before.
struct FileStamp
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;     ///< bytes
    qint64 modified = 0; ///< nanoseconds since 1970 began in UTC

    bool operator==(const FileStamp &) const = default;
};

/// The files of the machine. Paths are absolute, "/" between components, UTF-8 on disk. No call
/// throws. Every call may come from any thread. The class is the layer that tests replace to make
/// disks fail; the base class is the real thing (POSIX), so a test overrides only what it changes.
class FileManager
{
public:
    virtual ~FileManager() = default;

    /// The process's file manager: the real one unless a test has put another in its place.
    static FileManager &defaultManager();

    /// For tests: replaces the default manager (not owned); nullptr restores the real one.
    static void setDefaultManager(FileManager *manager);

    /// One stat call. `status` follows links, `linkStatus` does not.
    virtual FileStatus status(const QString &path) const;
    virtual FileStatus linkStatus(const QString &path) const;
    bool exists(const QString &path) const { return status(path).exists(); }
    /// Nothing where nothing is there. Links are followed.
    virtual std::optional<FileStamp> stamp(const QString &path) const;

    /// Everything below a folder: a folder before its contents, siblings in byte order of names,
    /// links listed but not followed. One directory listing per folder and no stat call where the
    /// file system tells the kind of its entries. Empty for what is no folder; a folder that can't
    /// be read counts as empty and is named in the system log, as is an entry that is left out
    /// because its name is no valid UTF-8 (no QString could lead back to it).
    virtual std::vector<FolderEntry> subpaths(const QString &folder) const;
    /// The same with sizes, at the price of a stat call for each entry.
    virtual std::vector<FolderEntry> subpathsWithSizes(const QString &folder) const;
    /// The same as subpaths() without what lies deeper than the folder's own entries.
    virtual std::vector<FolderEntry> entries(const QString &folder) const;

    /// Whether two files, or two folder trees entry by entry, hold the same bytes. Links are
    /// compared by their targets' texts and never followed. Sizes are compared before contents.
    /// False when anything can't be read, and when `shouldStop`, which is asked between the blocks
    /// of a file, says true.
    virtual bool contentsEqual(const QString &first, const QString &second,
                               const std::function<bool()> &shouldStop = {}) const;

    /// Makes one folder (0755 less the umask); fails where something is there.
    virtual FileResult<> createFolder(const QString &path);

    /// Raw access, which OpenFile makes handy, as POSIX: a descriptor or -1, a count or -1, errno
    /// set. Reads and writes are retried when interrupted. Regular files only: reading another kind
    /// fails with EISDIR or EINVAL. A new file has 0644 less the umask; where something is there
    /// already, a link that leads nowhere too, `Refuse` fails with EEXIST.
    enum class Existing { Truncate, Refuse };
    virtual int openForReading(const QString &path);
    virtual int createForWriting(const QString &path, Existing existing);
    virtual qint64 read(int descriptor, void *buffer, size_t count);
    virtual qint64 write(int descriptor, const void *buffer, size_t count);
    /// All of it, in as many steps as it takes; false and errno where that fails.
    bool writeAll(int descriptor, const void *bytes, size_t count);
    virtual bool close(int descriptor);

    /// Closes a file that was written, then writes the buffers of its file system to the device
    /// (syncfs), or those of every file system where that fails. Closing comes first: some file
    /// systems write only then. False and errno where either fails: the file may not be on the
    /// device. Where the file system makes the last
    /// close of a file wait, that is done beside the caller, at most sixteen at a time, and
    /// finishClosing() waits for them all and tells what failed. Not on the main thread, which
    /// waits for nobody.
    virtual bool closeAndFlush(int descriptor);
    virtual std::vector<FileError> finishClosing();

    /// Moves up to so many bytes from one open file to another without taking them through memory
    /// of ours, and advances both. How many; 0 at the source's end; -1 where it can't be done or
    /// fails, and then read() and write() say why.
    virtual qint64 transfer(int from, int to, size_t count);

    /// Writes the buffers of the file system that holds the path to its device (syncfs); flushes
    /// every file system where that fails. Fails where something may not be on the device.
    virtual FileResult<> flush(const QString &path);

    /// Copies a file or a folder tree; links are copied as links. An existing destination is an
    /// error. Errors go to the handler (may be null: every error is then passed over) and the copy
    /// goes on with the next entry: "Couldn't copy" with the source's path, "Couldn't create" and
    /// "Couldn't write" with the destination's. Pipes, sockets and devices are such errors and
    /// never opened; a file that can't be copied whole leaves nothing. True when everything was
    /// copied. No progress is reported.
    virtual bool copy(const QString &source, const QString &destination,
                      FileOperationHandler *handler);

    /// Renames, or copies and removes where the destination lies on another file system; the source
    /// is removed only after all of it was copied. An existing destination is an error.
    virtual bool move(const QString &source, const QString &destination,
                      FileOperationHandler *handler);

    /// Removes a file, a link (not its target) or a folder with everything in it; errors as in
    /// copy(). True when nothing is left at the path.
    virtual bool remove(const QString &path, FileOperationHandler *handler);

    /// Removes a folder only as long as it is empty, so that what somebody has just put there
    /// stays; errors as in copy().
    virtual bool removeEmptyFolder(const QString &path, FileOperationHandler *handler);

    /// Replaces a small file whole: a temporary beside it, flushed, renamed, and the folder
    /// flushed. On failure the old file stays and no temporary is left; only when nothing but the
    /// folder's flush failed, the new file is in place already.
    virtual FileResult<> writeAtomically(const QString &path, const QByteArray &contents);

    /// A whole file; fails where it is missing, unreadable, no regular file, or longer than the
    /// limit (EFBIG).
    virtual FileResult<QByteArray> readFile(const QString &path, quint64 limit) const;

    /// Waits, but for so long at most, until nobody else holds the lock of that path: no other
    /// thread, and no other process that asks here. Fails with EWOULDBLOCK when the time is over.
    /// The lock's file is made where it is missing, and stays: removing it would let two hold locks
    /// on different files of one name.
    virtual FileResult<FileLock> lock(const QString &path, std::chrono::milliseconds limit);

    /// Space of the file system that holds the path; nothing where the path doesn't exist.
    virtual std::optional<VolumeSpace> volumeSpace(const QString &path) const;

    /// The kernel's name for the type of the file system that holds the path ("vfat", "ext4"; what
    /// runs in a process of its own is "fuse…"); empty where it can't be told.
    virtual QString fileSystemType(const QString &path) const;

    /// What the desktop would call the file: its name.
    virtual QString displayName(const QString &path) const;
};

/// FileManager::defaultManager() for short.
inline FileManager &files()
{
    return FileManager::defaultManager();
}
