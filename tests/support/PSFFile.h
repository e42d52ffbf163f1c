#pragma once

#include <QByteArray>

#include <optional>

inline QByteArray le32(quint32 number)
{
    QByteArray bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.append(static_cast<char>(number >> shift & 0xff));
    return bytes;
}

/// A file of parameters, each with its key and its data in tables of their own.
class PSFFile
{
public:
    void add(const QByteArray &key, char type, const QByteArray &data,
             std::optional<quint32> length = {})
    {
        const auto keyOffset = static_cast<quint32>(m_keys.size());
        m_entries += le32(keyOffset).first(2) + char(4) + type +
                     le32(length.value_or(static_cast<quint32>(data.size()))) + le32(512) +
                     le32(static_cast<quint32>(m_data.size()));
        m_keys += key + '\0';
        m_data += data;
        ++m_count;
    }
    QByteArray contents() const
    {
        const auto keyTable = static_cast<quint32>(20 + m_entries.size());
        return QByteArray("\0PSF\1\1\0\0", 8) + le32(keyTable) +
               le32(keyTable + static_cast<quint32>(m_keys.size())) + le32(m_count) + m_entries +
               m_keys + m_data;
    }

private:
    quint32 m_count = 0;
    QByteArray m_entries;
    QByteArray m_keys;
    QByteArray m_data;
};
