#pragma once

#include "cli/ExitStatus.h"

#include <QStringList>
#include <QVariantList>

#include <optional>
#include <vector>

/// The kinds' names on the command line: "music", "saves".
QStringList listKinds();

/// `caravel list KIND`. As JSON the rows as the helper gives them.
ExitStatus runList(const QString &kind, bool json);

enum class SelectMode { Replace, Add, Remove, All, None };

/// `caravel select KIND`: changes the selection as a whole or, where a name is in no row or there
/// is nothing to select, not at all; reads back what became of it.
ExitStatus runSelect(const QString &kind, SelectMode mode, const QStringList &names);

/// What a change of selection comes to.
struct Selection
{
    QStringList identifiers; ///< of the rows selected afterwards, in the order of the rows
    QStringList unknown;     ///< names that are neither a row's identifier nor its name
};

/// The selection that the names (of All and None there are none) make of the current one. A name
/// that is some row's identifier means that row alone, else every row with that name.
Selection changedSelection(const QVariantList &rows, const QStringList &current, SelectMode mode,
                           const QStringList &names);
