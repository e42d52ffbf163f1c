#pragma once

#include "cli/ExitStatus.h"

#include <QString>

class HelperClient;

/// `caravel sources`: the media found on this computer, and how to choose among them.
ExitStatus runSources(bool json);

/// Says why a list of that kind (its save name) is empty and what to do, as an error is said.
/// Nothing for a kind whose source can't be chosen.
void explainEmptyList(HelperClient &helper, const QString &saveName);
