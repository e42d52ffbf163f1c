#include "util/FileManagerTools.h"

#include "platform/files/OpenFile.h"
#include "util/StringTools.h"

#include <QFileInfo>

#include <cerrno>
#include <memory>

using StringTools::appendingPathComponent;

namespace {

using Ended = CopyOutcome::Ended;

constexpr size_t chunkSize = 1U << 20;

CopyOutcome copyFolder(const QString &source, const QString &destination,
                       FileOperationHandler &handler)
{
    // A link that leads nowhere is in the way too: writing through it would land elsewhere.
    if (files().linkStatus(destination).exists())
        return {};
    const bool isWhole = files().copy(source, destination, &handler);
    return {.ended = isWhole ? Ended::Complete : Ended::Failed};
}

/// What the copy of one file needs until both sides are closed.
class ChunkedCopy
{
public:
    ChunkedCopy(OpenFile &from, OpenFile &to, FileOperationHandler &handler)
        : m_from(from)
        , m_to(to)
        , m_handler(handler)
    {
    }

    CopyOutcome run()
    {
        CopyOutcome outcome{.ended = Ended::Complete};
        while (const size_t count = copyChunk()) {
            outcome.bytes += count;
            if (m_handler.fileManagerCopiedBytes(count, m_to.path())) {
                outcome.ended = Ended::Stopped;
                break;
            }
        }
        report(m_to.closeAndFlush());
        if (m_hasFailed)
            outcome.ended = Ended::Failed;
        return outcome;
    }

private:
    /// Copies the source's next chunk and returns its size, 0 at the source's end.
    size_t copyChunk()
    {
        size_t done = 0;
        while (m_canTransfer && done < chunkSize) {
            const qint64 count = m_from.transferTo(m_to, chunkSize - done);
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
        if (!m_buffer)
            m_buffer = std::make_unique_for_overwrite<char[]>(chunkSize);
        const auto count = m_from.read(m_buffer.get(), size);
        if (!count) {
            m_hasFailed = true;
            m_handler.fileManagerShouldProceedAfterError(count.error());
            return 0;
        }
        report(m_to.write(m_buffer.get(), *count));
        return *count;
    }

    /// A full stick fails every further chunk too: said once a file.
    void report(const FileResult<> &written)
    {
        m_hasFailed |= !written;
        if (!written && !std::exchange(m_saidNotWritten, true))
            m_handler.fileManagerShouldProceedAfterError(written.error());
    }

    OpenFile &m_from;
    OpenFile &m_to;
    FileOperationHandler &m_handler;
    std::unique_ptr<char[]> m_buffer;
    bool m_canTransfer = true;
    bool m_saidNotWritten = false;
    bool m_hasFailed = false;
};

} // namespace

void FileManagerTools::createPath(const QString &path)
{
    if (!path.startsWith(u'/') || files().exists(path))
        return;
    createPath(path.left(path.lastIndexOf(u'/')));
    // Whoever uses the folder says what is wrong with it.
    [[maybe_unused]] const auto made = files().createFolder(path);
}

CopyOutcome FileManagerTools::copyPath(const QString &source, const QString &toPath,
                                       FileOperationHandler &detailedHandler)
{
    auto from = OpenFile::forReading(source);
    if (!from) {
        if (files().status(source).isFolder())
            return copyFolder(source, toPath, detailedHandler);
        if (from.error().number != ENOENT)
            detailedHandler.fileManagerShouldProceedAfterError(from.error());
        return {};
    }
    auto to = OpenFile::forWriting(toPath, FileManager::Existing::Refuse);
    if (!to) {
        if (to.error().number != EEXIST)
            detailedHandler.fileManagerShouldProceedAfterError(to.error());
        return {};
    }
    return ChunkedCopy(*from, *to, detailedHandler).run();
}

QString FileManagerTools::pathByResolvingAliasesInPath(const QString &path)
{
    QString built = QStringLiteral("/");
    for (const QString &component : path.split(u'/', Qt::SkipEmptyParts)) {
        built = appendingPathComponent(built, component);
        if (files().linkStatus(built).kind != FileStatus::Kind::Link)
            continue;
        const QString target = QFileInfo(built).canonicalFilePath();
        if (!target.isEmpty())
            built = target;
    }
    return built;
}
