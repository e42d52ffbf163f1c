#include "sync/CVSyncModule.h"

#include "platform/lists/PropertyList.h"
#include "sync/Log.h"
#include "sync/ModuleSelection.h"
#include "sync/StickFiles.h"
#include "util/FileManagerTools.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

#include <QHash>

CVSyncModule::CVSyncModule(CVSyncModuleDelegate *delegate, const QString &saveName)
    : m_delegate(delegate)
    , m_saveName(saveName)
    , m_identifiers(ModuleSelection::read(saveName, delegate->pspVolume()).value_or(QStringList()))
    , m_selected(m_identifiers.begin(), m_identifiers.end())
{
}

CVSyncModule::~CVSyncModule() = default;

QString CVSyncModule::rootSyncFolder() const
{
    return pspVolume();
}

bool CVSyncModule::shouldClearUnsyncedFiles() const
{
    return false;
}

std::vector<CVSyncItem> CVSyncModule::itemsToSync()
{
    return {};
}

// --- Preparing

void CVSyncModule::prepare(bool filter)
{
    m_syncQueue.clear();
    m_syncIndex.clear();
    if (Settings::takesPart(m_saveName))
        m_syncQueue =
            fixDuplicateDestinations(itemsToSync(), m_delegate->pspVolumeTellsCaseApart());
    m_syncEstimateSize = calculateFileSizes();
    if (!filter)
        return;
    collectSyncedFiles();
    filterQueue();
    m_syncQueueSize = queuedBytes();
}

std::vector<CVSyncItem> CVSyncModule::fixDuplicateDestinations(std::vector<CVSyncItem> items,
                                                               bool tellsCaseApart)
{
    // The next number per destination is kept, so that many equal ones stay cheap.
    QHash<QString, int> timesSeen;
    timesSeen.reserve(static_cast<qsizetype>(items.size()));
    for (CVSyncItem &item : items) {
        int &times = timesSeen[tellsCaseApart ? item.destination : item.destination.toCaseFolded()];
        if (times > 0)
            item.destination = PathComponents::numbered(item.destination, times);
        ++times;
    }
    return items;
}

CVSyncModule::Measured CVSyncModule::measure(CVSyncItem &item)
{
    const FileStatus own = files().linkStatus(item.source);
    const FileStatus target =
        own.kind == FileStatus::Kind::Link ? files().status(item.source) : own;
    if (target.exists())
        item.size = target.size;
    return {target.exists(), target.isFolder(), own.size};
}

quint64 CVSyncModule::calculateFileSizes()
{
    m_measured.clear();
    m_measured.reserve(m_syncQueue.size());
    quint64 total = 0;
    for (CVSyncItem &item : m_syncQueue) {
        m_measured.push_back(measure(item));
        if (m_measured.back().exists)
            total += item.size;
    }
    return total;
}

quint64 CVSyncModule::queuedBytes() const
{
    quint64 total = 0;
    for (const CVSyncItem &item : m_syncQueue)
        total += item.size;
    return total;
}

void CVSyncModule::collectSyncedFiles()
{
    m_allSyncedFiles.clear();
    m_allSyncedFiles.reserve(static_cast<qsizetype>(m_syncQueue.size()));
    for (const CVSyncItem &item : m_syncQueue)
        m_allSyncedFiles.insert(comparable(item.destination));
}

void CVSyncModule::filterQueue()
{
    m_logsInDetail = Settings::useDetailedLogging();
    size_t kept = 0;
    for (size_t i = 0; i < m_syncQueue.size(); ++i) {
        if (!shouldCopy(m_syncQueue[i], m_measured[i]))
            continue;
        if (kept != i) {
            m_syncQueue[kept] = std::move(m_syncQueue[i]);
            m_measured[kept] = m_measured[i];
        }
        ++kept;
    }
    m_syncQueue.resize(kept);
    m_measured.resize(kept);
}

