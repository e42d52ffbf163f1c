// The real helper among the other programs of a desktop: its tray, its front-end, another helper,
// the session bus itself.

#include "FakeNotificationService.h"
#include "FakeTray.h"
#include "ProgramHarness.h"

#include "platform/bus/NamedConnection.h"
#include "platform/bus/RemoteObject.h"
#include "platform/core/Localized.h"
#include "support/PrivateBus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QFile>

#include <gmock/gmock.h>

#include <csignal>

using namespace std::chrono_literals;

namespace {

class DesktopTest : public testing::Test
{
protected:
    ProgramHarness programs;

    void SetUp() override
    {
        programs.addTrack(QStringLiteral("One"), QByteArray(3 << 20, '1'));
        programs.writeLibrary();
    }
    void TearDown() override
    {
        if (programs.helperLives()) {
            EXPECT_EQ(programs.stopHelper(), 0) << qPrintable(programs.helperOutput());
        }
    }

    void set(const QString &key, const QString &value)
    {
        run({QStringLiteral("prefs"), key, value});
    }
    bool statusHas(const QString &text)
    {
        return programs.caravel({QStringLiteral("status")}).output.contains(text);
    }
    void run(const QStringList &arguments)
    {
        const auto outcome = programs.caravel(arguments);
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.output);
    }
    QImage icon(const QString &name) const
    {
        return QImage(programs.resource(name + QStringLiteral(".png")))
            .convertToFormat(QImage::Format_ARGB32);
    }
    static QStringList menu(const FakeTray &tray)
    {
        QStringList items;
        for (int i = 0; i < tray.menu().size(); ++i)
            items.append(tray.menuItem(i));
        return items;
    }
};

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

const QString autostartEntry = QStringLiteral(".config/autostart/caravel-helper.desktop");

/// Sends the helper more calls than it can have answered, from connections of their own. (No
/// threads: the thread sanitizer lets none start in a program that has started others.)
class Flood
{
public:
    Flood()
    {
        for (int i = 0; i < 3; ++i)
            m_connections.append(QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                                               QStringLiteral("flood-%1").arg(i)));
    }
    ~Flood()
    {
        for (const QDBusConnection &connection : m_connections)
            QDBusConnection::disconnectFromBus(connection.name());
    }
    Flood(const Flood &) = delete;
    Flood &operator=(const Flood &) = delete;

    void send() const
    {
        const QDBusMessage call = QDBusMessage::createMethodCall(
            ProgramHarness::helperBusName(), QStringLiteral("/CaravelHelper"),
            QStringLiteral("org.caravel.CaravelHelperProtocol"), QStringLiteral("musicItems"));
        for (int i = 0; i < 500; ++i) {
            for (const QDBusConnection &connection : m_connections)
                connection.send(call);
        }
    }

private:
    QList<QDBusConnection> m_connections;
};

/// A front-end that says whether it is open, and counts what it is told.
class FakeFrontEnd
{
public:
    explicit FakeFrontEnd(const QString &helper)
        : m_helper(helper, QStringLiteral("/CaravelHelper"),
                   QStringLiteral("org.caravel.CaravelHelperProtocol"))
    {
        const QString s = QStringLiteral("s");
        m_connection.exportObject(m_path, QStringLiteral("org.caravel.CaravelFrontEnd"),
                                  {{QStringLiteral("isOpen"),
                                    {},
                                    {},
                                    QStringLiteral("b"),
                                    false,
                                    [this](const RemoteRequest &) {
                                        ++asked;
                                        return QVariant(isOpen);
                                    }},
                                   {QStringLiteral("doAlert"),
                                    {s, s, QStringLiteral("i")},
                                    {},
                                    {},
                                    true,
                                    [this](const RemoteRequest &request) {
                                        alerts.append(request.arguments[0].toString());
                                        return QVariant();
                                    }}});
    }

    void connect() { connectAs(m_path); }
    void connectAs(const QString &path)
    {
        EXPECT_TRUE(call(QStringLiteral("setApplication"), {QVariant::fromValue(ObjectPath{path})})
                        .error.isEmpty());
    }
    void connectLater()
    {
        m_helper.send(QStringLiteral("setApplication"), {QVariant::fromValue(ObjectPath{m_path})});
    }
    void quit() { m_helper.send(QStringLiteral("applicationWillQuit")); }
    RemoteObject::Answer call(const QString &method, const QVariantList &arguments = {})
    {
        return m_helper.call(method, arguments, 30s, false);
    }

