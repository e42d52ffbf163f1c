#pragma once

#include "platform/files/FileManager.h"

/// A regular file that is open through a file manager, and closed at the end of its life. One
/// thread at a time.
class OpenFile
{
public:
    /// The manager is not owned and outlives the file.
    static FileResult<OpenFile> forReading(const QString &path, FileManager &manager = files());
    /// "Couldn't create" where that fails.
    static FileResult<OpenFile> forWriting(const QString &path, FileManager::Existing existing,
                                           FileManager &manager = files());

    OpenFile(OpenFile &&other) noexcept;
    ~OpenFile();
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;
    OpenFile &operator=(OpenFile &&) = delete;

    const QString &path() const { return m_path; }

    /// The count read; 0 at the end.
    FileResult<size_t> read(void *buffer, size_t count);
    /// All of it, or a failure somewhere in it.
    FileResult<> write(const void *bytes, size_t count);
    /// As FileManager::transfer().
    qint64 transferTo(OpenFile &destination, size_t count);

    /// Closing a file that was written can fail: some file systems write only then. To be called
    /// once, instead of leaving it to the end.
    FileResult<> close();
    FileResult<> closeAndFlush();

private:
    OpenFile(FileManager &manager, QString path, int descriptor);
    int release();
    FileResult<> written(bool succeeded) const;

    FileManager &m_manager;
    QString m_path;
    int m_descriptor;
};