bool CVSyncModule::shouldCopy(const CVSyncItem &item, const Measured &source)
{
    const bool detailed = m_logsInDetail;
    if (!source.exists) {
        if (detailed)
            qCInfo(lcSync).noquote() << "Dequeueing" << item.source << "(file does not exist)";
        return false;
    }
    const Reach folder = reachOf(PathComponents::folderOf(item.destination));
    if (folder == Reach::ThroughLink)
        return false;
    if (folder == Reach::Missing)
        return true;
    const FileStatus destination = files().linkStatus(item.destination);
    if (!destination.exists())
        return true;
    if (isInPlace(item, source, destination)) {
        if (detailed)
            qCInfo(lcSync).noquote() << "Dequeueing" << item.source << "(file already synced)";
        m_syncIndex.append(StickFiles::relativeToVolume(item.destination, pspVolume()));
        return false;
    }
    if (detailed)
        qCInfo(lcSync).noquote() << "Replacing" << item.destination << "(file changed)";
    if (m_delegate->pspVolumeIsPresent())
        files().remove(item.destination, this);
    return true;
}

bool CVSyncModule::isInPlace(const CVSyncItem &item, const Measured &source,
                             const FileStatus &destination) const
{
    if (destination.isFolder())
        return source.isFolder && files().contentsEqual(item.destination, item.source);
    return !source.isFolder && destination.size == source.ownSize;
}

// A link among the folders leads off the stick: what lies behind it is the user's own, to be
// neither removed nor overwritten.
CVSyncModule::Reach CVSyncModule::reachOf(const QString &folder)
{
    const QString volume = pspVolume();
    if (!StickFiles::isOnVolume(folder, volume) || folder.size() == volume.size())
        return Reach::Present;
    if (const auto known = m_reach.constFind(folder); known != m_reach.constEnd())
        return *known;
    const FileStatus status = files().linkStatus(folder);
    Reach reach = status.exists() ? Reach::Present : Reach::Missing;
    if (status.kind == FileStatus::Kind::Link) {
        fileManagerShouldProceedAfterError(
            FileError::of(FileError::Operation::FollowLink, folder, 0));
        reach = Reach::ThroughLink;
    } else if (reachOf(PathComponents::folderOf(folder)) == Reach::ThroughLink) {
        reach = Reach::ThroughLink;
    }
    m_reach.insert(folder, reach);
    return reach;
}

// --- Cleaning up

// On a stick that doesn't tell letter case apart, a file that was found in place may be listed
// under a name in another case; compared literally it would be taken for a stranger and removed.
QString CVSyncModule::comparable(const QString &path) const
{
    return m_delegate->pspVolumeTellsCaseApart() ? path : path.toCaseFolded();
}

struct CVSyncModule::CleanUp
{
    std::vector<FolderEntry> entries;
    std::vector<int> childrenLeft; // one per entry; what is no folder has none
    QSet<QString> ownFiles;        // of the last index, as comparable() gives them
    bool ownOnly = false;
};

void CVSyncModule::cleanUp()
{
    cleanUp(rootSyncFolder(), !Settings::ownOnly());
}

void CVSyncModule::cleanUp(const QString &folder, bool ownOnly)
{
    if (folder == u"/" || folder == u"/Volumes" || !StickFiles::isOnVolume(folder, pspVolume()))
        return;
    if (reachOf(folder) == Reach::ThroughLink)
        return;
    CleanUp pass;
    const QString indexPath = StickFiles::syncIndex(pspVolume(), m_saveName);
    // An index that can't be read is an empty one: nothing in it is known to be ours. Only where
    // there is none at all does everything count as ours.
    pass.ownOnly = ownOnly && files().exists(indexPath);
    if (pass.ownOnly) {
        for (const QString &path : PropertyList::readStringArray(indexPath).valueOr({}))
            pass.ownFiles.insert(comparable(path));
    }
    pass.entries = files().subpaths(folder);
    pass.childrenLeft.resize(pass.entries.size());
    for (const FolderEntry &entry : pass.entries) {
        if (entry.parent >= 0)
            ++pass.childrenLeft[static_cast<size_t>(entry.parent)];
    }
    for (size_t i = pass.entries.size(); i-- > 0;) {
        const QString path = folder + u'/' + pass.entries[i].path;
        if (shouldRemove(pass, i, path))
            removeDuringCleanUp(pass, i, path);
    }
}

