#pragma once

#include "cli/ExitStatus.h"

#include <QStringList>

/// `caravel movies add FILE…`: queues the files for conversion. All are looked at first: where one
/// can't be read, none is queued.
ExitStatus runAddMovies(const QStringList &files);

/// `caravel movies remove ID` and `rename ID TITLE`. The ID is that of a row in `list movies`, or
/// its name where only one row has it; others are refused.
ExitStatus runRemoveMovie(const QString &id);
ExitStatus runRenameMovie(const QString &id, const QString &title);
