#pragma once

#include "cli/ExitStatus.h"

#include <QStringList>

/// The kinds of media that a plan tells apart, as the command line calls them.
QStringList plannedKinds();

struct PlanOptions
{
    bool all = false; ///< list every file, not only those that would go or are left out
    bool json = false;
};

/// `caravel plan [KIND]`: has the helper work out what a sync would do now, and shows it. Changes
/// nothing. Of all kinds where none is named.
ExitStatus runPlan(const QString &kind, PlanOptions options);
