#pragma once

#include "platform/bus/NamedConnection.h"

#include <QObject>

/// The one window of the session, known by a name on the bus. Main thread.
class WindowInstance : public QObject
{
    Q_OBJECT
public:
    /// Whether this process is that one: it has the name, or there is no bus to have one on. Where
    /// another has it, that one is asked to show its window.
    bool isFirst();

Q_SIGNALS:
    void raiseWanted();

private:
    NamedConnection m_connection;
};
