#pragma once

#include "platform/bus/NamedConnection.h"

#include <QObject>

class HelperClient;

/// This command as the helper's connected front-end: what the helper tells it comes out as signals.
/// It never counts as an open window, so that it doesn't hold the helper's quitting back.
class FrontEndObject : public QObject
{
    Q_OBJECT
public:
    /// Hands the object over to the helper, which replaces any earlier front-end.
    explicit FrontEndObject(HelperClient &helper);

    /// Tells the helper that the front-end quits (a helper that doesn't start on login quits then
    /// too), and waits until that is on its way.
    ~FrontEndObject() override;

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
    NamedConnection m_connection;
};
