#include "platform/desktop/DesktopApplication.h"

#include <QApplication>
#include <QIcon>

namespace {

// The toolkit tries one after the other; with none that can be reached it would end the program.
QByteArray platforms()
{
    QByteArrayList platforms;
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        platforms.append("wayland");
    if (qEnvironmentVariableIsSet("DISPLAY"))
        platforms.append("xcb");
    platforms.append("offscreen");
    return platforms.join(';');
}

std::unique_ptr<QApplication> makeOnReachableDisplay(int &argc, char **argv)
{
    constexpr const char *variable = "QT_QPA_PLATFORM";
    if (qEnvironmentVariableIsSet(variable))
        return std::make_unique<QApplication>(argc, argv);
    qputenv(variable, platforms());
    auto application = std::make_unique<QApplication>(argc, argv);
    qunsetenv(variable); // the programs that we start choose for themselves
    return application;
}

} // namespace

std::unique_ptr<QCoreApplication> makeDesktopApplication(int &argc, char **argv)
{
    qunsetenv("SESSION_MANAGER");
    auto application = makeOnReachableDisplay(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName(QStringLiteral("Caravel"));
    QApplication::setDesktopFileName(QStringLiteral("org.caravel.Caravel"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.caravel.Caravel")));
    return application;
}
