#include "cli/WindowStart.h"

#include "platform/lists/Bundle.h"

#include <QFile>

#include <unistd.h>

bool WindowStart::isNeeded()
{
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    return hasDisplay && ::isatty(STDIN_FILENO) == 0 && ::isatty(STDOUT_FILENO) == 0;
}

void WindowStart::becomeWindow()
{
    const QByteArray program =
        QFile::encodeName(Bundle::main().path() + QStringLiteral("/Contents/bin/caravel-window"));
    ::execl(program.constData(), program.constData(), nullptr);
}
