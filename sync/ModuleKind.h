#pragma once

#include "sync/CVSyncModule.h"

#include <functional>
#include <memory>
#include <vector>

/// One kind of media, as the engine needs to know it; each kind's module describes its own.
struct ModuleKind
{
    /// Fixed: preference keys and file names on the stick are formed from it.
    QString saveName;
    /// Makes its module for the stick mounted there (empty: for none); anew for each run and each
    /// estimate, on its thread.
    std::function<std::unique_ptr<CVSyncModule>(const QString &volume)> make;
    /// Whether it takes part in what starts now; empty: always. What takes part with an empty queue
    /// still cleans its folder up. Any thread.
    std::function<bool()> takesPart = {};
    /// Whether its bytes are the stick's.
    bool countsInEstimate = true;
    /// Whether files in its folder below "Dropboxes", which goes by the save name, come along.
    bool hasDropbox = false;
    /// Stores what the user selected, for the stick mounted there too; null: nothing of it can be
    /// selected. Main thread.
    void (*setSelectedIdentifiers)(const QStringList &identifiers, const QString &forPSP) = nullptr;
    /// Whether a text that came from elsewhere may be an identifier, where that leads to files of
    /// ours; null where any may.
    bool (*isIdentifier)(const QString &text) = nullptr;
};

/// All kinds in the order in which runs take them; made above the engine, which knows none.
using ModuleCatalogue = std::vector<ModuleKind>;

/// A module of each kind that takes part in what starts now, in that order.
ModuleList modulesTakingPart(const ModuleCatalogue &catalogue, const QString &volume);
