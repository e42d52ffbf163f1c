#pragma once

#include "cli/ExitStatus.h"

#include <QStringList>
#include <QVariantMap>

/// `caravel report`: how the last sync ended, what it left out, and what it kept copies of.
ExitStatus runReport(bool json);

/// What a sync did, of what lastRunSummary says: a line for each count that isn't zero.
QStringList reportLines(const QVariantMap &summary);
