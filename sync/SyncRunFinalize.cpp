// Cancelled or not, each kind's index says what of it lies on the stick.

#include "platform/lists/PropertyList.h"
#include "sync/StickFiles.h"
#include "sync/SyncRun.h"

void SyncRun::finalize()
{
    m_host.setIsIndeterminate(true);
    m_host.tell([](CVSyncManagerDelegate &delegate) { delegate.finalizeDidStart(); });
    for (const KindPlan &kind : m_plan->kinds)
        write(StickFiles::syncIndex(m_stick.volume(), kind.saveName),
              PropertyList::toXml(indexOf(kind)));
    if (m_plan->isComplete)
        writeLastSelection();
    const QString unfinished = StickFiles::unfinished(m_stick.volume());
    if (m_plan->isComplete && m_stick.isPresent() && files().linkStatus(unfinished).exists())
        m_stick.remove(unfinished, nullptr);
    m_host.setIsIndeterminate(false);
}

void SyncRun::writeLastSelection()
{
    const QString path = StickFiles::lastSelection(m_stick.volume());
    QVariantMap all = PropertyList::readDictionary(path).valueOr({});
    for (const KindPlan &kind : m_plan->kinds)
        all.insert(kind.saveName, kind.basis);
    write(path, PropertyList::toXml(all));
}

QStringList SyncRun::indexOf(const KindPlan &kind) const
{
    QStringList index = m_indexes.value(kind.saveName);
    // What is still to be removed stays ours.
    for (const PlannedRemoval &removal : kind.removals) {
        if (removal.isUnwantedFile && !removal.isStranger &&
            (m_host.shouldCancelSync() || m_notRemoved.contains(removal.path)) &&
            files().linkStatus(removal.path).exists())
            index.append(StickFiles::relativeToVolume(removal.path, m_stick.volume()));
    }
    return index;
}
