#pragma once

#include "platform/volumes/VolumeHolders.h"
#include "sync/ErrorInfo.h"
#include "sync/HoldBack.h"
#include "sync/RunReport.h"

#include <QString>

struct CVSyncItem;

/// Why the PSP could not be ejected, as far as it is known.
struct FailedEject
{
    QString reason; ///< the volume service's; may be empty
    std::vector<VolumeHolder> holders;
};

/// What the sync manager tells the application. Unless noted, every call comes on the main thread,
/// the sending thread waits until it has returned, and calls come in the order of events.
class CVSyncManagerDelegate
{
public:
    virtual ~CVSyncManagerDelegate() = default;

    /// A PSP's volume was found at the mount path; once per mount.
    virtual void pspDidMount(const QString &volume) = 0;
    virtual void pspDidUnmount() = 0;
    /// A scan found a stick that no PSP has formatted, and no PSP; again with every such scan.
    virtual void foundUnformattedMemoryStick() = 0;
    /// Whether the stick that just mounted is synced by itself. Asked on the manager's calling
    /// thread; must change nothing.
    virtual bool shouldSyncOnMount() = 0;

    /// A sync that was asked for, or would have started by itself, does not start. Nothing else is
    /// told of it.
    virtual void syncHeldBack(const HoldBack &why) = 0;

    /// First call of a run, before anything of it happens.
    virtual void syncWillStart() = 0;
    /// How far the preparations have come, in the user's words; only where they take long.
    virtual void syncIsPreparing(const QString &progress) = 0;
    virtual void syncWillCleanUp() = 0;
    /// The run has so many bytes to copy and the stick no room for them; the run is then cancelled.
    virtual void syncNotEnoughFreeSpace(quint64 bytes) = 0;
    /// A cancel was accepted; at most once a run.
    virtual void syncWillCancel() = 0;
    /// The copying begins; also told in a run that was cancelled before.
    virtual void syncDidStart() = 0;
    /// The module's display name.
    virtual void syncWillProcessModule(const QString &moduleName) = 0;
    virtual void syncWillProcessItem(const CVSyncItem &item) = 0;
    /// Bytes of the chunk just copied, at most 1 MiB.
    virtual void syncDidCopyBytes(quint64 count) = 0;
    /// The bytes copied have reached the run's total. Not told when there was nothing to copy.
    virtual void syncDidCopyLastBytes() = 0;
    virtual void syncDidProcessItem(const CVSyncItem &item) = 0;
    /// A file operation failed; the run goes on.
    virtual void syncError(const ErrorInfo &error) = 0;
    /// What the run has done by now; after each of its phases.
    virtual void syncDidProgress(const RunReport &) {}
    virtual void finalizeDidStart() = 0;
    /// Whether a completed run may eject. Asked on the run's thread; must change nothing.
    virtual bool shouldUnmountPSP() = 0;
    virtual void pspWillUnmount() = 0;
    virtual void pspUnmountFailed(const FailedEject &failed) = 0;
    /// Last call of a run, exactly one. For a run that the system had no thread for it is, with an
    /// empty report, the only one after the first.
    virtual void syncDidFinish(const RunReport &report) = 0;

    /// An estimate finished with so many bytes.
    virtual void newSyncBytesEstimate(quint64 bytes) = 0;
};
