#include "cli/SyncCommand.h"

#include "cli/Follower.h"
#include "cli/Output.h"
#include "cli/ProgressDisplay.h"
#include "cli/ReportCommand.h"
#include "frontend/HelperProcess.h"
#include "platform/bus/DistributedNotificationCenter.h"

using namespace std::chrono_literals;

namespace {

// Never starts a sync, whatever the helper is doing when it arrives.
void requestCancel()
{
    DistributedNotificationCenter::defaultCenter().post(QStringLiteral("CVCancelSyncNotification"));
}

void requestSync(HelperClient &helper)
{
    helper.tell(Protocol::syncNow, {QVariantMap()});
}

class SyncFollower : public Follower
{
public:
    explicit SyncFollower(Session &session)
        : Follower(session)
        , m_display(ProgressDisplay::make())
    {
        connect(&frontEnd(), &FrontEndObject::syncDidFinish, this, &SyncFollower::finished);
    }

    ~SyncFollower() override { m_display->clear(); }

protected:
    void begin() override
    {
        requestSync(helper());
        QTimer::singleShot(2s, this, [this] { checkStarted(); });
    }

    void stateRead(const HelperState &state) override;
    void alert(const QString &title, const QString &message, int style) override;
    void interrupted() override;

private:
    void checkStarted();
    void finished(bool completed);
    void conclude(const HelperState &state, bool completed);

    const std::unique_ptr<ProgressDisplay> m_display;
    bool m_started = false;
    bool m_cancelRequested = false;
};

void SyncFollower::stateRead(const HelperState &state)
{
    // The end is announced a moment after it can be read.
    if (!state.syncing)
        return;
    m_started = true;
    m_display->show(state);
    // The first request may have come before the run was one.
    if (m_cancelRequested && state.canCancel)
        requestCancel();
}

void SyncFollower::checkStarted()
{
    readNow();
    if (m_started)
        return;
    m_display->clear();
    Output::error(QStringLiteral("The sync did not start."));
    finish(Refused);
}

void SyncFollower::finished(bool completed)
{
    // Asked here, after the call that announced the end: the helper has set its last texts by then.
    const HelperState state = helper().state();
    // An earlier sync's end, told just when this one was asked for, is none of this one.
    if (!state.syncing)
        conclude(state, completed);
}

void SyncFollower::conclude(const HelperState &state, bool completed)
{
    m_started = true;
    m_display->clear();
    Output::print(Output::printable(state.statusText));
    if (!state.statusSubText.isEmpty())
        Output::print(Output::printable(state.statusSubText));
    for (const QString &line : reportLines(helper().ask(Protocol::lastRunSummary).toMap()))
        Output::print(line);
    const bool isWhole = !HelperProcess::isText(state.statusText, "Sync Incomplete");
    finish(completed && isWhole ? Done : Refused);
}

void SyncFollower::alert(const QString &title, const QString &message, int style)
{
    m_display->clear();
    Follower::alert(title, message, style);
    readNow();
}

void SyncFollower::interrupted()
{
    m_display->clear();
    if (m_cancelRequested) {
        Output::error(QStringLiteral("not waiting for the end of the sync"));
        finish(Refused);
        return;
    }
    m_cancelRequested = true;
    Output::error(QStringLiteral("cancelling the sync (once more to leave at once)"));
    requestCancel();
    readNow();
}

ExitStatus refuse(const QString &text)
{
    Output::error(text);
    return Refused;
}

} // namespace

ExitStatus runSync(bool wait)
{
    Session session(wait ? Session::Stay::UntilItQuits : Session::Stay::ForOneQuestion);
    HelperClient &helper = session.helper();
    const HelperState state = helper.state();
    const bool canSync = helper.askBool(Protocol::canSync);
    if (helper.failed())
        return session.report();
    if (state.syncing)
        return refuse(QStringLiteral("A sync is already running."));
    if (!state.mounted)
        return refuse(QStringLiteral("No PSP is connected."));
    if (!canSync)
        return refuse(QStringLiteral("The helper can't sync now: %1").arg(state.statusText));
    if (wait)
        return SyncFollower(session).run();
    requestSync(helper);
    NamedConnection::flush();
    return Done;
}

ExitStatus runCancel()
{
    Session session;
    HelperClient &helper = session.helper();
    const HelperState state = helper.state();
    if (helper.failed())
        return session.report();
    if (!state.syncing)
        return refuse(QStringLiteral("No sync is running."));
    if (!state.canCancel)
        return refuse(QStringLiteral("The sync is being cancelled already."));
    requestCancel();
    NamedConnection::flush();
    return Done;
}
