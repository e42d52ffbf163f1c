#pragma once

#include "platform/files/OpenFile.h"

#include <QByteArray>

/// A list's file while it is read, from its start to its end.
class ListFile
{
public:
    explicit ListFile(OpenFile file)
        : m_file(std::move(file))
    {
    }

    /// The first bytes, or fewer of a shorter file; the next read gives them again.
    FileResult<QByteArray> start(qsizetype size);

    /// The count read; 0 at the end.
    FileResult<size_t> read(void *buffer, size_t size);

    /// Of the contents; the line counts from 1, and 0 is none.
    FileError damage(const QString &text, int line = 0) const;
    FileError tooLong(quint64 limit) const;

private:
    OpenFile m_file;
    QByteArray m_start; // looked at and not read yet
};
