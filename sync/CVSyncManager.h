#pragma once

#include "platform/core/Clock.h"
#include "platform/core/MainThread.h"
#include "platform/volumes/VolumeIdentity.h"
#include "platform/volumes/Volumes.h"
#include "sync/CVSyncManagerDelegate.h"
#include "sync/SyncPreview.h"
#include "sync/SyncRun.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

class DistributedNotificationCenter;

/// What the manager works with; not owned, outliving it and every run.
struct SyncServices
{
    Volumes &volumes;
    DistributedNotificationCenter &notifications;
    Clock &clock;
    QString resourceFolder; ///< holds PSP1.icns to PSP12.icns
};

/// Knows whether a PSP is attached, and syncs, estimates and ejects it.
///
/// Main thread, except where a member says otherwise. Runs and estimates work on threads of their
/// own (platform/MainThread.h's Workers); the manager must outlive them.
class CVSyncManager : public QObject, private SyncRunHost
{
    Q_OBJECT
public:
    CVSyncManager(SyncServices services, ModuleCatalogue catalogue, QObject *parent = nullptr);
    ~CVSyncManager() override;

    /// Not owned; set once, before detectPSP().
    void setDelegate(CVSyncManagerDelegate *delegate) { m_delegate = delegate; }
    CVSyncManagerDelegate *delegate() const { return m_delegate; }

    // --- The device. Any thread.

    /// Mount path of the PSP; empty until one has been found, then the last one's, mounted or not.
    QString pspVolume() const;
    QString pspName() const;
    /// Looks whether the stick is still there, and scans when it isn't.
    bool pspIsMounted();
    bool pspIsUnmounting() const { return m_pspIsUnmounting; }
    /// Whether a PSP is mounted that has never been synced.
    bool isFirstSync();
    /// Bytes of the stick's file system; nothing when its path doesn't exist.
    std::optional<quint64> pspSpace() const;
    std::optional<quint64> pspFreeSpace() const;
    std::optional<quint64> pspUsedSpace() const;

    /// Scans the mounted volumes for a PSP and brings the mount state in line.
    void detectPSP();

    // --- The run

    bool isSyncing() const { return m_isSyncing; }
    bool shouldCancelSync() const override { return m_shouldCancelSync; }
    bool canSync();
    bool canCancelSync() const;
    /// Progress can't be shown as a fraction now.
    bool isIndeterminate() const { return m_isIndeterminate; }
    /// Bytes that the run has to copy (1 while none is active), and those copied.
    quint64 syncBytesTotal() const { return m_syncBytesTotal; }
    quint64 syncBytes() const { return m_syncBytes; }

    /// From now on no run, no estimate and no eject starts; for a process that is about to end.
    void close();

    /// What the active run does; null before it is known, and while none is active.
    std::shared_ptr<const SyncPlan> runPlan() const;

    /// Starts the run that the user asks for where canSync(), else does nothing. What keeps it from
    /// starting is told by syncHeldBack().
    void sync();
    /// Has a run started that nobody asked for: it is planned first, and held back where the plan
    /// would take from the stick what the user may not want to lose.
    void syncByItself();
    /// The user has changed a selection, and may have looked at what held a sync back.
    void userHasLooked() { m_lookedAt = m_heldBackFor; }
    /// Asks the active run to stop; nothing where none is active or a cancel is pending. Any
    /// thread.
    void cancelSync() override;
    /// Has a worker unmount and eject the stick, as long as that takes; nothing while a run or
    /// another eject is active. A failure is told by pspUnmountFailed().
    void eject();

    // --- The estimate

    /// Has the selection's size computed; newSyncBytesEstimate() tells the end of a computation
    /// that began after the call, or the last size where none can be started. Two work at most at a
    /// time, and calls that come meanwhile share the next one.
    void refreshSyncBytesEstimate();
    /// Bytes of the current selection as last computed.
    quint64 syncBytesEstimate() const { return m_syncBytesEstimate; }
    /// The same in per cent of the room a sync can use, cut to a whole number; 0 where nothing is
    /// known of the stick.
    quint32 syncPercentEstimate();

Q_SIGNALS:
    /// An eject, of eject() or at a run's end, is done. Another stick may be the PSP's now.
    void ejected();

private:
    // Detection
    bool takeAsPSP(const QString &volume);
    bool isStillThere() const;
    void readLastSyncSize(const QString &volume);
    void setPSPVolume(const QString &volume);
    void setPSPIsMounted(bool mounted);
    void volumeDidMount();
    void volumeWillUnmount(const QString &path);

    // What comes before a run
    bool isHeldBack(const std::optional<HoldBack> &why);
    void startPlanned();
    void start();

    // The run, on its own thread
    void _sync(const QString &volume, std::optional<VolumeIdentity> identity);
    void setRunVolume(const QString &volume);
    bool endRun();
    void finishRun(RunReport report);
    void beginEject();
    void unmount(const QString &volume);
    void endEject(const std::optional<FailedEject> &failed);

    // What a run asks for and tells
    void reportProgress(const RunReport &report) override;
    void setPlan(std::shared_ptr<const SyncPlan> plan) override;
    void setIsIndeterminate(bool indeterminate) override { m_isIndeterminate = indeterminate; }
    void setSyncBytes(quint64 total, quint64 copied) override;
    void setSyncBytesEstimate(quint64 bytes) override { m_syncBytesEstimate = bytes; }
    quint64 syncBytesLeft() const override;
    void tell(const std::function<void(CVSyncManagerDelegate &)> &callback) override;
    bool shouldUnmountPSP() override { return m_delegate->shouldUnmountPSP(); }
    void ejectVolume(const QString &volume) override;
    bool syncModuleShouldCancel() override { return m_shouldCancelSync; }
    void syncModuleIsGathering(const QString &progress) override;
    void syncModuleWillProcessItem(const CVSyncItem &item) override;
    void syncModuleDidCopyBytes(quint64 count) override;
    void syncModuleDidProcessItem(const CVSyncItem &item) override;
    void syncModuleError(const FileError &error) override;

    // The estimate, on its own thread
    void _refreshSyncBytesEstimate();
    bool endEstimate();

    // Fixed after construction
    const SyncServices m_services;
    const ModuleCatalogue m_catalogue;
    CVSyncManagerDelegate *m_delegate = nullptr;

    // Under m_volumeMutex, which is held for a copy only
    mutable std::mutex m_volumeMutex;
    QString m_pspVolume;
    QString m_runVolume; // of the active run; empty while there is none
    std::shared_ptr<const SyncPlan> m_runPlan;
    std::optional<VolumeIdentity> m_identity;

    // Main thread
    SyncPreview m_forItself; // the plan of a run that is to start by itself
    QString m_heldBackFor;
    QString m_lookedAt;

    // Under m_runMutex, which makes the steps into and out of a run, into a cancel, into an eject,
    // and into and out of an estimate, one each
    std::mutex m_runMutex;
    bool m_isClosed = false;
    int m_estimates = 0;          // that work now
    bool m_estimateWaits = false; // for one of them to end

    // Written by one party at a time, read by any
    std::atomic<bool> m_pspIsMounted = false;
    std::atomic<bool> m_pspIsUnmounting = false;
    std::atomic<bool> m_isSyncing = false;
    std::atomic<bool> m_shouldCancelSync = false;
    std::atomic<bool> m_isIndeterminate = false;
    std::atomic<quint64> m_syncBytesTotal = 1;
    std::atomic<quint64> m_syncBytes = 0;
    std::atomic<quint64> m_syncBytesEstimate = 0;
};
