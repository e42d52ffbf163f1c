#include "sync/KeptFiles.h"

#include "platform/core/Clock.h"
#include "sync/StickFiles.h"
#include "util/FileManagerTools.h"
#include "util/Folders.h"
#include "util/PathComponents.h"

#include <utility>

namespace {

/// Of copies that are none of the run's own: they count in no progress.
class KeepingHandler : public FileOperationHandler
{
public:
    explicit KeepingHandler(const KeptFiles::Asked &asked)
        : m_asked(asked)
    {
    }

    bool fileManagerCopiedBytes(quint64, const QString &) override { return m_asked.shouldStop(); }
    bool fileManagerShouldProceedAfterError(const FileError &error) override
    {
        m_asked.tell(error);
        return true;
    }

private:
    const KeptFiles::Asked &m_asked;
};

} // namespace

KeptFiles::KeptFiles(QString volume, const Clock &clock, Asked asked)
    : m_volume(std::move(volume))
    , m_clock(clock)
    , m_asked(std::move(asked))
{
}

std::optional<QString> KeptFiles::keep(const QString &path)
{
    const FileStatus status = files().linkStatus(path);
    makeFolder();
    const QString copy = m_folder + StickFiles::relativeToVolume(path, m_volume);
    bool isWhole = keepEntry(path, status.isFolder(), status.kind == FileStatus::Kind::Link);
    if (status.isFolder()) {
        for (const FolderEntry &entry : files().subpathsWithSizes(path))
            isWhole = isWhole && keepEntry(path + u'/' + entry.path, entry.isFolder, entry.isLink);
    }
    m_hasKept |= isWhole;
    return isWhole ? std::optional(copy) : std::nullopt;
}

// A run that began within the same second has a folder of its own.
void KeptFiles::makeFolder()
{
    if (!m_folder.isEmpty())
        return;
    const QString wanted = Folders::documents() + QStringLiteral("/Removed from PSP/") +
                           m_clock.now().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
    m_folder = wanted;
    for (int number = 2; files().linkStatus(m_folder).exists(); ++number)
        m_folder = QStringLiteral("%1 (%2)").arg(wanted).arg(number);
}

bool KeptFiles::keepEntry(const QString &path, bool isFolder, bool isLink)
{
    const QString kept = m_folder + StickFiles::relativeToVolume(path, m_volume);
    KeepingHandler handler(m_asked);
    if (isFolder) {
        FileManagerTools::createPath(kept);
        return files().status(kept).isFolder();
    }
    if (files().linkStatus(kept).exists())
        return true; // with what it lies in, or before that
    // Under its name once it is whole: a run that is killed leaves no part of it there.
    const QString part = PathComponents::folderOf(m_folder) + QStringLiteral("/.unfinished");
    FileManagerTools::createPath(PathComponents::folderOf(part));
    files().remove(part, nullptr);
    bool isWhole = isLink ? files().copy(path, part, &handler)
                          : FileManagerTools::copyPath(path, part, handler).isComplete();
    if (isWhole) {
        FileManagerTools::createPath(PathComponents::folderOf(kept));
        isWhole = files().move(part, kept, &handler) && files().flush(kept);
    }
    if (!isWhole)
        files().remove(part, nullptr);
    return isWhole;
}
