// The sync run: everything here but sync(), cancelSync() and eject() happens on the run's own
// thread.

#include "sync/CVSyncManager.h"

#include "platform/files/FileManager.h"
#include "platform/lists/NumberArchive.h"
#include "sync/DeviceIcon.h"
#include "sync/Log.h"
#include "sync/StickFiles.h"
#include "sync/SyncRun.h"
#include "util/Settings.h"

#include <algorithm>

namespace {

constexpr int startPauses = 5;
constexpr auto startPause = std::chrono::seconds(1);

} // namespace

void CVSyncManager::sync()
{
    if (!pspIsMounted())
        return;
    {
        const std::scoped_lock lock(m_runMutex);
        if (m_isSyncing || m_isClosed)
            return;
        m_isSyncing = true;
    }
    if (Workers::start([this] { _sync(); }))
        return;
    m_shouldCancelSync = true; // ends like one that was cancelled at once
    finishRun();
}

void CVSyncManager::close()
{
    const std::scoped_lock lock(m_runMutex);
    m_isClosed = true;
}

void CVSyncManager::setRunVolume(const QString &volume)
{
    const std::scoped_lock lock(m_volumeMutex);
    m_runVolume = volume;
}

bool CVSyncManager::canSync()
{
    return pspIsMounted() && !m_isSyncing;
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

void CVSyncManager::_sync()
{
    SyncRun run(*this, pspVolume());
    setRunVolume(run.pspVolume());
    startRun(run);
    pauseBeforeRun();
    createModules(run);
    prepareModules(run);
    cleanUpModules(run);
    testFreeSpace(run);
    syncModules(run);
    finalizeModules(run);
    recordSizes(run);
    ejectAfterRun(run);
    finishRun();
}

void CVSyncManager::startRun(SyncRun &run)
{
    m_isIndeterminate = true;
    performOnMainThread(
        this, [this] { m_delegate->syncWillStart(); }, CallMode::DontWait);
    if (!run.pspVolumeIsPresent())
        return;
    const QString folder = StickFiles::caravelFolder(run.pspVolume());
    if (!files().exists(folder) && !files().createFolder(folder))
        qCWarning(lcSync).noquote() << "Can't create the folder" << folder;
    run.learnHowNamesCompare();
    setIcon(run);
    files().flush(run.pspVolume());
}

void CVSyncManager::pauseBeforeRun()
{
    for (int i = 0; i < startPauses && !m_shouldCancelSync; ++i)
        m_services.clock.sleep(startPause);
}

void CVSyncManager::createModules(SyncRun &run) const
{
    for (const ModuleKind &kind : m_catalogue) {
        if (!kind.takesPart || kind.takesPart())
            run.modules.push_back(kind.make(&run));
    }
}

void CVSyncManager::prepareModules(SyncRun &run)
{
    m_syncBytesTotal = 0;
    m_syncBytes = 0;
    for (const auto &module : run.modules) {
        module->prepare(true);
        m_syncBytesTotal += module->syncQueueSize();
        run.estimateTotal += module->syncEstimateSize();
    }
    m_syncBytesEstimate = run.estimateTotal;
}

void CVSyncManager::cleanUpModules(SyncRun &run)
{
    tell([](CVSyncManagerDelegate &delegate) { delegate.syncWillCleanUp(); });
    for (const auto &module : run.modules) {
        if (m_shouldCancelSync)
            break;
        module->cleanUp();
    }
    // So that the space that was freed counts in the test that follows.
    if (run.pspVolumeIsPresent())
        files().flush(run.pspVolume());
}

void CVSyncManager::testFreeSpace(SyncRun &run)
{
    if (m_shouldCancelSync)
        return;
    const auto space = files().volumeSpace(run.pspVolume());
    const quint64 needed = m_syncBytesTotal;
    if (needed < (space ? space->free : 0))
        return;
    tell([needed](CVSyncManagerDelegate &delegate) { delegate.syncNotEnoughFreeSpace(needed); });
    cancelSync();
}

void CVSyncManager::syncModules(SyncRun &run)
{
    m_isIndeterminate = false;
    tell([](CVSyncManagerDelegate &delegate) { delegate.syncDidStart(); });
    for (const auto &module : run.modules) {
        if (m_shouldCancelSync)
            break;
        tell([name = module->moduleName()](CVSyncManagerDelegate &delegate) {
            delegate.syncWillProcessModule(name);
        });
        module->sync();
    }
}

void CVSyncManager::addCopiedBytes(quint64 count)
{
    m_syncBytes += count;
    tell([count](CVSyncManagerDelegate &delegate) { delegate.syncDidCopyBytes(count); });
    if (m_syncBytes == m_syncBytesTotal) {
        m_isIndeterminate = true;
        tell([](CVSyncManagerDelegate &delegate) { delegate.syncDidCopyLastBytes(); });
    }
}

void CVSyncManager::finalizeModules(SyncRun &run)
{
    m_isIndeterminate = true;
    tell([](CVSyncManagerDelegate &delegate) { delegate.finalizeDidStart(); });
    for (const auto &module : run.modules)
        module->finalize();
    m_isIndeterminate = false;
}

void CVSyncManager::recordSizes(SyncRun &run)
{
    quint64 size = run.estimateTotal;
    if (m_shouldCancelSync) {
        const quint64 notCopied =
            m_syncBytesTotal - std::min<quint64>(m_syncBytes, m_syncBytesTotal);
        size -= std::min(notCopied, size);
    }
    Settings::lastSyncSize.set(size);
    // Of a stick that is gone the last known free space is still the best guess.
    if (run.pspVolumeIsPresent()) {
        if (const auto space = files().volumeSpace(run.pspVolume()))
            Settings::lastFreeSpace.set(space->free);
        const QString path = StickFiles::lastSyncSize(run.pspVolume());
        if (const auto written = files().writeAtomically(path, NumberArchive::encode(size));
            !written)
            qCWarning(lcSync).noquote() << "Can't write" << path << ":" << written.error().text;
    }
    m_syncBytesTotal = 1;
    m_syncBytes = 0;
}

void CVSyncManager::ejectAfterRun(SyncRun &run)
{
    if (!m_shouldCancelSync && Settings::unmountAfterSync() && m_delegate->shouldUnmountPSP())
        eject(run.pspVolume());
}

void CVSyncManager::finishRun()
{
    setRunVolume({});
    const bool completed = endRun();
    if (completed)
        Settings::lastSync.set(m_services.clock.now());
    tell([completed](CVSyncManagerDelegate &delegate) { delegate.syncDidFinish(completed); });
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
    eject(pspVolume());
}

void CVSyncManager::eject(const QString &volume)
{
    m_isIndeterminate = true;
    m_pspIsUnmounting = true;
    tell([](CVSyncManagerDelegate &delegate) { delegate.pspWillUnmount(); });
    const bool ejected = m_services.volumes.unmountAndEject(volume);
    m_pspIsUnmounting = false;
    m_isIndeterminate = false;
    if (!ejected)
        tell([](CVSyncManagerDelegate &delegate) { delegate.pspUnmountFailed(); });
}

void CVSyncManager::setIcon(SyncRun &run)
{
    if (!pspIsMounted() || !run.pspVolumeIsPresent())
        return;
    if (Settings::useDetailedLogging())
        qCInfo(lcSync) << "Setting PSP device icon...";
    DeviceIcon::set(run.pspVolume(), m_services.resourceFolder, m_services.clock.now().date());
}
