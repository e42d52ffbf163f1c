#include "util/PSFParser.h"

#include "platform/files/FileManager.h"
#include "util/Log.h"
#include "util/Settings.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

// A header, the table of entries right behind it, and two tables at places that the header gives:
// the keys and the data. All numbers are little-endian.
constexpr quint64 fileLimit = 1ULL << 20; // bytes
constexpr quint64 headerSize = 20;
constexpr quint64 entrySize = 16;
constexpr quint64 longestText = 511; // a key's too: in a file that overlaps them all they add up
const QByteArray magic("\0PSF", 4);

/// Numbers and pieces of a file; nothing is read outside of it.
class Bytes
{
public:
    explicit Bytes(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    bool has(quint64 offset, quint64 count) const
    {
        return offset <= size() && count <= size() - offset;
    }
    quint64 size() const { return static_cast<quint64>(m_bytes.size()); }
    quint8 at(quint64 offset) const
    {
        return static_cast<quint8>(m_bytes[static_cast<qsizetype>(offset)]);
    }
    quint32 le16(quint64 offset) const
    {
        return static_cast<quint32>(at(offset) | at(offset + 1) << 8);
    }
    quint32 le32(quint64 offset) const { return le16(offset) | le16(offset + 2) << 16; }

    /// Up to the first NUL, at most so many bytes; nothing where these are not all in the file
    /// and no NUL comes first.
    std::optional<QByteArray> text(quint64 offset, quint64 longest) const
    {
        if (offset > size())
            return std::nullopt;
        const quint64 room = std::min(longest, size() - offset);
        const QByteArray piece =
            m_bytes.mid(static_cast<qsizetype>(offset), static_cast<qsizetype>(room));
        const qsizetype end = piece.indexOf('\0');
        if (end < 0 && room < longest)
            return std::nullopt;
        return end < 0 ? piece : piece.first(end);
    }

private:
    const QByteArray m_bytes;
};

enum class DataType : quint8 { Binary = 0, Text = 2, Integer = 4 };

struct Entry
{
    QString key;
    bool isInside = false;        // the file has all of its data
    std::optional<QString> value; // nothing: no valid UTF-8
};

std::optional<QString> decoded(const QByteArray &text)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString result = decoder.decode(text);
    return decoder.hasError() ? std::nullopt : std::optional(result);
}

void readValue(const Bytes &file, quint64 entry, quint64 dataTable, Entry &read)
{
    const quint64 data = dataTable + file.le32(entry + 12);
    switch (static_cast<DataType>(file.at(entry + 3))) {
    case DataType::Text:
        if (const auto text =
                file.text(data, std::min<quint64>(file.le32(entry + 4), longestText))) {
            read.isInside = true;
            read.value = decoded(*text);
        }
        return;
    case DataType::Integer:
        read.isInside = file.has(data, 4);
        if (read.isInside)
            read.value = QString::number(static_cast<qint32>(file.le32(data)));
        return;
    case DataType::Binary:
        read.isInside = true;
        read.value = QStringLiteral("Binary");
        return;
    }
    read.isInside = true;
    read.value = QStringLiteral("Unknown");
}

Entry readEntry(const Bytes &file, quint64 entry, quint64 keyTable, quint64 dataTable)
{
    Entry read;
    const auto key = file.text(keyTable + file.le16(entry), longestText);
    if (!key)
        return read;
    read.key = QString::fromLatin1(*key);
    readValue(file, entry, dataTable, read);
    return read;
}

QMap<QString, QString> readEntries(const Bytes &file)
{
    QMap<QString, QString> values;
    const quint64 count = file.le32(16);
    for (quint64 index = 0; index < count; ++index) {
        const quint64 entry = headerSize + index * entrySize;
        if (!file.has(entry, entrySize))
            break;
        const Entry read = readEntry(file, entry, file.le32(8), file.le32(12));
        if (!read.isInside)
            continue;
        if (read.value)
            values.insert(read.key, *read.value);
        else
            values.remove(read.key);
    }
    return values;
}

void logDetail(const QString &text)
{
    if (Settings::useDetailedLogging())
        qCInfo(lcUtil).noquote() << text;
}

} // namespace

std::optional<QMap<QString, QString>> PSFParser::dictionaryWithPSFFile(const QString &path)
{
    const auto contents = files().readFile(path, fileLimit);
    if (!contents) {
        logDetail(QStringLiteral("PSF file cannot be opened: ") + path);
        return std::nullopt;
    }
    return dictionaryWithPSF(*contents);
}

std::optional<QMap<QString, QString>> PSFParser::dictionaryWithPSF(const QByteArray &contents)
{
    const Bytes file(contents);
    if (file.has(0, headerSize) && contents.startsWith(magic))
        return readEntries(file);
    logDetail(QStringLiteral("This file is not a PSF file!"));
    return std::nullopt;
}
