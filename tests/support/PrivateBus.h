#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <cstdio>
#include <sys/types.h>

/// A session bus of the test program's own, in DBUS_SESSION_BUS_ADDRESS as long as the object
/// lives (one that is made later lies over it); it ends with the program, however that ends. Where
/// no bus daemon can be started the variable names a place where nothing listens.
///
/// Services that the bus starts run in a home of the bus's own: the user's address book and
/// settings are not theirs.
///
/// Started without QProcess: its way to fork shares memory with the child and leaves the thread
/// sanitizer's records of the main thread in disorder.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    Q_DISABLE_COPY_MOVE(PrivateBus)

    /// Ends the daemon; its clients lose the bus.
    void stop();

private:
    const QTemporaryDir m_home;
    const QByteArray m_addressBefore = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    FILE *m_output = nullptr; // the daemon's
    pid_t m_daemon = -1;
};
