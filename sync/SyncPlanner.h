#pragma once

#include "sync/Compare.h"
#include "sync/ModuleKind.h"
#include "sync/StickNames.h"
#include "sync/SyncPlan.h"

#include <QString>

#include <functional>

/// Asks the kinds what they want, looks at the stick, and has the two compared. Nothing on the
/// stick is changed, and on the computer nothing but what the kinds stage. For one run, estimate or
/// preview, on its thread.
class SyncPlanner
{
public:
    /// True ends the planning early; what is planned by then is thrown away.
    using ShouldStop = std::function<bool()>;

    SyncPlanner(QString volume, ShouldStop shouldStop);

    SyncPlan plan(const ModuleList &modules);

    /// Bytes of everything that the kinds' selections want; nothing of the stick is looked at.
    static quint64 estimate(CVSyncModule &module);

private:
    KindInput look(CVSyncModule &module, const QStringList &unfinished);
    void compareLastPlaced(std::vector<KindInput> &inputs, const QStringList &unfinished) const;
    std::vector<StickFolder> listFolders(const CVSyncModule &module);
    std::vector<MeasuredItem> measureItems(CVSyncModule &module,
                                           const std::vector<StickFolder> &folders);

    const QString m_volume;
    const ShouldStop m_shouldStop;
    const StickNames m_names;
    const VolumeSpace m_space;
};
