#pragma once

#include "frontend/HelperConnection.h"
#include "frontend/HelperState.h"
#include "frontend/RateMeter.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QVariantMap>

/// The stick and its sync as the helper shows them: read when it tells of a change, ten times a
/// second at most, and once a second while something runs that it doesn't announce. Main thread.
class StickWatch : public QObject
{
    Q_OBJECT
public:
    /// The connection outlives it.
    explicit StickWatch(HelperConnection &helper, QObject *parent = nullptr);

    /// All of it is nothing while no helper is connected.
    const HelperState &state() const { return m_now.state; }
    /// As Protocol::stick.
    const QVariantMap &stick() const { return m_now.stick; }
    bool canSync() const { return m_now.canSync; }
    /// Bytes per second of the running sync, where that is known.
    std::optional<double> rate() const { return m_rate.rate(); }

Q_SIGNALS:
    void changed();
    /// Another stick, or none any more.
    void stickChanged();
    /// A sync has ended, and all of this shows what it left.
    void syncFinished();

private:
    struct Seen
    {
        HelperState state;
        QVariantMap stick;
        bool canSync = false;
    };

    void readSoon();
    void read();
    void adopt(const Seen &seen);

    HelperConnection &m_helper;
    Seen m_now;
    RateMeter m_rate;
    QElapsedTimer m_clock;
    QTimer m_soon; // single shot
    bool m_isReading = false;
    bool m_hasFinished = false; // told of it, and not yet read after it
    bool m_isStale = false;     // told of a change while reading
};
