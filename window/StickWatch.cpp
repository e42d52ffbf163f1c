#include "window/StickWatch.h"

#include <memory>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto shortestInterval = 100ms;
constexpr auto runningInterval = 1s;

} // namespace

StickWatch::StickWatch(HelperConnection &helper, QObject *parent)
    : QObject(parent)
    , m_helper(helper)
{
    m_clock.start();
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &StickWatch::read);
    connect(&helper, &HelperConnection::stateChanged, this, [this] {
        m_isReading = false; // the last one's answers don't come any more
        if (m_helper.isConnected())
            read();
        else
            adopt({});
    });
    const FrontEndObject &frontEnd = helper.frontEnd();
    connect(&frontEnd, &FrontEndObject::changed, this, &StickWatch::readSoon);
    connect(&frontEnd, &FrontEndObject::pspDidMount, this, &StickWatch::readSoon);
    connect(&frontEnd, &FrontEndObject::pspDidUnmount, this, &StickWatch::readSoon);
    connect(&frontEnd, &FrontEndObject::syncDidFinish, this, [this] {
        m_hasFinished = true;
        m_isStale = true;
        read();
    });
}

void StickWatch::readSoon()
{
    m_isStale = true;
    if (!m_isReading && (!m_soon.isActive() || m_soon.interval() > shortestInterval.count()))
        m_soon.start(shortestInterval);
}

// The helper answers in the order in which it was asked: with the last answer all are there.
void StickWatch::read()
{
    if (std::exchange(m_isReading, true) || !m_helper.isConnected())
        return;
    m_soon.stop();
    m_isStale = false;
    const auto seen = std::make_shared<Seen>();
    const auto ask = [this, seen](const Protocol::Method &method, auto take) {
        m_helper.ask(method, {}, this, [seen, take](const QVariant &value) { take(*seen, value); });
    };
    ask(Protocol::pspIsMounted, [](Seen &s, const QVariant &v) { s.state.mounted = v.toBool(); });
    ask(Protocol::isSyncing, [](Seen &s, const QVariant &v) { s.state.syncing = v.toBool(); });
    ask(Protocol::canCancelSync,
        [](Seen &s, const QVariant &v) { s.state.canCancel = v.toBool(); });
    ask(Protocol::isIndeterminate,
        [](Seen &s, const QVariant &v) { s.state.indeterminate = v.toBool(); });
    ask(Protocol::statusText,
        [](Seen &s, const QVariant &v) { s.state.statusText = v.toString(); });
    ask(Protocol::statusSubText,
        [](Seen &s, const QVariant &v) { s.state.statusSubText = v.toString(); });
    ask(Protocol::syncBytes,
        [](Seen &s, const QVariant &v) { s.state.syncBytes = v.toULongLong(); });
    ask(Protocol::syncBytesTotal,
        [](Seen &s, const QVariant &v) { s.state.syncBytesTotal = v.toULongLong(); });
    ask(Protocol::isConvertingMovie,
        [](Seen &s, const QVariant &v) { s.state.converting = v.toBool(); });
    ask(Protocol::canSync, [](Seen &s, const QVariant &v) { s.canSync = v.toBool(); });
    m_helper.ask(Protocol::stick, {}, this, [this, seen](const QVariant &value) {
        seen->stick = value.toMap();
        m_isReading = false;
        // It came or went between the questions.
        m_isStale |= seen->state.mounted == seen->stick.isEmpty();
        if (m_helper.isConnected())
            adopt(*seen);
    });
}

void StickWatch::adopt(const Seen &seen)
{
    const bool isOther =
        seen.state.mounted != m_now.state.mounted ||
        seen.stick.value(QStringLiteral("volume")) != m_now.stick.value(QStringLiteral("volume"));
    m_now = seen;
    m_rate.add(seen.state.syncing ? seen.state.syncBytes : 0, RateMeter::Time(m_clock.elapsed()));
    if (m_isStale)
        m_soon.start(shortestInterval);
    else if (seen.state.syncing || seen.state.converting)
        m_soon.start(runningInterval);
    Q_EMIT changed();
    if (isOther)
        Q_EMIT stickChanged();
    if (m_hasFinished && !m_isStale) {
        m_hasFinished = false;
        Q_EMIT syncFinished();
    }
}
