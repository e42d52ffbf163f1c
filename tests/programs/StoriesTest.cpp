// What a user does and sees, with the real programs on a real bus: each file in stories/ is played.
// Of its indented lines
//   $ COMMAND   is given to bash, see ProgramHarness::shell(); lines with "> " belong to it
//   @ ACT       is one of Story's acts
// and the others are what that says, and the exit status in brackets where it isn't 0; what differs
// from one time to the next is masked. CARAVEL_WRITE_STORIES=1 writes down what is said, to be read
// before it is kept.

#include "FakeNotificationService.h"
#include "FakeTray.h"
#include "ProgramHarness.h"

#include "platform/bus/RemoteObject.h"
#include "protocol/ServedMethods.h"

#include <QDir>
#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/inotify.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

namespace Callback = Protocol::FrontEnd;

/// A front-end that writes down what it is told.
class RecordingFrontEnd
{
public:
    RecordingFrontEnd()
    {
        ServedMethods served;
        for (const Protocol::Method *method : Callback::methods) {
            served.bind(*method, [this, method](const RemoteRequest &request) {
                note(method->key(), request.arguments);
                return method == &Callback::isOpen ? QVariant(isOpen) : QVariant();
            });
        }
        m_connection.exportObject(path, Callback::interface.toString(),
                                  served.take(Callback::methods));
    }

    void connect(const QString &at)
    {
        helper.call(Protocol::setApplication.key(), {QVariant::fromValue(ObjectPath{at})}, 30s,
                    false);
    }
    /// What it was told since the last time, up to a line that begins so; what is repeated counts
    /// once. Nothing where there is no such line.
    QStringList told(const QString &last)
    {
        const auto isLast = [&](const QString &line) {
            return line.startsWith(last);
        };
        qsizetype count = 0;
        const bool heard = waitFor([&] {
            count = std::ranges::find_if(m_told, isLast) - m_told.begin() + 1;
            return count <= m_told.size();
        });
        const QStringList lines = heard ? m_told.first(count) : QStringList();
        m_told.remove(0, lines.size());
        return lines;
    }

    RemoteObject helper{ProgramHarness::helperBusName(), Protocol::helperPath.toString(),
                        Protocol::helperInterface.toString()};
    bool isOpen = false;
    inline static const QString path = QStringLiteral("/TestFrontEnd");

private:
    void note(const QString &name, const QVariantList &arguments)
    {
        QString line = name;
        for (const QVariant &argument : arguments)
            line += QStringLiteral(" <%1>").arg(argument.toString().trimmed());
        if (m_told.isEmpty() || m_told.last() != line)
            m_told.append(line);
        if (line.contains(quitting))
            helper.send(Protocol::syncNow.key(), {QVariantMap()});
    }

    const QString quitting = QStringLiteral("Helper quitting...");
    NamedConnection m_connection;
    QStringList m_told;
};

/// Which of the helper's sounds have been opened.
class Sounds
{
public:
    Sounds()
    {
        ::inotify_add_watch(m_events, ProgramHarness::resource({}).toUtf8().constData(), IN_OPEN);
    }
    ~Sounds() { ::close(m_events); }
    Sounds(const Sounds &) = delete;
    Sounds &operator=(const Sounds &) = delete;

    /// Since the last time; by then the named one has been.
    QString played(const QString &name)
    {
        const auto hear = [&] {
            QByteArray events(1 << 16, '\0');
            const qsizetype size = ::read(m_events, events.data(), size_t(events.size()));
            for (const char *each : {"SyncCompleted", "ConvertCompleted"}) {
                if (events.first(std::max<qsizetype>(size, 0)).contains(each))
                    ++m_names[QString::fromLatin1(each)];
            }
            return name.isEmpty() || m_names.contains(name);
        };
        const bool heard = waitFor(hear);
        return heard ? std::exchange(m_names, {}).keys().join(u' ') : QStringLiteral("[never]");
    }

private:
    const int m_events = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QMap<QString, int> m_names; // in their order
};

class Story : public testing::TestWithParam<std::string>
{
protected:
    ProgramHarness programs;
    RecordingFrontEnd frontEnd;
    Sounds sounds;
    std::optional<FakeTray> tray;
    std::optional<FakeNotificationService> notifications;
    bool m_goesOn = true;

