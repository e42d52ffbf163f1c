#include "cli/WatchCommand.h"

#include "cli/Follower.h"
#include "cli/Output.h"
#include "cli/ProgressDisplay.h"
#include "cli/StatusCommands.h"

namespace {

class Watcher : public Follower
{
public:
    Watcher(Session &session, bool json)
        : Follower(session)
        , m_json(json)
        , m_display(LineDisplay::SubTexts::Show)
    {
        connect(&frontEnd(), &FrontEndObject::logLine, this, &Watcher::logLine);
        connect(&frontEnd(), &FrontEndObject::syncDidFinish, this, &Watcher::finished);
    }

protected:
    void stateRead(const HelperState &state) override;
    void alert(const QString &title, const QString &message, int style) override;

private:
    void logLine(const QString &line);
    void finished(bool completed);

    const bool m_json;
    LineDisplay m_display;
    std::optional<HelperState> m_last;
};

void writeEvent(QStringView event, QJsonObject object)
{
    object.insert(QStringLiteral("event"), event.toString());
    Output::json(object);
}

void Watcher::stateRead(const HelperState &state)
{
    if (m_last == state)
        return;
    const bool mountChanged = !m_last || m_last->mounted != state.mounted;
    m_last = state;
    if (m_json) {
        writeEvent(u"state", stateToJson(state));
        return;
    }
    if (mountChanged)
        Output::print(state.mounted ? QStringLiteral("A PSP is connected.")
                                    : QStringLiteral("No PSP is connected."));
    m_display.show(state);
}

void Watcher::alert(const QString &title, const QString &message, int style)
{
    if (m_json)
        writeEvent(u"alert", {{QStringLiteral("title"), title},
                              {QStringLiteral("message"), message},
                              {QStringLiteral("style"), style}});
    else
        Follower::alert(title, message, style);
}

void Watcher::logLine(const QString &line)
{
    const QString text = line.endsWith(u'\n') ? line.chopped(1) : line;
    if (m_json)
        writeEvent(u"log", {{QStringLiteral("line"), text}});
    else
        Output::print(QStringLiteral("Log: ") + Output::printable(text));
}

void Watcher::finished(bool completed)
{
    if (m_json)
        writeEvent(u"finished", {{QStringLiteral("completed"), completed}});
    else
        Output::print(completed ? QStringLiteral("The sync is complete.")
                                : QStringLiteral("The sync was cancelled."));
    readNow();
}

// Reads the log anew when a line is announced: what has been printed of it tells exactly what is
// new.
class LogFollower : public Follower
{
public:
    LogFollower(Session &session, bool json)
        : Follower(session)
        , m_json(json)
    {
        connect(&frontEnd(), &FrontEndObject::logLine, this, &LogFollower::printNew);
    }

protected:
    void stateRead(const HelperState &) override { printNew(); }

private:
    void printNew();

    const bool m_json;
    QString m_printed;
};

void LogFollower::printNew()
{
    const QString log = helper().askText(Protocol::log);
    if (helper().failed()) {
        finish(NoHelper);
        return;
    }
    const bool grown = log.startsWith(m_printed); // else it was cleared
    const QString added = grown ? log.mid(m_printed.size()) : log;
    m_printed = log;
    for (const QString &line : added.split(u'\n', Qt::SkipEmptyParts)) {
        if (m_json)
            Output::json(QJsonObject{{QStringLiteral("line"), line}});
        else
            Output::print(Output::printable(line));
    }
}

ExitStatus showLog(Session &session, bool json)
{
    const QString log = session.helper().askText(Protocol::log);
    if (session.failed())
        return session.report();
    if (json)
        Output::json(QJsonObject{{QStringLiteral("log"), log}});
    else
        for (const QString &line : log.split(u'\n', Qt::SkipEmptyParts))
            Output::print(Output::printable(line));
    return Done;
}

} // namespace

ExitStatus runWatch(bool json)
{
    Session session(Session::Stay::UntilItQuits);
    return Watcher(session, json).run();
}

ExitStatus runLog(LogMode mode, bool json)
{
    const bool follows = mode == LogMode::Follow;
    Session session(follows ? Session::Stay::UntilItQuits : Session::Stay::ForOneQuestion);
    if (follows)
        return LogFollower(session, json).run();
    if (mode == LogMode::Show)
        return showLog(session, json);
    session.helper().ask(Protocol::clearLog);
    return session.report();
}
