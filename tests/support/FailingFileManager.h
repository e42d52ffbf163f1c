#pragma once

#include "platform/files/FileManager.h"

#include <cerrno>
#include <functional>
#include <optional>
#include <utility>

/// The real files, with faults of the test's choice.
class FailingFileManager : public FileManager
{
public:
    std::optional<quint64> freeBytes;    ///< what volumes say is free
    std::optional<qint64> writableBytes; ///< so many more, then ENOSPC
    std::optional<int> readableTimes;    ///< so often, then EIO
    size_t largestWrite = SIZE_MAX;      ///< longer ones are cut short
    std::function<void()> onFull;        ///< at the first write that finds no room
    QString readOnlyBelow;               ///< nothing below can be made or removed
    int refusal = EROFS;                 ///< why
    QString locked;                      ///< this can't be opened
    bool waitsForLocks = true;
    int closed = 0; ///< the flushed ones too
    int flushed = 0;

    FileResult<> createFolder(const QString &path) override
    {
        if (isReadOnly(path))
            return FileError::of(FileError::Operation::Create, path, refusal);
        return FileManager::createFolder(path);
    }
    int createForWriting(const QString &path, Existing existing) override
    {
        return isReadOnly(path) ? -1 : FileManager::createForWriting(path, existing);
    }
    int openForReading(const QString &path) override
    {
        errno = EACCES;
        return path == locked ? -1 : FileManager::openForReading(path);
    }
    qint64 transfer(int, int, size_t) override { return -1; }
    qint64 read(int descriptor, void *buffer, size_t count) override
    {
        if (readableTimes && (*readableTimes)-- == 0) {
            errno = EIO;
            return -1;
        }
        return FileManager::read(descriptor, buffer, count);
    }
    qint64 write(int descriptor, const void *buffer, size_t count) override
    {
        if (writableBytes) {
            if (*writableBytes <= 0) {
                if (onFull)
                    std::exchange(onFull, nullptr)();
                errno = ENOSPC;
                return -1;
            }
            count = std::min(count, static_cast<size_t>(*writableBytes));
            *writableBytes -= static_cast<qint64>(count);
        }
        return FileManager::write(descriptor, buffer, std::min(count, largestWrite));
    }
    FileResult<FileLock> lock(const QString &path, std::chrono::milliseconds limit) override
    {
        return FileManager::lock(path, waitsForLocks ? limit : std::chrono::milliseconds(0));
    }
    bool close(int descriptor) override
    {
        ++closed;
        return FileManager::close(descriptor);
    }
    bool closeAndFlush(int descriptor) override
    {
        ++flushed;
        return FileManager::closeAndFlush(descriptor); // which closes by close()
    }
    bool remove(const QString &path, FileOperationHandler *handler) override
    {
        return isReadOnly(path) ? refuse(path, handler) : FileManager::remove(path, handler);
    }
    bool removeEmptyFolder(const QString &path, FileOperationHandler *handler) override
    {
        return isReadOnly(path) ? refuse(path, handler)
                                : FileManager::removeEmptyFolder(path, handler);
    }
    FileResult<> writeAtomically(const QString &path, const QByteArray &contents) override
    {
        if (isReadOnly(path))
            return FileError::of(FileError::Operation::Write, path, refusal);
        return FileManager::writeAtomically(path, contents);
    }
    std::optional<VolumeSpace> volumeSpace(const QString &path) const override
    {
        auto space = FileManager::volumeSpace(path);
        if (space && freeBytes)
            space->free = *freeBytes;
        return space;
    }

private:
    bool isReadOnly(const QString &path) const
    {
        const bool below = !readOnlyBelow.isEmpty() && path.startsWith(readOnlyBelow + u'/');
        if (below)
            errno = refusal;
        return below;
    }
    bool refuse(const QString &path, FileOperationHandler *handler) const
    {
        const FileError error = FileError::of(FileError::Operation::Remove, path, refusal);
        if (handler)
            handler->fileManagerShouldProceedAfterError(error);
        return false;
    }
};