    bool isOpen = false;
    int asked = 0; // whether it is open
    QStringList alerts;

private:
    const QString m_path = QStringLiteral("/TestFrontEnd");
    RemoteObject m_helper;
    NamedConnection m_connection;
};

} // namespace

TEST_F(DesktopTest, ShowTheStatusInATrayThatComesLater)
{
    programs.startHelper();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("No PSP Connected")); }));
    FakeTray tray;
    ASSERT_TRUE(waitFor([&] { return tray.hasItem(); }));
    EXPECT_EQ(tray.property(QStringLiteral("Id")), QStringLiteral("caravel-helper"));
    EXPECT_EQ(tray.property(QStringLiteral("ItemIsMenu")), true);
    EXPECT_EQ(menu(tray),
              list({"No PSP Connected", "(Sync Now)", "(Eject PSP)", "Open Caravel", "Quit"}));
    EXPECT_FALSE(icon(QStringLiteral("InactiveNoPSPIcon")).isNull());
    EXPECT_EQ(tray.image(), icon(QStringLiteral("InactiveNoPSPIcon")));

    programs.insertStick();
    ASSERT_TRUE(waitFor([&] { return tray.menuItem(1) == u"Sync Now"; }));
    EXPECT_TRUE(tray.menuItem(0).endsWith(u" Available"));
    EXPECT_EQ(tray.menuItem(2), QStringLiteral("Eject PSP"));
    EXPECT_EQ(tray.image(), icon(QStringLiteral("InactiveIcon")));
    tray.sendMenuEvent(0, QStringLiteral("opened"));
    EXPECT_EQ(tray.image(), icon(QStringLiteral("ActiveIcon")));
    tray.sendMenuEvent(0, QStringLiteral("closed"));
    EXPECT_EQ(tray.image(), icon(QStringLiteral("InactiveIcon")));

    const int before = tray.newImages();
    tray.choose(1);
    ASSERT_TRUE(waitFor([&] { return tray.menuItem(1) == u"Cancel Sync"; }));
    EXPECT_EQ(tray.menuItem(2), QStringLiteral("(Eject PSP)"));
    ASSERT_TRUE(waitFor([&] { return tray.newImages() > before + 26; })) << "the animation";
    EXPECT_NE(tray.image(), icon(QStringLiteral("InactiveIcon")));
    ASSERT_TRUE(waitFor([&] { return tray.menuItem(0) == u"Sync Successful"; }));
    ASSERT_TRUE(waitFor([&] { return tray.menuItem(1) == u"Sync Now"; }));
    EXPECT_EQ(tray.image(), icon(QStringLiteral("InactiveIcon")));

    tray.choose(1);
    ASSERT_TRUE(waitFor([&] { return tray.menuItem(1) == u"Cancel Sync"; }));
    tray.choose(1);
    ASSERT_TRUE(waitFor([&] { return tray.menuItem(0) == u"Sync Cancelled"; }));
    tray.choose(2);
    ASSERT_TRUE(waitFor([&] { return tray.menuItem(0) == u"No PSP Connected"; }));

    set(QStringLiteral("startOnLogin"), QStringLiteral("no"));
    FakeFrontEnd(ProgramHarness::helperBusName()).call(QStringLiteral("changeStartOnLogin"));
    ASSERT_TRUE(waitFor([&] { return !tray.hasItem(); }));
    EXPECT_TRUE(programs.helperLives());
    EXPECT_FALSE(QFile::exists(programs.home(autostartEntry)));
    set(QStringLiteral("startOnLogin"), QStringLiteral("yes"));
    FakeFrontEnd(ProgramHarness::helperBusName()).call(QStringLiteral("changeStartOnLogin"));
    ASSERT_TRUE(waitFor([&] { return tray.hasItem(); }));
    EXPECT_TRUE(QFile::exists(programs.home(autostartEntry)));
    tray.choose(4);
    EXPECT_TRUE(waitFor([&] { return !programs.helperLives(); }));
    EXPECT_EQ(programs.helper().exitCode(), 0);
}

