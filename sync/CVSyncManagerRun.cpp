// The manager's side of a run: its start and end, its flags, and what it tells.

#include "sync/CVSyncManager.h"

#include "util/Settings.h"

#include <algorithm>
#include <utility>

void CVSyncManager::sync()
{
    if (!canSync())
        return;
    m_forItself.forget();
    userHasLooked();
    if (!isHeldBack(HoldBack::of(pspVolume())))
        start();
}

void CVSyncManager::syncByItself()
{
    if (canSync() && !isHeldBack(HoldBack::of(pspVolume())))
        m_forItself.request(pspVolume());
}

void CVSyncManager::startPlanned()
{
    const auto plan = m_forItself.plan();
    m_forItself.forget();
    if (canSync() && plan->volume == pspVolume() && !isHeldBack(HoldBack::ofAutomatic(*plan)))
        start();
}

bool CVSyncManager::isHeldBack(const std::optional<HoldBack> &why)
{
    if (!why || (!why->cause.isEmpty() && why->cause == m_lookedAt))
        return false;
    m_heldBackFor = why->cause;
    tell([&why](CVSyncManagerDelegate &delegate) { delegate.syncHeldBack(*why); });
    return true;
}

void CVSyncManager::start()
{
    {
        const std::scoped_lock lock(m_runMutex);
        if (m_isSyncing || m_isClosed || m_pspIsUnmounting)
            return;
        m_isSyncing = true;
        m_isIndeterminate = true;
    }
    // Told here, so that no cancel can be told before it, and learnt here: by the time that the
    // worker runs, the stick's place may hold another.
    m_delegate->syncWillStart();
    QString volume;
    std::optional<VolumeIdentity> identity;
    {
        const std::scoped_lock lock(m_volumeMutex);
        volume = m_runVolume = m_pspVolume;
        identity = m_identity;
    }
    if (Workers::start([this, volume, identity] { _sync(volume, identity); }))
        return;
    m_shouldCancelSync = true; // ends like one that was cancelled at once
    finishRun({});
}

void CVSyncManager::close()
{
    m_forItself.forget();
    const std::scoped_lock lock(m_runMutex);
    m_isClosed = true;
}

void CVSyncManager::setRunVolume(const QString &volume)
{
    const std::scoped_lock lock(m_volumeMutex);
    m_runVolume = volume;
}

void CVSyncManager::setPlan(std::shared_ptr<const SyncPlan> plan)
{
    const std::scoped_lock lock(m_volumeMutex);
    m_runPlan = std::move(plan);
}

void CVSyncManager::reportProgress(const RunReport &report)
{
    tell([&report](CVSyncManagerDelegate &delegate) { delegate.syncDidProgress(report); });
}

std::shared_ptr<const SyncPlan> CVSyncManager::runPlan() const
{
    const std::scoped_lock lock(m_volumeMutex);
    return m_runPlan;
}

bool CVSyncManager::canSync()
{
    return pspIsMounted() && !m_isSyncing && !m_pspIsUnmounting;
}

bool CVSyncManager::canCancelSync() const
{
    return m_isSyncing && !m_shouldCancelSync;
}

void CVSyncManager::cancelSync()
{
    {
        const std::scoped_lock lock(m_runMutex);
        if (!canCancelSync())
            return;
        m_isIndeterminate = true;
        m_shouldCancelSync = true;
    }
    tell([](CVSyncManagerDelegate &delegate) { delegate.syncWillCancel(); });
}

void CVSyncManager::_sync(const QString &volume, std::optional<VolumeIdentity> identity)
{
    finishRun(SyncRun(*this, {m_catalogue, m_services.clock, m_services.resourceFolder},
                      StickEditor(volume, identity))
                  .run());
}

void CVSyncManager::finishRun(RunReport report)
{
    setRunVolume({});
    setPlan(nullptr);
    report.isComplete = endRun();
    if (report.isComplete)
        Settings::lastSync.set(m_services.clock.now());
    tell([&report](CVSyncManagerDelegate &delegate) { delegate.syncDidFinish(report); });
}

