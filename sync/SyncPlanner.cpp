#include "sync/SyncPlanner.h"

#include "platform/lists/PropertyList.h"
#include "sync/CVSyncModule.h"
#include "sync/ModuleSelection.h"
#include "sync/StickFiles.h"
#include "util/FileManagerTools.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

#include <QHash>

#include <utility>

namespace {

// How many of the files that an interrupted run placed last are compared by their contents.
constexpr int mayBeDamaged = 16;

MeasuredItem measured(CVSyncItem item)
{
    const FileStatus own = files().linkStatus(item.source);
    // A link on the computer is followed: what it leads to is what is copied, and compared.
    const FileStatus target =
        own.kind == FileStatus::Kind::Link ? files().status(item.source) : own;
    if (target.exists())
        item.size = target.size;
    return {std::move(item), target.exists(), target.isFolder()};
}

std::vector<CVSyncItem> wantedItems(CVSyncModule &module)
{
    return Settings::takesPart(module.moduleSaveName()) ? module.itemsToSync()
                                                        : std::vector<CVSyncItem>();
}

std::optional<QSet<QString>> readLastIndex(const QString &path, const StickNames &names)
{
    if (!files().exists(path))
        return std::nullopt;
    // An index that can't be read is an empty one: nothing in it is known to be ours.
    QSet<QString> keys;
    for (const QString &entry : PropertyList::readStringArray(path).valueOr({}))
        keys.insert(names.key(entry));
    return keys;
}

/// What the listings tell of the stick, by key.
class StickListing
{
public:
    StickListing(const std::vector<StickFolder> &folders, QString volume, const StickNames &names)
        : m_folders(folders)
        , m_volume(std::move(volume))
        , m_names(names)
    {
        size_t count = 0;
        for (const StickFolder &folder : folders)
            count += folder.entries.size();
        m_entries.reserve(static_cast<qsizetype>(count));
        for (const StickFolder &folder : folders) {
            for (const FolderEntry &entry : folder.entries) {
                const QString path = folder.path + u'/' + entry.path;
                m_entries.insert(names.key(path), &entry);
                if (names.confusesPaths())
                    m_spellings.insert(names.key(path), path);
            }
        }
    }

    /// Links not followed.
    FileStatus statusOf(const QString &path) const
    {
        if (const auto entry = m_entries.constFind(m_names.key(path)); entry != m_entries.cend())
            return statusFrom(**entry);
        return isListed(path) ? FileStatus() : files().linkStatus(path);
    }

    /// The path as the stick has it, or its folders as they were first asked for: what the stick
    /// takes for one is not always found under its other spelling.
    QString spelled(const QString &path)
    {
        if (!m_names.confusesPaths() || !StickFiles::isOnVolume(path, m_volume))
            return path;
        const QString whole =
            spelledFolder(PathComponents::folderOf(path)) + u'/' + PathComponents::lastOf(path);
        return m_spellings.value(m_names.key(whole), whole);
    }

    /// The folder, or the first one on the way to it, that is a link; empty: none.
    QString linkAtOrAbove(const QString &folder)
    {
        if (!StickFiles::isOnVolume(folder, m_volume) || folder.size() == m_volume.size())
            return {};
        if (const auto known = m_links.constFind(folder); known != m_links.cend())
            return *known;
        const bool isLink = statusOf(folder).kind == FileStatus::Kind::Link;
        const QString link = isLink ? folder : linkAtOrAbove(PathComponents::folderOf(folder));
        m_links.insert(folder, link);
        return link;
    }

private:
    static FileStatus statusFrom(const FolderEntry &entry)
    {
        using Kind = FileStatus::Kind;
        return {entry.isFolder ? Kind::Folder : entry.isLink ? Kind::Link : Kind::File, entry.size};
    }

    QString spelledFolder(const QString &folder)
    {
        if (folder.size() <= m_volume.size())
            return folder;
        if (const auto known = m_spelledFolders.constFind(folder); known != m_spelledFolders.cend())
            return *known;
        const QString whole =
            spelledFolder(PathComponents::folderOf(folder)) + u'/' + PathComponents::lastOf(folder);
        auto &spelling = m_spellings[m_names.key(whole)];
        if (spelling.isEmpty())
            spelling = whole;
        return m_spelledFolders[folder] = spelling;
    }

    bool isListed(const QString &path) const
    {
        for (const StickFolder &folder : m_folders) {
            if (path.size() > folder.path.size() && path.startsWith(folder.path) &&
                path[folder.path.size()] == u'/')
                return true;
        }
        return false;
    }

    const std::vector<StickFolder> &m_folders;
    const QString m_volume;
    const StickNames &m_names;
    QHash<QString, const FolderEntry *> m_entries;
    QHash<QString, QString> m_links;
    QHash<QString, QString> m_spellings;      // by key
    QHash<QString, QString> m_spelledFolders; // by the path as it is wanted
};

} // namespace

SyncPlanner::SyncPlanner(QString volume, ShouldStop shouldStop)
    : m_volume(std::move(volume))
    , m_shouldStop(std::move(shouldStop))
    , m_names(StickNames::of(m_volume))
    , m_space(files().volumeSpace(m_volume).value_or(VolumeSpace()))
{
}

