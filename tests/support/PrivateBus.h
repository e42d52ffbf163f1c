#pragma once

#include <QProcess>

/// A session bus of the test program's own, in DBUS_SESSION_BUS_ADDRESS as long as the object
/// lives; it ends with the program, however that ends. Where no bus daemon can be started the
/// variable names a place where nothing listens.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

private:
    QProcess m_daemon;
};
