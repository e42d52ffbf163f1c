#include "cli/Follower.h"

#include "cli/Output.h"

#include <algorithm>

using namespace std::chrono_literals;

Follower::Follower(Session &session)
    : m_session(session)
    , m_quitSignals([this](int) { interrupted(); })
{
    m_soon.setSingleShot(true);
    m_slow.setInterval(1s);
    connect(&m_soon, &QTimer::timeout, this, &Follower::readNow);
    connect(&m_slow, &QTimer::timeout, this, &Follower::readNow);
    connect(&frontEnd(), &FrontEndObject::changed, this, &Follower::readSoon);
    connect(&frontEnd(), &FrontEndObject::pspDidMount, this, &Follower::readSoon);
    connect(&frontEnd(), &FrontEndObject::pspDidUnmount, this, &Follower::readSoon);
    connect(&frontEnd(), &FrontEndObject::alert, this, &Follower::alert);
    connect(&helper(), &HelperClient::gone, this, [this] { finish(NoHelper); });
}

ExitStatus Follower::run()
{
    // From the loop: before it has run for the first time nothing that the helper says is heard.
    QTimer::singleShot(0, this, [this] {
        begin();
        readNow();
    });
    m_slow.start();
    m_loop.exec();
    return m_session.failed() ? m_session.report() : m_status;
}

void Follower::alert(const QString &title, const QString &message, int)
{
    Output::printError(title + u'\n' + message);
}

void Follower::readSoon()
{
    constexpr qint64 interval = 100;
    if (m_soon.isActive())
        return;
    const qint64 elapsed = m_sinceReading.isValid() ? m_sinceReading.elapsed() : interval;
    m_soon.start(static_cast<int>(std::max<qint64>(0, interval - elapsed)));
}

void Follower::readNow()
{
    if (m_finished)
        return;
    const HelperState state = helper().state();
    m_sinceReading.start();
    if (m_session.failed())
        finish(NoHelper);
    else
        stateRead(state);
}

void Follower::finish(ExitStatus status)
{
    if (m_finished)
        return;
    m_finished = true;
    m_status = status;
    m_loop.quit();
}
