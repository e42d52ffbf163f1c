#include "app/PrefsController.h"

#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/lists/UserDefaults.h"
#include "util/Settings.h"

namespace PrefsController {

QString didChange()
{
    return QStringLiteral("CVPrefsDidChangeNotification");
}

namespace {

void prefsChanged(DistributedNotificationCenter &center)
{
    UserDefaults::standard().synchronize();
    center.post(didChange());
}

} // namespace

void initialize(DistributedNotificationCenter &center)
{
    UserDefaults &defaults = UserDefaults::standard();
    defaults.registerDefaults(Settings::registeredDefaults());
    QObject::connect(&defaults, &UserDefaults::changed, &center,
                     [&center] { prefsChanged(center); });
}

void beginObserving(DistributedNotificationCenter &center)
{
    // What this process announces it has just written itself.
    center.observe(
        didChange(), &UserDefaults::standard(), [] { UserDefaults::standard().synchronize(); },
        DistributedNotificationCenter::Own::Ignore);
}

} // namespace PrefsController
