// Nothing is copied unless all of it fits.

#include "sync/SyncRun.h"

#include <algorithm>

void SyncRun::testFreeSpace()
{
    quint64 needed = 0;
    if (m_host.shouldCancelSync() || fits(m_plan, needed))
        return;
    m_host.tell(
        [needed](CVSyncManagerDelegate &delegate) { delegate.syncNotEnoughFreeSpace(needed); });
    m_host.cancelSync();
}

// The copies' bytes must leave some, and their clusters must not exceed the free ones.
bool SyncRun::fits(const SyncPlan &plan, quint64 &needed) const
{
    const auto space = files().volumeSpace(m_stick.volume());
    const quint64 free = space ? space->free : 0;
    needed = plan.syncBytesTotal();
    if (needed >= free)
        return false;
    needed = std::max(needed, plan.clusterBytes());
    return needed <= free;
}
