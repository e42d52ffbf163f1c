#include "util/FileManagerTools.h"

#include "platform/core/Localized.h"
#include "platform/desktop/Workspace.h"
#include "util/StringTools.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <system_error>
#include <utility>

using StringTools::appendingPathComponent;

namespace {

void reportTo(FileOperationHandler &handler, const QString &what, const QString &path, int error)
{
    ErrorInfo info{{QStringLiteral("Error"), what}, {QStringLiteral("Path"), path}};
    if (error != 0)
        info.insert(QStringLiteral("Reason"),
                    QString::fromLocal8Bit(std::generic_category().message(error).c_str()));
    handler.fileManagerShouldProceedAfterError(info);
}

/// What the copy of one file needs until both sides are closed. Takes the open source over.
class ChunkedCopy
{
public:
    ChunkedCopy(FileManager &files, int from, const QString &source, const QString &destination,
                FileOperationHandler &handler)
        : m_files(files)
        , m_source(source)
        , m_destination(destination)
        , m_handler(handler)
        , m_from(from)
    {
    }

    bool run()
    {
        m_to = m_files.createForWriting(m_destination, FileManager::Existing::Refuse);
        if (m_to < 0) {
            if (errno != EEXIST)
                report(QStringLiteral("Couldn't create"), m_destination, errno);
            m_files.close(m_from);
            return false;
        }
        copyChunks();
        if (!m_files.closeAndFlush(m_to))
            reportWriteError(errno);
        m_files.close(m_from);
        return true;
    }

private:
    // One buffer for every copy: only one runs at a time.
    static constexpr size_t chunkSize = 1U << 20;
    static std::array<char, chunkSize> buffer;

    void copyChunks()
    {
        for (;;) {
            const size_t count = copyChunk();
            if (count == 0 ||
                m_handler.fileManagerCopiedBytes(static_cast<quint64>(count), m_destination))
                return;
        }
    }

    /// Copies the source's next chunk and returns its size, 0 at the source's end.
    size_t copyChunk()
    {
        size_t done = 0;
        while (m_canTransfer && done < chunkSize) {
            const qint64 count = m_files.transfer(m_from, m_to, chunkSize - done);
            if (count == 0)
                return done;
            m_canTransfer = count > 0;
            done += static_cast<size_t>(std::max<qint64>(count, 0));
        }
        return m_canTransfer ? done : done + copyThroughBuffer(chunkSize - done);
    }

    /// What the system can't transfer by itself; it also tells which side it is that fails.
    size_t copyThroughBuffer(size_t size)
    {
        const qint64 count = m_files.read(m_from, buffer.data(), size);
        if (count < 0)
            report(QStringLiteral("Couldn't read"), m_source, errno);
        if (count <= 0)
            return 0;
        writeChunk(static_cast<size_t>(count));
        return static_cast<size_t>(count);
    }

    void writeChunk(size_t size)
    {
        for (size_t written = 0; written < size;) {
            errno = 0;
            const qint64 count = m_files.write(m_to, buffer.data() + written, size - written);
            if (count <= 0) {
                reportWriteError(errno);
                return;
            }
            written += static_cast<size_t>(count);
        }
    }

    /// A full stick fails every further chunk too: said once a file.
    void reportWriteError(int error)
    {
        if (!std::exchange(m_writeErrorReported, true))
            report(QStringLiteral("Couldn't write"), m_destination, error);
    }

    void report(const QString &what, const QString &path, int error)
    {
        reportTo(m_handler, what, path, error);
    }

