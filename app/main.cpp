#include "app/CaravelHelperController.h"
#include "app/Log.h"
#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/core/Clock.h"
#include "platform/core/Localized.h"
#include "platform/core/QuitSignals.h"
#include "platform/desktop/DesktopApplication.h"
#include "platform/desktop/Sounds.h"
#include "platform/volumes/Volumes.h"

#include <CLI/CLI.hpp>

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
    command.set_version_flag("--version", [] {
        return Bundle::main().versionLine(QStringLiteral("caravel-helper")).toStdString();
    });
    Options options;
    try {
        command.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        options.exitStatus = command.exit(error) == 0 ? 0 : 2;
    }
    options.volumesFolder = QString::fromStdString(folder);
    return options;
}

} // namespace

int main(int argc, char **argv)
{
    const Options options = parse(argc, argv);
    if (options.exitStatus >= 0)
        return options.exitStatus;
    const auto application = makeDesktopApplication(argc, argv);
    if (!NamedConnection::busAvailable()) {
        qCCritical(lcApp) << "caravel-helper: there is no session bus";
        return 1;
    }
    const Bundle bundle = Bundle::main();
    installTranslations(bundle.resourcePath() + QStringLiteral("/translations"));
    const auto volumes = makeVolumes(options.volumesFolder);
    const auto statusBar = makeStatusBar(bundle.resourcePath());
    const auto alerts = makeAlerts();
    const auto sounds = makeSounds(bundle.resourcePath());
    SystemClock clock;
    CaravelHelperController controller({*volumes, DistributedNotificationCenter::defaultCenter(),
                                        clock, *statusBar, *alerts, *sounds, bundle});
    const QuitSignals quitSignals([&controller](int) { controller.requestQuit(); });
    NamedConnection::observeLoss(&controller, [&controller] {
        qCWarning(lcApp) << "The session bus has gone away";
        controller.terminate();
    });
    QObject::connect(
        &controller, &CaravelHelperController::finished, application.get(),
        [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    QMetaObject::invokeMethod(&controller, &CaravelHelperController::start, Qt::QueuedConnection);
    return QCoreApplication::exec();
}
