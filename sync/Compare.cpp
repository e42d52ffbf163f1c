#include "sync/Compare.h"

#include "sync/StickFiles.h"
#include "util/PathComponents.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace {

using Action = PlannedItem::Action;
using Reason = PlannedItem::Reason;

/// Works one kind's plan out of its input.
class Comparison
{
public:
    Comparison(KindInput input, const StickNames &names)
        : m_input(std::move(input))
        , m_names(names)
    {
    }

    KindPlan plan()
    {
        m_plan.saveName = m_input.saveName;
        m_plan.moduleName = m_input.moduleName;
        m_plan.items.reserve(m_input.items.size());
        m_wanted.reserve(static_cast<qsizetype>(m_input.items.size()));
        for (MeasuredItem &item : m_input.items)
            add(item);
        for (const StickFolder &folder : m_input.folders)
            cleanUp(folder);
        return std::move(m_plan);
    }

private:
    void add(MeasuredItem &measured)
    {
        m_wanted.insert(m_names.key(measured.item.destination));
        PlannedItem planned{.item = std::move(measured.item)};
        if (measured.exists)
            m_plan.syncEstimateSize += planned.item.size;
        decide(planned, measured);
        // What never goes along counts among the bytes all the same, as the selection has it.
        if (planned.action == Action::Copy || planned.action == Action::Replace)
            m_plan.syncQueueSize += planned.item.size;
        if (planned.isCopied() && m_input.takesStickSpace)
            planned.clusterBytes = inClusters(planned.item.size);
        if (planned.action == Action::Replace) {
            m_replaced.insert(m_names.key(planned.item.destination));
            planned.isStranger = isStranger(planned.item.destination);
            planned.freedBytes = inClusters(measured.destination.size);
        }
        if (planned.isCopied() || planned.action == Action::InPlace)
            m_plan.hiddenFiles += isHidden(planned.item.destination);
        m_plan.items.push_back(std::move(planned));
    }

    void decide(PlannedItem &planned, const MeasuredItem &measured)
    {
        const auto leaveOut = [&planned](Reason reason) {
            planned.action = Action::LeaveOut;
            planned.reason = reason;
        };
        if (!measured.exists)
            return leaveOut(Reason::Missing);
        if (!measured.link.isEmpty()) {
            tellOfLink(measured.link);
            return leaveOut(Reason::Link);
        }
        if (m_input.takesStickSpace && planned.item.size > m_names.largestFile())
            return leaveOut(Reason::TooLarge);
        if (measured.destination.exists() && !goesBeforehand(planned.item.destination))
            planned.action =
                isInPlace(measured, planned.item.size) ? Action::InPlace : Action::Replace;
        if (planned.action != Action::InPlace &&
            PathComponents::lastOf(planned.item.source).startsWith(u"._"))
            planned.reason = Reason::Companion;
    }

    static bool isInPlace(const MeasuredItem &measured, quint64 size)
    {
        if (measured.destination.isFolder())
            return measured.isFolder && measured.isEqualTree;
        return !measured.isFolder && !measured.isDamaged && measured.destination.size == size;
    }

    bool isHidden(const QString &destination) const
    {
        return m_input.shownLevels &&
               QStringView(destination).mid(m_input.root.size() + 1).count(u'/') >
                   *m_input.shownLevels;
    }

    /// Whether an earlier item replaces what lies there, or a folder that it lies in.
    bool goesBeforehand(QString path) const
    {
        while (!m_replaced.isEmpty() && path.size() > m_input.volume.size()) {
            if (m_replaced.contains(m_names.key(path)))
                return true;
            path = PathComponents::folderOf(path);
        }
        return false;
    }

    void tellOfLink(const QString &link)
    {
        if (std::exchange(m_toldOf[link], true))
            return;
        m_plan.errors.push_back(FileError::of(FileError::Operation::FollowLink, link, 0));
    }

    quint64 inClusters(quint64 bytes) const
    {
        const quint64 size = m_input.clusterSize;
        return size == 0 ? bytes : (bytes + size - 1) / size * size;
    }

    QString indexKey(const QString &path) const
    {
        return m_names.key(StickFiles::relativeToVolume(path, m_input.volume));
    }

    bool isOwn(const QString &path) const
    {
        const QString key = indexKey(path);
        return (m_input.lastIndex && m_input.lastIndex->contains(key)) ||
               m_input.unfinished.contains(key);
    }

    bool isStranger(const QString &path) const { return !isOwn(path); }