SyncPlan SyncPlanner::plan(const ModuleList &modules)
{
    SyncPlan plan{.volume = m_volume, .space = m_space};
    const QString unfinished = StickFiles::unfinished(m_volume);
    if (files().linkStatus(unfinished).exists())
        plan.unfinished = PropertyList::readStringArray(unfinished).valueOr({});
    std::vector<KindInput> inputs;
    for (const auto &module : modules) {
        module->setShouldStop(m_shouldStop);
        inputs.push_back(look(*module, plan.unfinished));
        if (m_shouldStop())
            return {.isComplete = false};
    }
    compareLastPlaced(inputs, plan.unfinished);
    if (m_shouldStop())
        return {.isComplete = false};
    const QVariantMap last =
        PropertyList::readDictionary(StickFiles::lastSelection(m_volume)).valueOr({});
    for (size_t i = 0; i < inputs.size(); ++i) {
        const qsizetype lastPlaced = inputs[i].lastIndex ? inputs[i].lastIndex->size() : 0;
        KindPlan &kind = plan.kinds.emplace_back(Compare::plan(std::move(inputs[i]), m_names));
        kind.lastPlaced = lastPlaced;
        kind.lastBasis = last.value(kind.saveName).toMap();
        kind.basis = modules[i]->basis();
        kind.unreadableLibrary = modules[i]->unreadableLibrary();
        kind.hasUnreadableProfile = ModuleSelection::hasUnreadableProfile(kind.saveName, m_volume);
    }
    return plan;
}

quint64 SyncPlanner::estimate(CVSyncModule &module)
{
    quint64 bytes = 0;
    for (CVSyncItem &item : wantedItems(module)) {
        const MeasuredItem wanted = measured(std::move(item));
        if (wanted.exists)
            bytes += wanted.item.size;
    }
    return bytes;
}

KindInput SyncPlanner::look(CVSyncModule &module, const QStringList &unfinished)
{
    KindInput input;
    input.volume = m_volume;
    input.saveName = module.moduleSaveName();
    input.moduleName = module.moduleName();
    input.shouldClearUnsyncedFiles = module.shouldClearUnsyncedFiles();
    input.takesStickSpace = !module.placer();
    input.folders = listFolders(module);
    input.items = measureItems(module, input.folders);
    input.lastIndex =
        readLastIndex(StickFiles::syncIndex(m_volume, module.moduleSaveName()), m_names);
    for (const QString &path : unfinished)
        input.unfinished.insert(m_names.key(path));
    input.shownLevels = module.shownLevels();
    input.root = module.rootSyncFolder();
    input.clusterSize = m_space.clusterSize;
    return input;
}

// Each file is on the device before the next is begun: after an interruption only the last ones can
// have the right size and other contents.
void SyncPlanner::compareLastPlaced(std::vector<KindInput> &inputs,
                                    const QStringList &unfinished) const
{
    if (unfinished.isEmpty())
        return;
    QHash<QString, MeasuredItem *> placed;
    for (KindInput &input : inputs) {
        for (MeasuredItem &item : input.items) {
            if (item.exists && !item.isFolder && item.destination.kind == FileStatus::Kind::File &&
                item.destination.size == item.item.size)
                placed.insert(
                    m_names.key(StickFiles::relativeToVolume(item.item.destination, m_volume)),
                    &item);
        }
    }
    int left = mayBeDamaged;
    for (qsizetype i = unfinished.size(); i-- > 0 && left > 0 && !m_shouldStop();) {
        MeasuredItem *const item = placed.take(m_names.key(unfinished[i]));
        if (!item)
            continue;
        --left;
        const QString source = FileManagerTools::pathByResolvingAliasesInPath(item->item.source);
        item->isDamaged = !files().contentsEqual(source, item->item.destination, m_shouldStop);
    }
}

std::vector<StickFolder> SyncPlanner::listFolders(const CVSyncModule &module)
{
    std::vector<StickFolder> folders;
    const std::vector<StickFolder> none;
    StickListing unlisted(none, m_volume, m_names);
    for (const FolderToCleanUp &wanted : module.foldersToCleanUp()) {
        StickFolder folder{wanted.path, wanted.ownOnly, {}, {}};
        // Nothing behind a link is looked at, and only the stick is cleaned up.
        if (StickFiles::isOnVolume(folder.path, m_volume)) {
            folder.link = unlisted.linkAtOrAbove(folder.path);
            if (folder.link.isEmpty())
                folder.entries = files().subpathsWithSizes(folder.path);
            folders.push_back(std::move(folder));
        }
    }
    return folders;
}

std::vector<MeasuredItem> SyncPlanner::measureItems(CVSyncModule &module,
                                                    const std::vector<StickFolder> &folders)
{
    std::vector<CVSyncItem> wanted = wantedItems(module);
    for (CVSyncItem &item : wanted)
        item.destination = m_names.destination(item.destination);
    wanted = Compare::fixDuplicateDestinations(std::move(wanted), m_names);
    StickListing listing(folders, m_volume, m_names);
    for (CVSyncItem &item : wanted)
        item.destination = listing.spelled(item.destination);
    std::vector<MeasuredItem> items;
    items.reserve(wanted.size());
    for (CVSyncItem &item : wanted) {
        if (m_shouldStop())
            break;
        MeasuredItem &last = items.emplace_back(measured(std::move(item)));
        last.link = listing.linkAtOrAbove(PathComponents::folderOf(last.item.destination));
        if (!last.exists || !last.link.isEmpty())
            continue;
        last.destination = listing.statusOf(last.item.destination);
        last.isEqualTree =
            last.isFolder && last.destination.isFolder() &&
            files().contentsEqual(last.item.destination, last.item.source, m_shouldStop);
    }
    return items;
}
