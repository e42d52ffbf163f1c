// Nothing is copied unless all of it fits.

#include "sync/SyncRun.h"

void SyncRun::testFreeSpace()
{
    const auto space = files().volumeSpace(m_stick.volume());
    const quint64 free = space ? space->free : 0;
    if (m_host.shouldCancelSync() || m_plan->fitsIn(free))
        return;
    m_report.isTooLarge = true;
    const quint64 bytes = m_plan->syncBytesTotal();
    const quint64 needed = bytes >= free ? bytes : m_plan->clusterBytes();
    m_host.tell(
        [needed](CVSyncManagerDelegate &delegate) { delegate.syncNotEnoughFreeSpace(needed); });
    m_host.cancelSync();
}
