#include "cli/TerminalWindow.h"

#include "platform/lists/Bundle.h"

#include <QProcess>
#include <QStandardPaths>

#include <unistd.h>

namespace {

struct Terminal
{
    const char *program;
    const char *option; // before the command; null: none
};

// The desktop's choice first.
constexpr Terminal terminals[] = {
    {"xdg-terminal-exec", nullptr}, {"x-terminal-emulator", "-e"},
    {"gnome-terminal", "--"},       {"konsole", "-e"},
    {"xfce4-terminal", "-x"},       {"xterm", "-e"},
};

} // namespace

bool TerminalWindow::isNeeded()
{
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    return hasDisplay && ::isatty(STDIN_FILENO) == 0 && ::isatty(STDOUT_FILENO) == 0;
}

bool TerminalWindow::openWatch()
{
    for (const Terminal &terminal : terminals) {
        const QString program =
            QStandardPaths::findExecutable(QString::fromLatin1(terminal.program));
        if (program.isEmpty())
            continue;
        QStringList arguments;
        if (terminal.option)
            arguments.append(QString::fromLatin1(terminal.option));
        arguments.append({Bundle::main().executable(), QStringLiteral("watch")});
        if (QProcess::startDetached(program, arguments))
            return true;
    }
    return false;
}
