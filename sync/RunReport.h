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
        QString text; ///< why, for logs; the system's words where it failed
    };

    unsigned copied = 0;
    unsigned replaced = 0;
    unsigned removed = 0; ///< files; emptied folders don't count
    quint64 copiedBytes = 0;
    std::vector<LeftOut> leftOut; ///< of what was wanted; what a cancel left out isn't among it
    unsigned hiddenFiles = 0;     ///< in deeper folders than the PSP shows
    bool isComplete = false;      ///< the run was not cancelled
    bool isStickLost = false;     ///< that cancelled it: it went, or turned read-only

    /// Of what was left out, what exists and could not be placed.
    size_t failures() const;
    /// What was to be placed and exists.
    size_t placeable() const { return copied + replaced + failures(); }
};
