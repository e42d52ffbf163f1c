#pragma once

#include "cli/ExitStatus.h"

#include <QStringList>

/// `caravel prefs [KEY [VALUE]]` on the shared preferences. Needs no helper; a running one hears of
/// the change. A value outside the preference's range is refused.
ExitStatus runPrefs(const QStringList &keyAndValue, bool json);