TEST_F(DesktopTest, SpeakTheUsersLanguageInTheMenu)
{
    programs.setLanguage(QStringLiteral("de_DE.UTF-8"));
    programs.startHelper();
    const FakeTray tray;
    const auto shows = [&](int index, const char *english) {
        const QString text = tray.menu().value(index).label;
        return text != QString::fromLatin1(english) &&
               isLocalizedForm(text, english,
                               ProgramHarness::resource(QStringLiteral("translations")));
    };
    programs.insertStick();
    ASSERT_TRUE(waitFor([&] { return tray.hasItem() && tray.menu().value(1).enabled; }));
    EXPECT_TRUE(shows(1, "Sync Now"));
    tray.choose(1);
    ASSERT_TRUE(waitFor([&] { return shows(1, "Cancel Sync"); }));
    tray.choose(1);
    ASSERT_TRUE(waitFor([&] { return shows(0, "Sync Cancelled"); }));

    // The command speaks English, and knows a failure all the same.
    programs.setLanguage(QStringLiteral("C.UTF-8"));
    programs.refuseEject();
    EXPECT_EQ(programs.caravel({QStringLiteral("eject")}).status, 1);
    EXPECT_TRUE(shows(0, "Eject Failed"));
}

TEST_F(DesktopTest, GiveWayToANewerHelper)
{
    set(QStringLiteral("useDetailedLogging"), QStringLiteral("yes")); // starts one, too
    programs.startHelper();
    // An open front-end holds a quit up, but not this one.
    FakeFrontEnd frontEnd(ProgramHarness::helperBusName());
    frontEnd.isOpen = true;
    frontEnd.connect();
    const auto newer = programs.startAnotherHelper();
    ASSERT_TRUE(waitFor([&] { return !programs.helperLives(); }));
    EXPECT_EQ(programs.helper().exitCode(), 0);
    EXPECT_TRUE(programs.helperOutput().contains(
        QStringLiteral("Another helper has started, I am quitting!")));
    // It queued for the name, and has it now.
    EXPECT_TRUE(waitFor([&] { return statusHas(QStringLiteral("No PSP Connected")); }));
    EXPECT_EQ(newer->state(), QProcess::Running);
    newer->terminate();
    EXPECT_TRUE(waitFor([&] { return newer->state() == QProcess::NotRunning; }));
    EXPECT_EQ(newer->exitCode(), 0);
}

TEST_F(DesktopTest, StayWhileTheFrontEndIsOpen)
{
    programs.startHelper();
    FakeFrontEnd frontEnd(ProgramHarness::helperBusName());
    frontEnd.connect();
    frontEnd.isOpen = true;
    programs.helper().terminate();
    // The question whether it is open is asked and answered before this call is served.
    ASSERT_TRUE(waitFor([&] { return frontEnd.asked > 0; }));
    EXPECT_TRUE(frontEnd.call(QStringLiteral("pspIsMounted")).error.isEmpty());
    EXPECT_TRUE(programs.helperLives());

    // With "startOnLogin" off it goes with the front-end.
    set(QStringLiteral("startOnLogin"), QStringLiteral("no"));
    frontEnd.quit();
    EXPECT_TRUE(waitFor([&] { return !programs.helperLives(); }));
    EXPECT_EQ(programs.helper().exitCode(), 0);
}

TEST_F(DesktopTest, GoUnderAFrontEndThatHangs)
{
    programs.startHelper();
    const auto watch = programs.start({QStringLiteral("watch")});
    ASSERT_TRUE(waitFor([&] { return watch->bytesAvailable() > 0; }));
    ::kill(static_cast<pid_t>(watch->processId()), SIGSTOP);
    EXPECT_EQ(programs.stopHelper(), 0) << qPrintable(programs.helperOutput());
    watch->kill();
    watch->waitForFinished();
}

