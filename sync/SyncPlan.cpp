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
    return sumOf(*this, [](const KindPlan &kind) {
        quint64 bytes = 0;
        for (const PlannedItem &planned : kind.items)
            bytes += planned.clusterBytes;
        return bytes;
    });
}
