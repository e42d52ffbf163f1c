#pragma once

#include <QString>

class DistributedNotificationCenter;

/// Installs the default of every preference and relays changes between the user's processes, so
/// that each reads what another wrote. Main thread, once per process.
namespace PrefsController {

/// Installs the defaults in UserDefaults::standard(); from then on every change made in this
/// process is written out and announced with "CVPrefsDidChangeNotification".
void initialize(DistributedNotificationCenter &center);

/// That notification's name.
QString didChange();

/// Reads the store anew whenever another process announces a change.
void beginObserving(DistributedNotificationCenter &center);

} // namespace PrefsController