    // --- Cleaning up

    /// One walk, from the innermost entries outwards.
    struct Walk
    {
        const StickFolder &folder;
        std::vector<int> childrenLeft = {}; // one per entry; what is no folder has none
        std::vector<bool> isGone = {};      // with what it lies in, replaced before the clean-up
    };

    void cleanUp(const StickFolder &folder)
    {
        if (folder.path == u"/" || folder.path == u"/Volumes" ||
            !StickFiles::isOnVolume(folder.path, m_input.volume))
            return;
        if (!folder.link.isEmpty()) {
            tellOfLink(folder.link);
            return;
        }
        Walk walk{folder};
        countChildren(walk);
        for (size_t i = folder.entries.size(); i-- > 0;) {
            if (walk.isGone[i])
                continue;
            const QString path = folder.path + u'/' + folder.entries[i].path;
            if (shouldRemove(walk, i, path))
                remove(walk, i, path);
        }
    }

    void countChildren(Walk &walk) const
    {
        const auto &entries = walk.folder.entries;
        walk.childrenLeft.resize(entries.size());
        walk.isGone.resize(entries.size());
        for (size_t i = 0; i < entries.size(); ++i) {
            const int parent = entries[i].parent;
            walk.isGone[i] =
                (parent >= 0 && walk.isGone[static_cast<size_t>(parent)]) ||
                (!m_replaced.isEmpty() &&
                 m_replaced.contains(m_names.key(walk.folder.path + u'/' + entries[i].path)));
            if (parent >= 0 && !walk.isGone[i])
                ++walk.childrenLeft[static_cast<size_t>(parent)];
        }
    }

    bool isUnwantedFile(const FolderEntry &entry, const QString &path) const
    {
        return !entry.isFolder && m_input.shouldClearUnsyncedFiles &&
               !m_wanted.contains(m_names.key(path));
    }

    bool shouldRemove(const Walk &walk, size_t entry, const QString &path) const
    {
        const FolderEntry &found = walk.folder.entries[entry];
        if (found.path == u".caravel" || found.path.startsWith(u".caravel/"))
            return false;
        if (PathComponents::lastOf(found.path) == u".DS_Store")
            return true;
        if (found.isFolder)
            return walk.childrenLeft[entry] == 0;
        if (!isUnwantedFile(found, path))
            return false;
        // Only where there is no index at all does everything count as ours.
        return !walk.folder.ownOnly || !m_input.lastIndex || isOwn(path);
    }

    void remove(Walk &walk, size_t entry, const QString &path)
    {
        const FolderEntry &found = walk.folder.entries[entry];
        m_plan.removals.push_back(
            {.path = path,
             .isEmptiedFolder = found.isFolder && walk.childrenLeft[entry] == 0,
             .isUnwantedFile = isUnwantedFile(found, path),
             .isStranger = !found.isFolder && PathComponents::lastOf(path) != u".DS_Store" &&
                           isStranger(path),
             .bytes = found.isFolder ? 0 : inClusters(found.size)});
        if (found.parent >= 0)
            --walk.childrenLeft[static_cast<size_t>(found.parent)];
    }

    KindInput m_input;
    const StickNames &m_names;
    KindPlan m_plan;
    QSet<QString> m_wanted;   // keys of every destination: allSyncedFiles
    QSet<QString> m_replaced; // keys of what goes before the clean-up
    QHash<QString, bool> m_toldOf;
};

} // namespace

std::vector<CVSyncItem> Compare::fixDuplicateDestinations(std::vector<CVSyncItem> items,
                                                          const StickNames &names)
{
    // The next number per destination is kept, so that many equal ones stay cheap.
    QHash<QString, int> timesSeen;
    timesSeen.reserve(static_cast<qsizetype>(items.size()));
    QSet<QString> given;
    if (names.confusesPaths()) {
        for (const CVSyncItem &item : items)
            given.insert(names.key(item.destination));
    }
    for (CVSyncItem &item : items) {
        int &times = timesSeen[names.key(item.destination)];
        if (times > 0) {
            QString numbered = PathComponents::numbered(item.destination, times);
            while (names.confusesPaths() && given.contains(names.key(numbered)))
                numbered = PathComponents::numbered(item.destination, ++times);
            item.destination = numbered;
            if (names.confusesPaths())
                given.insert(names.key(numbered));
        }
        ++times;
    }
    return items;
}

KindPlan Compare::plan(KindInput input, const StickNames &names)
{
    return Comparison(std::move(input), names).plan();
}
