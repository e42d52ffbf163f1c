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

    /// What was removed or replaced though no sync had placed it.
    struct Kept
    {
        QString path; ///< absolute, where it lay
        QString copy; ///< where its copy lies on the computer
    };
    enum class Outcome {
        Complete,
        Incomplete,   ///< something that exists was left out
        Cancelled,    ///< by the user, or for a reason that is none of those below
        Disconnected, ///< the stick went, or turned read-only
        Full,         ///< the stick was filled
        TooLarge,     ///< nothing was copied, since all of it would not have fitted
    };

    unsigned copied = 0;
    unsigned replaced = 0;
    unsigned removed = 0; ///< files; emptied folders don't count
    quint64 copiedBytes = 0;
    /// Of what was wanted; what a cancel left out isn't among it. And what was to go and stays,
    /// since it could not be kept.
    std::vector<LeftOut> leftOut;
    std::vector<Kept> kept;   ///< files, or folders that a file replaced
    QString keptFolder;       ///< that they lie in; empty: there are none
    unsigned hiddenFiles = 0; ///< in deeper folders than the PSP shows
    bool isComplete = false;  ///< the run was not cancelled
    // What cancelled it
    bool isStickLost = false; ///< it went, or turned read-only
    bool isStickFull = false;
    bool isTooLarge = false;

    /// Of what was left out, what exists and could not be placed.
    size_t failures() const;
    size_t missing() const { return leftOut.size() - failures(); }
    /// What was to be placed and exists.
    size_t placeable() const { return copied + replaced + failures(); }
    Outcome outcome() const;
};
