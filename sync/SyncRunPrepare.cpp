// Everything is looked at and planned; then what will be replaced goes, so that the clean-up and
// the test of the free space count without it.

#include "platform/lists/PropertyList.h"
#include "sync/Log.h"
#include "sync/StickFiles.h"
#include "sync/SyncPlanner.h"
#include "sync/SyncRun.h"
#include "util/FileManagerTools.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

namespace {

void logDecision(const PlannedItem &planned)
{
    using Action = PlannedItem::Action;
    if (planned.reason == PlannedItem::Reason::Missing)
        qCInfo(lcSync).noquote() << "Dequeueing" << planned.item.source << "(file does not exist)";
    else if (planned.action == Action::InPlace)
        qCInfo(lcSync).noquote() << "Dequeueing" << planned.item.source << "(file already synced)";
    else if (planned.action == Action::Replace)
        qCInfo(lcSync).noquote() << "Replacing" << planned.item.destination << "(file changed)";
}

// There is something, and not behind a link. Of a copy's destination: the stick's listing could not
// be read, and what lies there is none of ours.
bool liesOn(const QString &volume, const QString &path)
{
    using FileManagerTools::pathByResolvingAliasesInPath;
    return files().linkStatus(path).exists() &&
           pathByResolvingAliasesInPath(PathComponents::folderOf(path)) ==
               pathByResolvingAliasesInPath(volume) +
                   PathComponents::folderOf(path).mid(volume.size());
}

} // namespace

void SyncRun::prepare()
{
    makePlan();
    for (const KindPlan &kind : m_plan->kinds) {
        for (const FileError &error : kind.errors)
            m_host.syncModuleError(error);
        m_report.hiddenFiles += kind.hiddenFiles;
    }
    // Before the mark, which makes ours whatever lies where something is to be placed.
    for (const KindPlan &kind : m_plan->kinds)
        keepReplaced(kind);
    if (!m_host.shouldCancelSync())
        markUnfinished();
    // Until here nothing of the media was touched, and nothing will be after a cancel.
    if (m_host.shouldCancelSync())
        m_plan = std::make_shared<const SyncPlan>(SyncPlan{.isComplete = false});
    for (const KindPlan &kind : m_plan->kinds) {
        m_indexes.insert(kind.saveName, kind.inPlace(m_stick.volume()));
        removeReplaced(kind);
    }
    m_host.reportProgress(m_report);
    m_host.setSyncBytes(m_plan->syncBytesTotal(), 0);
    m_host.setSyncBytesEstimate(m_plan->syncBytesEstimate());
}

void SyncRun::makePlan()
{
    m_host.setSyncBytes(0, 0);
    m_modules = modulesTakingPart(m_services.catalogue, m_stick.volume());
    for (const auto &module : m_modules)
        module->setProgress([this](const QString &text) { m_host.syncModuleIsGathering(text); });
    m_plan = std::make_shared<const SyncPlan>(SyncPlanner(m_stick.volume(), [this] {
                                                  return m_host.shouldCancelSync();
                                              }).plan(m_modules));
    m_host.setPlan(m_plan);
}

void SyncRun::keepReplaced(const KindPlan &kind)
{
    for (const PlannedItem &planned : kind.items) {
        if (planned.action == PlannedItem::Action::Replace &&
            !mayGo(planned.item.destination, planned.isStranger))
            m_notKept.insert(planned.item.destination);
    }
}

void SyncRun::markUnfinished()
{
    // What an earlier run was to place stays ours until an index lists it.
    QStringList paths = m_plan->unfinished;
    const qsizetype before = paths.size();
    for (const KindPlan &kind : m_plan->kinds) {
        for (const PlannedItem &planned : kind.items) {
            const QString &path = planned.item.destination;
            if (!planned.isCopied() || m_notKept.contains(path) ||
                !StickFiles::isOnVolume(path, m_stick.volume()))
                continue;
            if (planned.action == PlannedItem::Action::Copy && liesOn(m_stick.volume(), path))
                m_inTheWay.insert(path);
            else
                paths.append(StickFiles::relativeToVolume(path, m_stick.volume()));
        }
    }
    if (paths.size() > before)
        write(StickFiles::unfinished(m_stick.volume()), PropertyList::toXml(paths));
}

void SyncRun::removeReplaced(const KindPlan &kind)
{
    const bool logsInDetail = Settings::useDetailedLogging();
    for (const PlannedItem &planned : kind.items) {
        if (logsInDetail)
            logDecision(planned);
        const QString path = planned.item.destination;
        if (planned.action == PlannedItem::Action::Replace && !m_notKept.contains(path) &&
            !m_stick.remove(path, this))
            m_notRemoved.append(path);
    }
}

// What no sync placed is the user's own: a copy of it is on the computer before it goes.
bool SyncRun::mayGo(const QString &path, bool isStranger)
{
    if (!isStranger || PathComponents::lastOf(path).startsWith(u"._") ||
        !Settings::keepRemovedFiles() || !m_stick.isPresent() || !files().linkStatus(path).exists())
        return true;
    if (m_host.shouldCancelSync())
        return false;
    m_lastError = {};
    const auto copy = m_kept.keep(path);
    if (copy)
        m_report.kept.push_back({path, *copy});
    else if (!m_host.shouldCancelSync())
        leaveOut(CVSyncItem({}, path, {}), PlannedItem::Reason::NotKept);
    m_report.keptFolder = m_kept.folder();
    return copy.has_value();
}
