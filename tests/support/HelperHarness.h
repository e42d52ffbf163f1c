#pragma once

#include "app/CaravelHelperController.h"
#include "support/FakeDesktop.h"
#include "support/SyncHarness.h"

#include <QCoreApplication>

/// The whole helper but its bus, with pauses that take no time. The stick is mounted by the user of
/// the harness.
class HelperHarness : public HomeHarness
{
public:
    explicit HelperHarness(const QString &place = {})
        : HomeHarness(place)
        , helper(std::make_unique<CaravelHelperController>(CaravelHelperController::Services{
              volumes, notifications, clock, statusBar, alerts, sounds,
              Bundle(folder / u"Caravel/Contents/Helpers/CaravelHelper"_s)}))
    {
    }
    ~HelperHarness()
    {
        settle();
        helper.reset();
    }

    /// One run, until the user hears that it has ended, or won't begin; whether it completed. The
    /// estimate that follows may still run.
    bool sync()
    {
        helper->logger().clear();
        alerts.titles.clear();
        const auto says = [this](QStringView text) {
            return helper->logger().log().contains(text);
        };
        helper->syncManager().sync();
        while (!says(u"Sync was c") && !says(u"could not be copied.") && !wasRefused())
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return !says(u"Sync was cancelled.") && !wasRefused();
    }
    bool wasRefused() const { return alerts.titles.contains(u"The sync was not started!"_s); }

    FakeStatusBar statusBar;
    FakeAlerts alerts;
    FakeSounds sounds;
    std::unique_ptr<CaravelHelperController> helper;
};
