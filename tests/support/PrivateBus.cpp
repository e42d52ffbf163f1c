#include "support/PrivateBus.h"

#include <QByteArray>

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Starts the daemon with its output in the pipe; -1 where it can't be started.
pid_t spawnDaemon(int output, const QByteArray &home)
{
    const QByteArray folders[] = {"HOME=" + home, "XDG_RUNTIME_DIR=" + home};
    const char *const arguments[] = {"setpriv",
                                     "--pdeathsig",
                                     "TERM",
                                     "env",
                                     "-u",
                                     "XDG_CONFIG_HOME",
                                     "-u",
                                     "XDG_DATA_HOME",
                                     "-u",
                                     "XDG_CACHE_HOME",
                                     folders[0].constData(),
                                     folders[1].constData(),
                                     "dbus-daemon",
                                     "--session",
                                     "--nofork",
                                     "--nopidfile",
                                     "--print-address",
                                     nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    // It complains about limits that it may not raise.
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t daemon = -1;
    const int error = ::posix_spawnp(&daemon, arguments[0], &actions, nullptr,
                                     const_cast<char *const *>(arguments), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? daemon : -1;
}

/// Up to the end of the line or of the output.
QByteArray firstLine(int input)
{
    QByteArray line;
    char character = 0;
    while (::read(input, &character, 1) == 1 && character != '\n')
        line.append(character);
    return line;
}

} // namespace

PrivateBus::PrivateBus()
{
    QByteArray address;
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) == 0) {
        m_daemon = spawnDaemon(ends[1], m_home.path().toLocal8Bit());
        ::close(ends[1]);
        address = firstLine(ends[0]);
        ::close(ends[0]);
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS",
            address.isEmpty() ? QByteArray("unix:path=/nonexistent/bus") : address);
}

PrivateBus::~PrivateBus()
{
    stop();
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_addressBefore);
}

void PrivateBus::stop()
{
    if (m_daemon > 0) {
        ::kill(m_daemon, SIGTERM);
        ::waitpid(m_daemon, nullptr, 0);
    }
    m_daemon = -1;
}
