// What is not wanted any more goes, and folders that this leaves empty.

#include "sync/Log.h"
#include "sync/SyncRun.h"
#include "util/Settings.h"

#include <algorithm>

void SyncRun::cleanUp()
{
    m_host.tell([](CVSyncManagerDelegate &delegate) { delegate.syncWillCleanUp(); });
    for (size_t i = 0; i < m_plan->kinds.size() && !m_host.shouldCancelSync(); ++i)
        cleanUp(m_plan->kinds[i], m_modules[i]->placer());
    m_host.reportProgress(m_report);
    // So that the space that was freed counts in the test that follows.
    if (m_stick.isPresent())
        flush();
}

void SyncRun::cleanUp(const KindPlan &kind, ItemPlacer *placer)
{
    for (const PlannedRemoval &removal : kind.removals) {
        removePlanned(removal);
        reportNowAndThen();
    }
    if (placer)
        placer->prune();
}

void SyncRun::removePlanned(const PlannedRemoval &removal)
{
    const auto liesInIt = [&removal](const QString &path) {
        return path.size() > removal.path.size() && path.startsWith(removal.path) &&
               path[removal.path.size()] == u'/';
    };
    if (!m_stick.isPresent())
        return;
    if (removal.isEmptiedFolder && std::ranges::any_of(m_notRemoved, liesInIt))
        return;
    if (Settings::useDetailedLogging()) {
        qCInfo(lcSync).noquote().nospace()
            << "Removing file " << removal.path << "... " << int(removal.isEmptiedFolder) << ' '
            << int(removal.isUnwantedFile);
    }
    if (!mayGo(removal.path, removal.isStranger)) {
        m_notRemoved.append(removal.path);
        return;
    }
    const bool removed = removal.isEmptiedFolder ? m_stick.removeEmptyFolder(removal.path, this)
                                                 : m_stick.remove(removal.path, this);
    if (!removed)
        m_notRemoved.append(removal.path);
    else if (!removal.isEmptiedFolder)
        ++m_report.removed;
}