TEST_F(DesktopTest, ShowAlertsThroughTheFrontEndElseAsNotifications)
{
    programs.startHelper();
    FakeFrontEnd frontEnd(ProgramHarness::helperBusName());
    frontEnd.connect();
    const FakeNotificationService service;
    programs.insertUnformattedStick(QStringLiteral("NEW"));
    ASSERT_TRUE(waitFor([&] { return !frontEnd.alerts.isEmpty(); }));
    EXPECT_EQ(frontEnd.alerts, list({"Unformatted memory stick found!"}));
    EXPECT_TRUE(service.shown.isEmpty());
    frontEnd.quit();
    frontEnd.call(QStringLiteral("pspIsMounted")); // served after the word that it quits
    programs.insertUnformattedStick(QStringLiteral("OTHER"));
    ASSERT_TRUE(waitFor([&] { return !service.shown.isEmpty(); }));
    EXPECT_TRUE(service.shown.first().startsWith(
        QStringLiteral("Unformatted memory stick found!: A Memory Stick was found, however")));
    EXPECT_EQ(frontEnd.alerts.size(), 1);

    // One whose object isn't there takes none.
    frontEnd.connectAs(QStringLiteral("/nowhere"));
    programs.insertUnformattedStick(QStringLiteral("THIRD"));
    ASSERT_TRUE(waitFor([&] { return service.shown.size() == 2; }));
}

TEST_F(DesktopTest, KeepTheNextFrontEndWhenTheLastOneLeaves)
{
    programs.startHelper();
    const QString name = QStringLiteral("first");
    QDBusConnection first = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    const auto call = [](const char *method) {
        return QDBusMessage::createMethodCall(
            ProgramHarness::helperBusName(), QStringLiteral("/CaravelHelper"),
            QStringLiteral("org.caravel.CaravelHelperProtocol"), QString::fromLatin1(method));
    };
    first.call(call("setApplication")
               << QVariant::fromValue(QDBusObjectPath(QStringLiteral("/first"))));

    // All that the helper finds when it comes to it: one quits, another connects, the one is gone.
    const auto pid = static_cast<pid_t>(programs.helper().processId());
    ::kill(pid, SIGSTOP);
    first.send(call("applicationWillQuit"));
    first.interface()->isServiceRegistered(name); // by its answer the bus has what was sent
    FakeFrontEnd next(ProgramHarness::helperBusName());
    next.connectLater();
    QDBusConnection::sessionBus().interface()->isServiceRegistered(name);
    QDBusConnection::disconnectFromBus(name);
    first = QDBusConnection(QString());
    ::kill(pid, SIGCONT);

    ASSERT_TRUE(
        waitFor([&] { return programs.log().count(QStringLiteral("Initializing Caravel")) == 1; }));
    next.isOpen = true;
    programs.helper().terminate();
    ASSERT_TRUE(waitFor([&] { return next.asked > 0 || !programs.helperLives(); }));
    EXPECT_TRUE(programs.helperLives()) << "the next front-end was dropped with the last";
    next.isOpen = false;
}

TEST_F(DesktopTest, SyncOnUnderAFloodOfCalls)
{
    programs.startHelper();
    programs.insertStick();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    run({QStringLiteral("select"), QStringLiteral("music"), QStringLiteral("Road Trip")});
    FakeFrontEnd frontEnd(ProgramHarness::helperBusName());
    frontEnd.connect();
    run({QStringLiteral("sync"), QStringLiteral("--no-wait")});
    const Flood flood;
    EXPECT_TRUE(waitFor([&] {
        flood.send();
        return frontEnd.call(QStringLiteral("statusText")).value ==
               QStringLiteral("Sync Successful");
    }));
}

TEST_F(DesktopTest, QuitWithTheSessionBus)
{
    PrivateBus bus; // for the programs started from here on
    const auto helper = programs.startAnotherHelper();
    // Written once it is reached; the command would start another one before.
    ASSERT_TRUE(waitFor([&] { return QFile::exists(programs.home(autostartEntry)); }));
    programs.insertStick();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    run({QStringLiteral("sync"), QStringLiteral("--no-wait")});
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("gathering information")); }));
    bus.stop();
    ASSERT_TRUE(waitFor([&] { return helper->state() == QProcess::NotRunning; }));
    EXPECT_EQ(helper->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(helper->exitCode(), 0);
    EXPECT_TRUE(helper->readAll().contains("The session bus has gone away"));
    EXPECT_TRUE(QFile::exists(programs.stick(QStringLiteral(".caravel/MusicSyncIndex.plist"))));
}
