#pragma once

#include "platform/bus/NamedConnection.h"

#include <QObject>

/// This process as a front-end of the helper's: what the helper tells it comes out as signals. Who
/// connects it (Protocol::setApplication with its path) says goodbye for it. Main thread.
class FrontEndObject : public QObject
{
    Q_OBJECT
public:
    /// What goes after one question is shown no alert.
    enum class Stay { ForOneQuestion, UntilItQuits };
    explicit FrontEndObject(Stay stay);

    /// Where the helper finds it on this process's connection.
    const QString &path() const { return m_path; }

    /// Whether it counts as an open window, which holds the helper's quitting back; not at first.
    void setIsOpen(bool isOpen) { m_isOpen = isOpen; }

Q_SIGNALS:
    void alert(const QString &title, const QString &message, int style);
    /// Something that the helper shows has changed; carries no state.
    void changed();
    /// Comes beside changed() where it is the rows of the movies' list.
    void moviesChanged();
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

    const QString m_path;
    bool m_isOpen = false;
    NamedConnection m_connection;
};
