#include "support/PrivateBus.h"

#include <csignal>
#include <sys/prctl.h>

PrivateBus::PrivateBus()
{
    m_daemon.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_daemon.setStandardErrorFile(QProcess::nullDevice()); // limits that it may not raise
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
    QByteArray address = "unix:path=/nonexistent/bus";
    while (m_daemon.state() != QProcess::NotRunning) {
        if (m_daemon.canReadLine()) {
            address = m_daemon.readLine().trimmed();
            break;
        }
        m_daemon.waitForReadyRead(30000);
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

PrivateBus::~PrivateBus()
{
    m_daemon.terminate();
    m_daemon.waitForFinished();
}