    QString never()
    {
        m_goesOn = false;
        return QStringLiteral("[never]");
    }
    QString orNever(const QStringList &lines)
    {
        return lines.isEmpty() ? never() : lines.join(u'\n');
    }
    /// "helper starts", "helper quits", "helper is gone".
    QString helper(const QStringList &words)
    {
        if (words[0] == u"quits")
            return QStringLiteral("[%1]").arg(programs.stopHelper());
        if (words[0] == u"starts")
            programs.startHelper();
        else if (!waitFor([this] { return !frontEnd.helper.isAvailable(); }))
            return never();
        return {};
    }
    /// "track NAME BYTES": one more in the library.
    QString track(const QStringList &words)
    {
        programs.addTrack(words[0], QByteArray(words[1].toInt(), 'm'));
        return {};
    }
    /// "front-end connects [PATH]", "front-end opens", "front-end closes", "front-end is told
    /// CALLBACK".
    QString frontEndActs(const QStringList &words)
    {
        if (words[0] == u"connects")
            frontEnd.connect(words.value(1, RecordingFrontEnd::path));
        else if (words[0] == u"is")
            return orNever(frontEnd.told(words.mid(2).join(u' ')));
        else
            frontEnd.isOpen = words[0] == u"opens";
        return {};
    }
    /// "flood METHOD until COMMAND" succeeds: calls without a pause.
    QString flood(const QString &method, const QString &command)
    {
        const auto flooded = [&] {
            for (int i = 0; i < 150; ++i)
                frontEnd.helper.send(method);
            return programs.shell(command).status == 0;
        };
        return waitFor(flooded) ? QString() : never();
    }
    /// "ask METHOD [true|false|{}|TEXT…]" the helper.
    QString ask(const QStringList &words)
    {
        QVariantList arguments;
        for (const QString &word : words.mid(1)) {
            if (word == u"true" || word == u"false")
                arguments.append(word == u"true");
            else
                arguments.append(word == u"{}" ? QVariant(QVariantMap()) : QVariant(word));
        }
        const auto answer = frontEnd.helper.call(words[0], arguments, 30s, false);
        return answer.value ? answer.value->toString() : answer.error;
    }
    /// "tray comes", "tray shows", "tray says" (its tool tip), "tray opens" and "tray closes" (its
    /// menu), "tray chooses INDEX", "tray is empty", "tray swings" (moves).
    QString trayActs(const QStringList &words)
    {
        if (words[0] == u"comes")
            tray.emplace();
        if (words[0] == u"chooses")
            tray->sendMenuEvent(words[1].toInt() + 1, QStringLiteral("clicked"));
        if (words[0] == u"opens" || words[0] == u"closes")
            tray->sendMenuEvent(0, words[0] == u"opens" ? QStringLiteral("opened")
                                                        : QStringLiteral("closed"));
        if (words[0] == u"swings")
            return waitFor([this] { return shownIcon().isEmpty(); }) ? QString() : never();
        if (words[0] == u"says")
            return tray->toolTip();
        const bool isShown = words[0] == u"shows";
        if (!isShown && words[0] != u"is")
            return {};
        if (!waitFor([&] { return tray->hasItem() == isShown; }))
            return never();
        return isShown ? (QStringList(shownIcon()) + tray->menu()).join(QStringLiteral(" | "))
                       : QString();
    }
    /// Nothing while it moves.
    QString shownIcon() const
    {
        for (const char *name : {"InactiveNoPSPIcon", "InactiveIcon", "ActiveIcon"}) {
            if (tray->image() == QImage(ProgramHarness::resource(QLatin1String(name) + u".png"_qs))
                                     .convertToFormat(QImage::Format_ARGB32))
                return QString::fromLatin1(name);
        }
        return {};
    }
    /// "notifications come" to be taken, "notifications show" the next.
    QString notificationActs(const QStringList &words)
    {
        if (words[0] == u"come")
            notifications.emplace();
        else if (!waitFor([this] { return !notifications->shown.isEmpty(); }))
            return never();
        return std::exchange(notifications->shown, {}).join(u'\n');
    }

    QString act(const QString &line)
    {
        const QString verb = line.section(u' ', 0, 0);
        const QString rest = line.section(u' ', 1);
        const QStringList words = rest.split(u' ', Qt::SkipEmptyParts);
        if (verb == u"until")
            return waitFor([&] { return programs.shell(rest).status == 0; }) ? QString() : never();
        if (verb == u"set")
            programs.set(words[0], words[1]);
        if (verb == u"helper")
            return helper(words);
        if (verb == u"track")
            return track(words);
        if (verb == u"front-end")
            return frontEndActs(words);
        if (verb == u"ask")
            return ask(words);
        if (verb == u"flood")
            return flood(words[0], rest.section(u' ', 2));
        if (verb == u"sounds")
            return sounds.played(rest);
        if (verb == u"tray")
            return trayActs(words);
        if (verb == u"notifications")
            return notificationActs(words);
        return {};
    }