// Ends the run and takes back a cancel in one step: a cancel that comes later finds no run, and
// can't hit the next one.
bool CVSyncManager::endRun()
{
    const std::scoped_lock lock(m_runMutex);
    m_isSyncing = false;
    m_isIndeterminate = false;
    return !m_shouldCancelSync.exchange(false);
}

void CVSyncManager::eject()
{
    m_forItself.forget();
    {
        const std::scoped_lock lock(m_runMutex);
        if (m_isSyncing || m_isClosed || m_pspIsUnmounting)
            return;
        beginEject();
    }
    tell([](CVSyncManagerDelegate &delegate) { delegate.pspWillUnmount(); });
    const bool isStarted = Workers::start([this, volume = pspVolume()] { unmount(volume); });
    if (!isStarted)
        endEject(FailedEject{QStringLiteral("there is no thread for it"), {}});
}

void CVSyncManager::ejectVolume(const QString &volume)
{
    performOnMainThread(
        this, [this] { m_forItself.forget(); }, CallMode::Wait);
    beginEject();
    tell([](CVSyncManagerDelegate &delegate) { delegate.pspWillUnmount(); });
    unmount(volume);
}

// Who holds the volume is looked up on this thread: there may be many processes.
void CVSyncManager::unmount(const QString &volume)
{
    const Ejection ejection = m_services.volumes.unmountAndEject(volume);
    if (!ejection.isDone) {
        endEject(FailedEject{ejection.reason, volumeHolders(volume)});
        return;
    }
    endEject(std::nullopt);
    // After the scan that the volume's going has queued.
    performOnMainThread(
        this, [this] { Q_EMIT ejected(); }, CallMode::DontWait);
}

void CVSyncManager::beginEject()
{
    m_isIndeterminate = true;
    m_pspIsUnmounting = true;
}

void CVSyncManager::endEject(const std::optional<FailedEject> &failed)
{
    m_isIndeterminate = false;
    m_pspIsUnmounting = false;
    if (failed)
        tell([&failed](CVSyncManagerDelegate &delegate) { delegate.pspUnmountFailed(*failed); });
}

void CVSyncManager::tell(const std::function<void(CVSyncManagerDelegate &)> &callback)
{
    performOnMainThread(
        this, [this, &callback] { callback(*m_delegate); }, CallMode::Wait);
}

void CVSyncManager::setSyncBytes(quint64 total, quint64 copied)
{
    m_syncBytesTotal = total;
    m_syncBytes = copied;
}

quint64 CVSyncManager::syncBytesLeft() const
{
    return m_syncBytesTotal - std::min<quint64>(m_syncBytes, m_syncBytesTotal);
}

void CVSyncManager::syncModuleIsGathering(const QString &progress)
{
    tell([&progress](CVSyncManagerDelegate &delegate) { delegate.syncIsPreparing(progress); });
}

void CVSyncManager::syncModuleWillProcessItem(const CVSyncItem &item)
{
    tell([&item](CVSyncManagerDelegate &delegate) { delegate.syncWillProcessItem(item); });
}

void CVSyncManager::syncModuleDidCopyBytes(quint64 count)
{
    m_syncBytes += count;
    tell([count](CVSyncManagerDelegate &delegate) { delegate.syncDidCopyBytes(count); });
    if (m_syncBytes == m_syncBytesTotal) {
        m_isIndeterminate = true;
        tell([](CVSyncManagerDelegate &delegate) { delegate.syncDidCopyLastBytes(); });
    }
}

void CVSyncManager::syncModuleDidProcessItem(const CVSyncItem &item)
{
    tell([&item](CVSyncManagerDelegate &delegate) { delegate.syncDidProcessItem(item); });
}

void CVSyncManager::syncModuleError(const FileError &error)
{
    tell([&error](CVSyncManagerDelegate &delegate) { delegate.syncError(errorInfo(error)); });
}
