#pragma once

#include <sys/types.h>

/// A session bus of the test program's own, in DBUS_SESSION_BUS_ADDRESS as long as the object
/// lives; it ends with the program, however that ends. Where no bus daemon can be started the
/// variable names a place where nothing listens.
///
/// Started without QProcess: its way to fork shares memory with the child and leaves the thread
/// sanitizer's records of the main thread in disorder.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

private:
    pid_t m_daemon = -1;
};
