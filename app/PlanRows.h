#pragma once

#include "sync/SyncPlan.h"

#include <QVariantList>
#include <QVariantMap>

/// A plan as the protocol's planSummary and planItems show it.
namespace PlanRows {

/// Rows of one page at most.
inline constexpr quint32 longestPage = 1000;

QVariantMap summary(const SyncPlan &plan);

/// So many rows from that one on, of the kind of that save name or, where it is empty, of all.
QVariantList items(const SyncPlan &plan, const QString &saveName, quint32 first, quint32 count);

} // namespace PlanRows