    QString masked(QString text) const
    {
        static const std::pair<QRegularExpression, QString> masks[] = {
            {QRegularExpression(u"(Today|Yesterday) \\d\\d:\\d\\d [AP]M"_qs), u"DAY TIME"_qs},
            {QRegularExpression(u"\\w{3} \\d\\d \\d\\d:\\d\\d:\\d\\d [AP]M"_qs), u"TIME"_qs},
            {QRegularExpression(u"\\d{4}-\\d\\d-\\d\\d \\d\\d[.]\\d\\d[.]\\d\\d"_qs), u"DATE"_qs},
            {QRegularExpression(u"\\d+ \\w{3} \\d{4} \\d\\d:\\d\\d:\\d\\d"_qs), u"TIME"_qs},
            {QRegularExpression(u"\\b1\\d{9}(\\.\\d+)?\\b"_qs), u"STAMP"_qs},
            {QRegularExpression(u"\"(capacity|free|used)\":[^,}]+"_qs), u"\"\\1\":BYTES"_qs},
            {QRegularExpression(u"(Space: +).*"_qs), u"\\1SPACE"_qs},
            {QRegularExpression(u"[0-9.]+.[KMGT]B of [0-9.]+.[KMGT]B free"_qs), u"SPACE free"_qs},
            {QRegularExpression(u"[0-9.]+.[KMGT]B.(Available|verfügbar)"_qs), u"SPACE \\1"_qs},
        };
        text.replace(programs.path({}), QStringLiteral("PLACE/"));
        text.replace(ProgramHarness::resource({}), QStringLiteral("RESOURCES/"));
        text.replace(QStringLiteral(CARAVEL_COMMAND), QStringLiteral("COMMAND"));
        for (const auto &[pattern, mask] : masks)
            text.replace(pattern, mask);
        return text;
    }

    QString said(const QString &command)
    {
        const auto outcome = programs.shell(command);
        return outcome.output +
               (outcome.status == 0 ? QString() : QStringLiteral("[%1]").arg(outcome.status));
    }
    /// The story as it goes now.
    QString play(const QStringList &lines)
    {
        QStringList played;
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const bool isCommand = lines[i].startsWith(u"  $ ");
            if (!m_goesOn || (!isCommand && !lines[i].startsWith(u"  @ "))) {
                if (!m_goesOn || !lines[i].startsWith(u"  "))
                    played.append(lines[i]);
                continue;
            }
            QString command = lines[i].mid(4);
            played.append(lines[i]);
            while (i + 1 < lines.size() && lines[i + 1].startsWith(u"  > ")) {
                command += u'\n' + lines[++i].mid(4);
                played.append(lines[i]);
            }
            const QString text = masked(isCommand ? said(command) : act(command));
            for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts))
                played.append(QStringLiteral("  ") + line);
        }
        return played.join(u'\n');
    }
};

std::vector<std::string> stories()
{
    std::vector<std::string> names;
    for (const QString &file : QDir(QStringLiteral(CARAVEL_STORIES)).entryList(QDir::Files))
        names.push_back(file.toStdString());
    return names;
}

} // namespace

TEST_P(Story, GoesAsWritten)
{
    const QString file = QStringLiteral(CARAVEL_STORIES "/") + QString::fromStdString(GetParam());
    const QString written = QString::fromUtf8(readFile(file));
    const QString played = programs.path(QStringLiteral("played"));
    writeFile(played, play(written.split(u'\n')).toUtf8());
    if (qEnvironmentVariableIsSet("CARAVEL_WRITE_STORIES"))
        writeFile(file, readFile(played));
    EXPECT_EQ(
        programs.shell(QStringLiteral("diff -u %1 %2").arg(file, played)).output.toStdString(), "")
        << programs.helper().readAll().constData();
    EXPECT_TRUE(!programs.helperLives() || programs.stopHelper() == 0);
}

INSTANTIATE_TEST_SUITE_P(Programs, Story, testing::ValuesIn(stories()), [](const auto &story) {
    return story.param.substr(0, story.param.find('.'));
});
