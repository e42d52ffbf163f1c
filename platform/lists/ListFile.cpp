#include "platform/lists/own/ListFile.h"

#include <algorithm>

FileResult<QByteArray> ListFile::start(qsizetype size)
{
    QByteArray bytes;
    size_t count = 0;
    do {
        const qsizetype known = bytes.size();
        bytes.resize(size);
        const FileResult<size_t> got = m_file.read(bytes.data() + known, size_t(size - known));
        if (!got)
            return got.error();
        count = *got;
        bytes.truncate(known + static_cast<qsizetype>(count));
    } while (count > 0 && bytes.size() < size);
    m_start = bytes;
    return bytes;
}

FileResult<size_t> ListFile::read(void *buffer, size_t size)
{
    if (m_start.isEmpty())
        return m_file.read(buffer, size);
    const size_t count = std::min(static_cast<size_t>(m_start.size()), size);
    std::copy_n(m_start.constData(), count, static_cast<char *>(buffer));
    m_start.remove(0, static_cast<qsizetype>(count));
    return count;
}

FileError ListFile::damage(const QString &text, int line) const
{
    const QString place = line > 0 ? QStringLiteral("line %1: ").arg(line) : QString();
    return {FileError::Operation::Parse, m_file.path(), 0, place + text};
}

FileError ListFile::tooLong(quint64 limit) const
{
    return damage(QStringLiteral("the file is longer than %1 bytes").arg(limit));
}
