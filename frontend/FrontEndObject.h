#pragma once

#include "platform/bus/NamedConnection.h"

#include <QObject>

class HelperClient;

/// This process as a connected front-end of the helper's: what the helper tells it comes out as
/// signals.
class FrontEndObject : public QObject
{
    Q_OBJECT
public:
    /// What goes after one question is shown no alert.
    enum class Stay { ForOneQuestion, UntilItQuits };
    /// Connects the client, which outlives it; where that fails the client says why.
    FrontEndObject(HelperClient &helper, Stay stay);

    /// Tells the helper that the front-end quits (with the last one a helper that doesn't start on
    /// login quits too), and waits until that is on its way.
    ~FrontEndObject() override;

    /// Whether it counts as an open window, which holds the helper's quitting back; not at first.
    void setIsOpen(bool isOpen) { m_isOpen = isOpen; }

Q_SIGNALS:
    void alert(const QString &title, const QString &message, int style);
    /// Something that the helper shows has changed; carries no state.
    void changed();
    void estimateChanged();
    void syncDidFinish(bool completed);
    void pspDidMount();
    void pspDidUnmount();
    /// Whether the plan that was asked for can be read now.
    void planIsReady(bool ready);
    /// A line of the helper's log with its line feed.
    void logLine(const QString &line);

private:
    std::vector<RemoteMethod> methods();

    HelperClient &m_helper;
    bool m_isOpen = false;
    NamedConnection m_connection;
};
