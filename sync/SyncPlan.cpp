#include "sync/SyncPlan.h"

#include "sync/StickFiles.h"

namespace {

template <typename Amount>
quint64 sumOf(const SyncPlan &plan, Amount amount)
{
    quint64 total = 0;
    for (const KindPlan &kind : plan.kinds)
        total += amount(kind);
    return total;
}

} // namespace

QStringList KindPlan::inPlace(const QString &volume) const
{
    QStringList paths;
    for (const PlannedItem &planned : items) {
        if (planned.action == PlannedItem::Action::InPlace)
            paths.append(StickFiles::relativeToVolume(planned.item.destination, volume));
    }
    return paths;
}

quint64 KindPlan::clusterBytes() const
{
    quint64 bytes = 0;
    for (const PlannedItem &planned : items)
        bytes += planned.clusterBytes;
    return bytes;
}

quint64 KindPlan::freedBytes() const
{
    quint64 bytes = 0;
    for (const PlannedItem &planned : items)
        bytes += planned.freedBytes;
    for (const PlannedRemoval &removal : removals)
        bytes += removal.bytes;
    return bytes;
}

quint64 SyncPlan::syncBytesTotal() const
{
    return sumOf(*this, [](const KindPlan &kind) { return kind.syncQueueSize; });
}

quint64 SyncPlan::syncBytesEstimate() const
{
    return sumOf(*this, [](const KindPlan &kind) { return kind.syncEstimateSize; });
}

quint64 SyncPlan::clusterBytes() const
{
    return sumOf(*this, [](const KindPlan &kind) { return kind.clusterBytes(); });
}

quint64 SyncPlan::freedBytes() const
{
    return sumOf(*this, [](const KindPlan &kind) { return kind.freedBytes(); });
}

bool SyncPlan::fitsIn(quint64 free) const
{
    return syncBytesTotal() < free && clusterBytes() <= free;
}
