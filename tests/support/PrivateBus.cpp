#include "support/PrivateBus.h"

#include <QByteArray>

#include <csignal>
#include <utility>

PrivateBus::PrivateBus()
{
    const QByteArray home = m_home.path().toLocal8Bit();
    // It complains about limits that it may not raise.
    const QByteArray command =
        "exec setpriv --pdeathsig TERM env -u XDG_CONFIG_HOME -u XDG_DATA_HOME -u XDG_CACHE_HOME "
        "HOME='" +
        home + "' XDG_RUNTIME_DIR='" + home +
        "' dbus-daemon --session --nofork "
        "--nopidfile --print-address=1 --print-pid=1 2>/dev/null";
    m_output = ::popen(command.constData(), "re");
    char address[1000] = "unix:path=/nonexistent/bus";
    if (!m_output || !std::fgets(address, sizeof address, m_output) ||
        std::fscanf(m_output, "%d", &m_daemon) != 1)
        m_daemon = -1;
    qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray(address).trimmed());
}

PrivateBus::~PrivateBus()
{
    stop();
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_addressBefore);
}

void PrivateBus::stop()
{
    if (m_daemon > 0)
        ::kill(m_daemon, SIGTERM);
    m_daemon = -1;
    if (m_output)
        ::pclose(std::exchange(m_output, nullptr)); // which waits for it
}
