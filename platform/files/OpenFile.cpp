#include "platform/files/OpenFile.h"

#include <cerrno>
#include <utility>

FileResult<OpenFile> OpenFile::forReading(const QString &path, FileManager &manager)
{
    const int descriptor = manager.openForReading(path);
    if (descriptor < 0)
        return FileError::of(FileError::Operation::Read, path, errno);
    return OpenFile(manager, path, descriptor);
}

FileResult<OpenFile> OpenFile::forWriting(const QString &path, FileManager::Existing existing,
                                          FileManager &manager)
{
    const int descriptor = manager.createForWriting(path, existing);
    if (descriptor < 0)
        return FileError::of(FileError::Operation::Create, path, errno);
    return OpenFile(manager, path, descriptor);
}

OpenFile::OpenFile(FileManager &manager, QString path, int descriptor)
    : m_manager(manager)
    , m_path(std::move(path))
    , m_descriptor(descriptor)
{
}

OpenFile::OpenFile(OpenFile &&other) noexcept
    : m_manager(other.m_manager)
    , m_path(std::move(other.m_path))
    , m_descriptor(other.release())
{
}

OpenFile::~OpenFile()
{
    if (m_descriptor < 0)
        return;
    const int error = errno;
    m_manager.close(m_descriptor);
    errno = error;
}

FileResult<size_t> OpenFile::read(void *buffer, size_t count)
{
    const qint64 got = m_manager.read(m_descriptor, buffer, count);
    if (got < 0)
        return FileError::of(FileError::Operation::Read, m_path, errno);
    return static_cast<size_t>(got);
}

FileResult<> OpenFile::write(const void *bytes, size_t count)
{
    return written(m_manager.writeAll(m_descriptor, bytes, count));
}

qint64 OpenFile::transferTo(OpenFile &destination, size_t count)
{
    return m_manager.transfer(m_descriptor, destination.m_descriptor, count);
}

FileResult<> OpenFile::close()
{
    return written(m_manager.close(release()));
}

FileResult<> OpenFile::closeAndFlush()
{
    return written(m_manager.closeAndFlush(release()));
}

int OpenFile::release()
{
    return std::exchange(m_descriptor, -1);
}

FileResult<> OpenFile::written(bool succeeded) const
{
    if (succeeded)
        return {};
    return FileError::of(FileError::Operation::Write, m_path, errno);
}
