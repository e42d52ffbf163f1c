#include "sync/HoldBack.h"

#include "platform/files/FileManager.h"
#include "platform/lists/UserDefaults.h"
#include "sync/StickFiles.h"
#include "util/Settings.h"

#include <algorithm>

namespace {

// Fewer files than that are soon copied again.
constexpr qsizetype fewFiles = 10;

bool isOurs(const PlannedRemoval &removal)
{
    return removal.isUnwantedFile && !removal.isStranger;
}

bool wouldLoseMuch(const KindPlan &kind)
{
    const auto lost = std::ranges::count_if(kind.removals, isOurs);
    return kind.basis == kind.lastBasis && lost >= fewFiles && 2 * lost > kind.lastPlaced;
}

qint64 sourceOf(const QVariantMap &basis)
{
    return basis.value(QStringLiteral("source")).toLongLong();
}

bool wouldLoseOtherSource(const KindPlan &kind)
{
    return sourceOf(kind.basis) != sourceOf(kind.lastBasis) &&
           std::ranges::any_of(kind.removals, isOurs);
}

} // namespace

std::optional<HoldBack> HoldBack::of(const QString &volume)
{
    if (!UserDefaults::standard().isReadable())
        return HoldBack{Reason::UnreadablePreferences};
    if (Settings::isSelectionLost())
        return HoldBack{Reason::LostSelection};
    if (files().linkStatus(StickFiles::caravelFolder(volume)).kind == FileStatus::Kind::Link)
        return HoldBack{Reason::LinkedFolder};
    return std::nullopt;
}

std::optional<HoldBack> HoldBack::ofAutomatic(const SyncPlan &plan)
{
    for (const KindPlan &kind : plan.kinds) {
        if (kind.hasUnreadableProfile)
            return HoldBack{Reason::UnreadableProfile, {}, plan.volume + kind.saveName};
        if (kind.unreadableLibrary)
            return HoldBack{Reason::UnreadableLibrary, kind.moduleName,
                            kind.unreadableLibrary->description()};
        if (wouldLoseMuch(kind))
            return HoldBack{Reason::MuchWouldGo, kind.moduleName};
        if (wouldLoseOtherSource(kind))
            return HoldBack{Reason::SourceChanged, kind.moduleName,
                            kind.saveName + u'@' + QString::number(sourceOf(kind.basis))};
    }
    return std::nullopt;
}
