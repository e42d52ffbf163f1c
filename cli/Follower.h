#pragma once

#include "cli/Session.h"
#include "platform/core/QuitSignals.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

/// A command that stays connected and follows the helper: reads its state when the helper says that
/// something changed, at most ten times a second, and once a second without being told, since a
/// conversion's progress is not announced. Ends with the helper.
class Follower : public QObject
{
    Q_OBJECT
public:
    explicit Follower(Session &session);

    /// Follows until finish() is called or the helper goes away; its answer is the exit status.
    ExitStatus run();

protected:
    /// Called once, connected, before the first state: what is to be told to the helper.
    virtual void begin() {}
    virtual void stateRead(const HelperState &state) = 0;
    virtual void alert(const QString &title, const QString &message, int style);
    virtual void interrupted() { finish(Done); } ///< Ctrl-C, or a request to terminate

    void finish(ExitStatus status);
    void readNow();

    HelperClient &helper() { return m_session.helper(); }
    FrontEndObject &frontEnd() { return m_session.frontEnd(); }

private:
    void readSoon();

    Session &m_session;
    QuitSignals m_quitSignals;
    QEventLoop m_loop;
    QTimer m_soon; // single shot, to the next permitted reading
    QTimer m_slow;
    QElapsedTimer m_sinceReading;
    ExitStatus m_status = Done;
    bool m_finished = false;
};
