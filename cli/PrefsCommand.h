#pragma once

#include "cli/ExitStatus.h"

#include <QStringList>
#include <QVariant>

#include <optional>

/// `caravel prefs [KEY [VALUE]]` on the shared preferences. Needs no helper; a running one hears of
/// the change.
ExitStatus runPrefs(const QStringList &keyAndValue, bool json);

/// A text as a value of the same type as the preference's default: yes/no, true/false, on/off or
/// 1/0 for a bool, a whole number that fits for a number, any text for a text; nothing for what is
/// none.
std::optional<QVariant> parsePreference(const QString &text, const QVariant &defaultValue);
