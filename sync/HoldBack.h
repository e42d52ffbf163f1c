#pragma once

#include "sync/SyncPlan.h"

#include <QString>

#include <optional>

/// Why a sync does not start.
struct HoldBack
{
    enum class Reason {
        // Of any sync
        UnreadablePreferences,
        LostSelection, ///< the preferences were set aside, and nothing was selected since
        LinkedFolder,  ///< the stick's ".caravel" is a link
        // Of one that starts by itself
        UnreadableProfile, ///< the selection that lies on the stick
        UnreadableLibrary,
        MuchWouldGo,   ///< of what the last sync placed, though the selection is the same
        SourceChanged, ///< and what the last sync placed from the other one would go
    };

    Reason reason;
    QString kind = {};  ///< of media, as shown to the user; of the last three
    QString cause = {}; ///< what the user may have looked at meanwhile; empty: that doesn't help

    /// Of any sync with the stick at the volume. Main thread.
    static std::optional<HoldBack> of(const QString &volume);
    /// Of one that nobody asked for.
    static std::optional<HoldBack> ofAutomatic(const SyncPlan &plan);
};
