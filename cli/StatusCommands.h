#pragma once

#include "cli/ExitStatus.h"
#include "frontend/HelperClient.h"

#include <QJsonObject>

/// The state as JSON: "mounted", "statusText", "statusSubText", "syncing", "canCancelSync",
/// "isIndeterminate", "syncBytes", "syncBytesTotal", "isConvertingMovie", "percentConverted".
QJsonObject stateToJson(const HelperState &state);

/// `caravel status`.
ExitStatus runStatus(bool json);

/// `caravel estimate`: has the helper estimate anew (60 s at most) and shows the result.
ExitStatus runEstimate(bool json);

/// `caravel eject`: waits until the stick is gone or the eject failed.
ExitStatus runEject();
