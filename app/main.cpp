#include "app/CaravelHelperController.h"
#include "app/Log.h"
#include "platform/Clock.h"
#include "platform/DistributedNotificationCenter.h"
#include "platform/QuitSignals.h"
#include "platform/Volumes.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>

#include <string>

namespace {

struct Options
{
    QString volumesFolder;
    int exitStatus = -1; // 0 upwards: the process ends at once
};

Options parse(int argc, char **argv)
{
    CLI::App command("Keeps a PSP's Memory Stick up to date with your media.", "caravel-helper");
    std::string folder;
    command
        .add_option(
            "--volumes-folder", folder,
            "Take the folders in DIR for the mounted volumes, in the place of the desktop's")
        ->type_name("DIR")
        ->envname("CARAVEL_VOLUMES");
    command.set_version_flag(
        "--version", [] { return "caravel-helper " + Bundle::main().version().toStdString(); });
    Options options;
    try {
        command.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        options.exitStatus = command.exit(error) == 0 ? 0 : 2;
    }
    options.volumesFolder = QString::fromStdString(folder);
    return options;
}

// Alerts that no front-end shows go to the journal.
class JournalAlerts : public AlertPresenter
{
public:
    void show(const QString &title, const QString &message, AlertStyle) override
    {
        qCWarning(lcApp).noquote() << title << message;
    }
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const Options options = parse(argc, argv);
    if (options.exitStatus >= 0)
        return options.exitStatus;
    if (!NamedConnection::busAvailable()) {
        qCCritical(lcApp) << "caravel-helper: there is no session bus";
        return 1;
    }
    const auto volumes = makeVolumes(options.volumesFolder);
    SystemClock clock;
    JournalAlerts alerts;
    CaravelHelperController controller(
        {*volumes, DistributedNotificationCenter::defaultCenter(), clock, alerts, Bundle::main()});
    const QuitSignals quitSignals([&controller](int) { controller.requestQuit(); });
    QObject::connect(&controller, &CaravelHelperController::finished, &application,
                     &QCoreApplication::quit, Qt::QueuedConnection);
    QMetaObject::invokeMethod(&controller, &CaravelHelperController::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}