bool CVSyncModule::shouldRemove(const CleanUp &pass, size_t entry, const QString &path) const
{
    const FolderEntry &found = pass.entries[entry];
    if (found.path == u".caravel" || found.path.startsWith(u".caravel/"))
        return false;
    if (PathComponents::lastOf(found.path) == u".DS_Store")
        return true;
    if (found.isFolder)
        return pass.childrenLeft[entry] == 0;
    if (!shouldClearUnsyncedFiles() || m_allSyncedFiles.contains(comparable(path)))
        return false;
    return !pass.ownOnly ||
           pass.ownFiles.contains(comparable(StickFiles::relativeToVolume(path, pspVolume())));
}

void CVSyncModule::removeDuringCleanUp(CleanUp &pass, size_t entry, const QString &path)
{
    if (!m_delegate->pspVolumeIsPresent())
        return;
    const FolderEntry &found = pass.entries[entry];
    if (Settings::useDetailedLogging()) {
        const bool unsynced = !found.isFolder && shouldClearUnsyncedFiles() &&
                              !m_allSyncedFiles.contains(comparable(path));
        qCInfo(lcSync).noquote() << QStringLiteral("Removing file %1... %2 %3")
                                        .arg(path)
                                        .arg(found.isFolder ? 1 : 0)
                                        .arg(unsynced ? 1 : 0);
    }
    const bool isEmptied = found.isFolder && pass.childrenLeft[entry] == 0;
    const bool removed =
        isEmptied ? files().removeEmptyFolder(path, this) : files().remove(path, this);
    if (removed && found.parent >= 0)
        --pass.childrenLeft[static_cast<size_t>(found.parent)];
}

// --- Copying

void CVSyncModule::sync()
{
    for (const CVSyncItem &item : m_syncQueue) {
        if (m_delegate->syncModuleShouldCancel())
            return;
        if (!PathComponents::lastOf(item.source).startsWith(u"._") && files().exists(item.source))
            syncItem(item);
    }
}

void CVSyncModule::syncItem(const CVSyncItem &item)
{
    const QString folder = PathComponents::folderOf(item.destination);
    // Other systems keep a file's resource fork beside it under this name.
    const QString companion =
        folder + QStringLiteral("/._") + PathComponents::lastOf(item.destination);

    m_delegate->syncModuleWillProcessItem(item);
    if (m_delegate->pspVolumeIsPresent()) {
        copyItem(item);
        m_syncIndex.append(StickFiles::relativeToVolume(item.destination, pspVolume()));
        if (files().linkStatus(companion).exists())
            files().remove(companion, this);
    }
    m_delegate->syncModuleDidProcessItem(item);
}

bool CVSyncModule::copyItem(const CVSyncItem &item)
{
    const QString folder = PathComponents::folderOf(item.destination);
    if (m_lastFolder != folder)
        FileManagerTools::createPath(folder);
    m_lastFolder = folder;
    return FileManagerTools::copyPath(item.source, item.destination, *this);
}

bool CVSyncModule::fileManagerCopiedBytes(quint64 bytes, const QString &)
{
    m_delegate->syncModuleDidCopyBytes(bytes);
    return m_delegate->syncModuleShouldCancel();
}

bool CVSyncModule::fileManagerShouldProceedAfterError(const FileError &error)
{
    m_delegate->syncModuleError(error);
    return true;
}

// --- Finishing

void CVSyncModule::finalize()
{
    if (!m_delegate->pspVolumeIsPresent())
        return;
    const QString path = StickFiles::syncIndex(pspVolume(), m_saveName);
    if (const FileResult<> written = PropertyList::writeAtomically(m_syncIndex, path); !written)
        qCWarning(lcSync).noquote()
            << "Can't write the index" << path << ":" << written.error().text;
}
