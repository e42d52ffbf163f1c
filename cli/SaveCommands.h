#pragma once

#include "cli/ExitStatus.h"

#include <QString>

/// `caravel saves SAVE`: the backups of one game save, newest first. The save goes by its
/// identifier in `list saves`, or by its name where no other has it.
ExitStatus runSaves(const QString &save, bool json);

/// `caravel saves restore ID`: puts one backup back on the PSP. Refused where there is no such
/// backup, no PSP is connected, or a sync runs.
ExitStatus runRestoreSave(const QString &backup);

/// `caravel saves delete ID [--yes]`: moves one backup, or all of a save, to the Trash. Asks first
/// unless `isSure`; where nobody can be asked, refuses.
ExitStatus runDeleteSave(const QString &id, bool isSure);
