#pragma once

#include "sync/SyncPlan.h"

#include <QString>

#include <vector>

/// What a run did, beside its plan.
struct RunReport
{
    struct LeftOut
    {
        QString path; ///< absolute, where it would have gone
        QString source;
        PlannedItem::Reason reason = PlannedItem::Reason::None; ///< None: it failed
    };

    unsigned copied = 0;
    unsigned replaced = 0;
    unsigned removed = 0; ///< files; emptied folders don't count
    quint64 copiedBytes = 0;
    std::vector<LeftOut> leftOut; ///< of what was wanted; what a cancel left out isn't among it
    bool isComplete = false;      ///< the run was not cancelled
};
