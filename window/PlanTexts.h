#pragma once

#include "window/FileGroups.h"

#include <QVariantMap>

/// A plan and a report in words.
namespace PlanTexts {

/// "3 to copy, 1 to remove, 10 in place. 5 MB needed, 2 MB freed, 1 GB free."
QString totals(const QVariantMap &planSummary);

/// What becomes of the files that no sync placed; empty where the plan takes none.
QString strangers(const QVariantMap &planSummary);

/// Why a sync would copy nothing; empty where all of it fits.
QString tooMuch(const QVariantMap &planSummary);

/// The group of a row of Protocol::planItems, of the kind of that save name; nothing for what
/// stays as it is.
std::optional<FileGroups::Group> groupOf(const QString &kind, const QVariantMap &item);
FileGroups::Row rowOf(const QVariantMap &item);

/// How the last run ended: "Complete: 3 copied, 1 removed."
QString outcome(const QVariantMap &runSummary);
/// Whether it did all that it should.
bool isComplete(const QVariantMap &runSummary);

/// The group of a row of Protocol::lastRunItems.
FileGroups::Group reportGroupOf(const QVariantMap &item);
/// Where the copies of what was kept lie; empty for other rows.
QString keptFolder(const QVariantMap &item);

} // namespace PlanTexts
