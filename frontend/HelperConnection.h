#pragma once

#include "frontend/FrontEndObject.h"
#include "platform/bus/RemoteObject.h"
#include "platform/files/FileLock.h"
#include "protocol/Protocol.h"

#include <QDeadlineTimer>
#include <QTimer>
#include <QVariantList>

#include <functional>
#include <memory>
#include <optional>

/// The helper of this program's own build, for a front-end that stays and never waits: it is found
/// or started, and one that dies, is replaced or starts again is found anew. Main thread.
class HelperConnection : public QObject
{
    Q_OBJECT
public:
    enum class State {
        Searching, ///< it is looked for, or starts
        Connected,
        NoHelper, ///< it could not be started, or keeps ending; one that appears is still found
    };

    explicit HelperConnection(QObject *parent = nullptr);
    /// Says goodbye: with the last front-end a helper that doesn't start on login quits.
    ~HelperConnection() override;

    /// Looks for the helper, also anew where there was none. To be called once to begin with.
    void search();

    State state() const { return m_state; }
    bool isConnected() const { return m_state == State::Connected; }
    /// Why there is none, for the user; empty in the other states.
    const QString &failure() const { return m_failure; }

    using Answered = std::function<void(const QVariant &)>;
    using Refused = std::function<void(const QString &text)>;

    /// Sends a call and goes on. As long as `context` lives, `answered` is called once, with an
    /// invalid value where the call failed or has no result; a failed one calls `refused` in its
    /// place where that is given, with the helper's text (English).
    void ask(const Protocol::Method &method, const QVariantList &arguments, QObject *context,
             Answered answered, Refused refused = {});

    /// Sends a call whose outcome nobody waits for.
    void tell(const Protocol::Method &method, const QVariantList &arguments = {});

    /// What the helper tells; see its signals.
    FrontEndObject &frontEnd() { return m_frontEnd; }

Q_SIGNALS:
    /// The state has changed. In each new "Connected" all that is shown has to be asked anew.
    void stateChanged();

private:
    void introduce();
    void introduced(const RemoteObject::Answer &answer);
    void startOwnHelper();
    void lost();
    void fail(const QString &text);
    void setState(State state, const QString &failure = {});

    FrontEndObject m_frontEnd;
    std::unique_ptr<RemoteObject> m_remote;
    State m_state = State::Searching;
    QString m_failure;
    QTimer m_again;                     // single shot, to the next introduction
    QDeadlineTimer m_startLimit;        // for the helper that was started
    std::optional<FileLock> m_starting; // held while our own helper starts
    QDeadlineTimer m_calm;              // over: what ended before counts no more
    int m_ended = 0;                    // helpers that ended shortly one after the other
};