    FileManager &m_files;
    const QString &m_source;
    const QString &m_destination;
    FileOperationHandler &m_handler;
    const int m_from;
    int m_to = -1;
    bool m_canTransfer = true;
    bool m_writeErrorReported = false;
};

std::array<char, ChunkedCopy::chunkSize> ChunkedCopy::buffer;

struct SizeUnit
{
    double limit; // largest byte count that is told in this unit
    double bytes;
    int decimals;
    const char *format; // as the translations have it; the number takes the place of its "%0.nf"
};

constexpr double kilobyte = 1024.0;
constexpr double megabyte = kilobyte * kilobyte;
constexpr double gigabyte = megabyte * kilobyte;
constexpr double terabyte = gigabyte * kilobyte;

const SizeUnit &unitFor(double byteCount)
{
    static constexpr std::array<SizeUnit, 5> units = {{
        {kilobyte, 1.0, 0, QT_TRANSLATE_NOOP("", "%0.0f b")},
        {megabyte, kilobyte, 1, QT_TRANSLATE_NOOP("", "%0.1f KB")},
        {gigabyte, megabyte, 1, QT_TRANSLATE_NOOP("", "%0.1f MB")},
        {terabyte, gigabyte, 1, QT_TRANSLATE_NOOP("", "%0.1f GB")},
        {0.0, terabyte, 1, QT_TRANSLATE_NOOP("", "%0.1f TB")},
    }};
    const auto fits = [byteCount](const SizeUnit &unit) {
        return byteCount <= unit.limit;
    };
    return *std::find_if(units.begin(), units.end() - 1, fits);
}

/// As printf in the C locale; ties go to the even digit, which Qt's own conversion doesn't do.
QString fixedPoint(double value, int decimals)
{
    std::array<char, 32> digits; // at most 2^64 with one decimal
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, decimals);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

constexpr char16_t fatCharacter(char16_t c)
{
    switch (c) {
    case u':':
    case u'/':
    case u'?':
    case u'<':
    case u'>':
    case u'|':
    case u'*':
    case u'\\':
        return u'_';
    case u'"':
        return u'\'';
    default:
        return c;
    }
}

constexpr std::array<char16_t, 128> fatCharacters = [] {
    std::array<char16_t, 128> table{};
    for (char16_t c = 0; c < table.size(); ++c)
        table[c] = fatCharacter(c);
    return table;
}();

bool isAscii(QStringView text)
{
    char16_t all = 0;
    for (const QChar c : text)
        all |= c.unicode();
    return all < fatCharacters.size();
}

/// Decomposition changes nothing in ASCII, so the trimming can come first and the rest is one pass.
QString asciiFilename(QStringView title)
{
    const QStringView trimmed = title.trimmed();
    QString name(trimmed.size(), Qt::Uninitialized);
    std::ranges::transform(trimmed, name.begin(),
                           [](QChar c) { return QChar(fatCharacters[c.unicode()]); });
    if (title.endsWith(u'.'))
        name.back() = u'_';
    return name;
}

} // namespace

void FileManagerTools::createPath(const QString &path)
{
    FileManager &files = FileManager::defaultManager();
    if (!path.startsWith(u'/') || files.exists(path))
        return;
    createPath(path.left(path.lastIndexOf(u'/')));
    files.createFolder(path);
}

bool FileManagerTools::copyPath(const QString &source, const QString &toPath,
                                FileOperationHandler &detailedHandler)
{
    FileManager &files = FileManager::defaultManager();
    const int from = files.openForReading(source);
    if (from >= 0)
        return ChunkedCopy(files, from, source, toPath, detailedHandler).run();
    const int error = errno;
    // A link that leads nowhere is in the way too: writing through it would land somewhere else.
    if (files.status(source).isFolder())
        return !files.linkStatus(toPath).exists() && files.copy(source, toPath, &detailedHandler);
    if (error != ENOENT)
        reportTo(detailedHandler, QStringLiteral("Couldn't read"), source, error);
    return false;
}

QString FileManagerTools::pathByResolvingAliasesInPath(const QString &path)
{
    FileManager &files = FileManager::defaultManager();
    QString built = QStringLiteral("/");
    for (const QString &component : path.split(u'/', Qt::SkipEmptyParts)) {
        built = appendingPathComponent(built, component);
        if (files.linkStatus(built).kind != FileStatus::Kind::Link)
            continue;
        const QString target = QFileInfo(built).canonicalFilePath();
        if (!target.isEmpty())
            built = target;
    }
    return built;
}

QString FileManagerTools::sizeDescriptionForByteCount(std::optional<quint64> byteCount)
{
    if (byteCount.value_or(0) == 0)
        return localized("--");
    const auto value = static_cast<double>(*byteCount);
    const SizeUnit &unit = unitFor(value);
    const QString placeholder =
        unit.decimals == 0 ? QStringLiteral("%0.0f") : QStringLiteral("%0.1f");
    return localized(unit.format)
        .replace(placeholder, fixedPoint(value / unit.bytes, unit.decimals));
}

bool FileManagerTools::trashFileAtPath(const QString &path, FileOperationHandler *)
{
    return Workspace::recycle(path);
}

QString FileManagerTools::makeFilename(const QString &title)
{
    if (isAscii(title))
        return asciiFilename(title);
    QString name(title.size(), Qt::Uninitialized);
    std::ranges::transform(title, name.begin(),
                           [](QChar c) { return QChar(fatCharacter(c.unicode())); });
    if (name.endsWith(u'.'))
        name.back() = u'_';
    return name.normalized(QString::NormalizationForm_D).trimmed();
}
