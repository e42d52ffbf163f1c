#include "sync/CVSyncManager.h"

#include "sync/SyncPlanner.h"
#include "util/Settings.h"

#include <utility>

namespace {

constexpr int mostEstimates = 2;

} // namespace

void CVSyncManager::refreshSyncBytesEstimate()
{
    {
        const std::scoped_lock lock(m_runMutex);
        m_estimateWaits = m_estimates == mostEstimates;
        if (m_isClosed || m_estimateWaits)
            return;
        const auto work = [this] {
            do
                _refreshSyncBytesEstimate();
            while (!endEstimate());
        };
        if (Workers::start(work, Workers::AtQuit::Leave)) {
            ++m_estimates;
            return;
        }
    }
    // Whoever waits for the new estimate has the last one to go by.
    tell([total = syncBytesEstimate()](CVSyncManagerDelegate &delegate) {
        delegate.newSyncBytesEstimate(total);
    });
}

// False where another one waits, to be made by the same worker.
bool CVSyncManager::endEstimate()
{
    const std::scoped_lock lock(m_runMutex);
    if (std::exchange(m_estimateWaits, false) && !m_isClosed)
        return false;
    --m_estimates;
    return true;
}

void CVSyncManager::_refreshSyncBytesEstimate()
{
    const QString volume = pspVolume();
    m_syncBytesEstimate = 0;
    quint64 total = 0;
    for (const ModuleKind &kind : m_catalogue) {
        if (!kind.countsInEstimate || (kind.takesPart && !kind.takesPart()))
            continue;
        total += SyncPlanner::estimate(*kind.make(volume));
    }
    m_syncBytesEstimate = total;
    tell([total](CVSyncManagerDelegate &delegate) { delegate.newSyncBytesEstimate(total); });
}

quint32 CVSyncManager::syncPercentEstimate()
{
    const quint64 free = pspIsMounted() ? pspFreeSpace().value_or(0) : Settings::lastFreeSpace();
    const double room = static_cast<double>(free) + static_cast<double>(Settings::lastSyncSize());
    if (room <= 0)
        return 0;
    const double percent = static_cast<double>(m_syncBytesEstimate) / room * 100;
    return percent < static_cast<double>(UINT32_MAX) ? static_cast<quint32>(percent) : UINT32_MAX;
}
