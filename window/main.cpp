#include "frontend/HelperConnection.h"
#include "frontend/HelperProcess.h"
#include "frontend/Preferences.h"
#include "platform/core/Localized.h"
#include "platform/core/QuitSignals.h"
#include "window/MainWindow.h"
#include "window/WindowInstance.h"
#include "window/WindowStyle.h"

#include <CLI/CLI.hpp>

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <optional>

namespace {

constexpr int badUsage = 2;

// What is left to do after the options: nothing where they say so.
std::optional<int> readOptions(int argc, char **argv)
{
    CLI::App app("Shows and selects what a PSP's Memory Stick holds.", "caravel-window");
    app.set_version_flag("--version", [] {
        return Bundle::main().versionLine(QStringLiteral("caravel-window")).toStdString();
    });
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? 0 : badUsage;
    }
    return std::nullopt;
}

bool hasDisplay()
{
    constexpr const char *variables[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::ranges::any_of(variables,
                               [](const char *name) { return qEnvironmentVariableIsSet(name); });
}

int showWindow(WindowInstance &instance)
{
    HelperConnection helper;
    helper.frontEnd().setIsOpen(true);
    MainWindow window(&helper);
    QObject::connect(&instance, &WindowInstance::raiseWanted, &window, &MainWindow::raiseWindow);
    const QuitSignals quitSignals([&window](int) { window.close(); });
    window.show();
    helper.search();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    if (const auto status = readOptions(argc, argv))
        return *status;
    if (!hasDisplay()) {
        std::fputs("caravel-window: there is no display to show a window on\n", stderr);
        return badUsage;
    }
    const QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Caravel"));
    QApplication::setDesktopFileName(QStringLiteral("org.caravel.Caravel"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.caravel.Caravel")));
    WindowStyle::install();
    WindowInstance instance;
    if (!instance.isFirst())
        return 0;
    installTranslations(HelperProcess::bundle().resourcePath() + QStringLiteral("/translations"));
    Preferences::begin();
    return showWindow(instance);
}
