#pragma once

#include "app/CaravelHelperController.h"
#include "platform/core/MainThread.h"
#include "support/FakeDesktop.h"
#include "support/SyncHarness.h"
#include "util/Settings.h"

#include <QCoreApplication>

/// The whole helper but its bus, on a home and a stick that lie in `place` (home, preferences,
/// volumes/STICK) and with pauses that take no time. The home is $HOME and the preferences are
/// UserDefaults::standard() as long as it lives. The stick is mounted by the user of the harness.
class HelperHarness
{
public:
    explicit HelperHarness(const QString &place)
        : m_place(place)
        , defaults(QStringLiteral("org.caravel.Caravel"), place + QStringLiteral("/preferences"))
    {
        qputenv("HOME", (place + QStringLiteral("/home")).toUtf8());
        UserDefaults::setStandard(&defaults);
        defaults.registerDefaults(Settings::registeredDefaults());
        helper = std::make_unique<CaravelHelperController>(CaravelHelperController::Services{
            volumes, notifications, clock, statusBar, alerts, sounds,
            Bundle(place + QStringLiteral("/Caravel/Contents/Helpers/CaravelHelper"))});
    }
    ~HelperHarness()
    {
        settle();
        helper.reset();
        UserDefaults::setStandard(nullptr);
    }
    HelperHarness(const HelperHarness &) = delete;
    HelperHarness &operator=(const HelperHarness &) = delete;

    QString stick() const { return m_place + QStringLiteral("/volumes/STICK"); }

    /// One run, until the user hears that it has ended; whether it completed. The estimate that
    /// follows may still run.
    bool sync()
    {
        sounds.played.clear();
        helper->logger().clear();
        const auto wasCancelled = [this] {
            return helper->logger().log().contains(u"Sync was cancelled.");
        };
        helper->syncManager().sync();
        while (sounds.played.isEmpty() && !wasCancelled())
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return !wasCancelled();
    }

    /// Waits until no run or estimate lives any more.
    static void settle()
    {
        if (!Workers::serveUntilFinished(std::chrono::minutes(1)))
            qFatal("a run or an estimate does not end");
    }

private:
    const QString m_place;

public:
    UserDefaults defaults;
    FakeVolumes volumes;
    FakeNotifications notifications;
    FakeClock clock;
    FakeStatusBar statusBar;
    FakeAlerts alerts;
    FakeSounds sounds;
    std::unique_ptr<CaravelHelperController> helper;
};
