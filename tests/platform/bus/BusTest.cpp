#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/bus/NamedConnection.h"
#include "platform/bus/RemoteObject.h"
#include "support/TestSupport.h"

#include <gmock/gmock.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVirtualObject>
#include <QThread>

#include <mutex>

using namespace std::chrono_literals;
using testing::IsEmpty;

namespace {

const QString path = QStringLiteral("/Served");
const QString interfaceName = QStringLiteral("org.caravel.Test");
const QString connectionName = QStringLiteral("Bus Test-\u00e9_1");

/// Another process as the bus sees it: a connection of its own, and an object that records the
/// calls that reach it and answers them with their own arguments. It may be moved to a thread.
class Peer : public QDBusVirtualObject
{
public:
    Peer() { bus.registerVirtualObject(path, this); }
    ~Peer() override { leave(); }

    // The connection closes when nobody holds it any more.
    void leave()
    {
        bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(QStringLiteral("peer"));
    }

    QDBusPendingCall call(const QString &member, const QVariantList &arguments = {},
                          const QString &interface = interfaceName) const
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            QDBusConnection::sessionBus().baseService(), path, interface, member);
        call.setArguments(arguments);
        return bus.asyncCall(call);
    }

    /// The answer to a call on the served object, which this thread serves meanwhile.
    QDBusMessage ask(const QString &member, const QVariantList &arguments = {},
                     const QString &interface = interfaceName) const
    {
        const QDBusPendingCall pending = call(member, arguments, interface);
        EXPECT_TRUE(waitFor([&] { return pending.isFinished(); }));
        return pending.reply();
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        if (message.interface() != interfaceName)
            return false;
        bus.send(message.createReply(message.arguments()));
        const std::scoped_lock lock(m_mutex);
        m_received.append(message.member() + u':' + message.signature());
        return true;
    }

    QStringList received() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_received;
    }

    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("peer"));

private:
    mutable std::mutex m_mutex;
    QStringList m_received;
};

class BusTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!NamedConnection::busAvailable())
            GTEST_SKIP() << "no bus daemon can be started";
        peer.emplace();
    }

    void TearDown() override { NamedConnection::flush(); }

    RemoteMethod method(const QString &name, const QStringList &in = {}, const QString &out = {},
                        bool oneway = false)
    {
        return {name, in, {}, out, oneway, [this](const RemoteRequest &request) {
                    requests.push_back(request);
                    return request.arguments.value(0);
                }};
    }

    void serve(std::vector<RemoteMethod> methods)
    {
        ASSERT_TRUE(served.exportObject(path, interfaceName, std::move(methods)));
        ASSERT_TRUE(served.registerName(connectionName));
    }

    std::optional<Peer> peer;
    std::vector<RemoteRequest> requests;
    NamedConnection served;
};

TEST_F(BusTest, ValuesPassEachWayWithTheTypesThatTheyStandFor)
{
    const QVariantMap flat{{QStringLiteral("title"), QStringLiteral("Cancel Sync")}};
    const QVariantMap nested{{QStringLiteral("n"), QVariantList{1, QStringLiteral("x"), flat}}};
    const struct
    {
        QString type;
        QVariant plain;
        QVariant sent = plain;
    } cases[] = {
        {QStringLiteral("b"), true},
        {QStringLiteral("i"), -7},
        {QStringLiteral("u"), 7U},
        {QStringLiteral("t"), ~quint64(0)},
        {QStringLiteral("d"), 0.5},
        {QStringLiteral("s"), QStringLiteral("\u00fc")},
        {QStringLiteral("as"), QStringList{QStringLiteral("a"), QString()}},
        {QStringLiteral("a{sv}"), nested},
        {QStringLiteral("aa{sv}"), QVariantList{flat, QVariantMap()}},
        {QStringLiteral("o"), QStringLiteral("/a/b"),
         QVariant::fromValue(ObjectPath{QStringLiteral("/a/b")})},
    };
    std::vector<RemoteMethod> methods;
    for (const auto &c : cases) {
        methods.push_back(method(u'_' + QString::number(methods.size()), {c.type}, c.type));
        methods.push_back(method(u'_' + QString::number(methods.size()), {}, c.type));
    }
    serve(methods);
    RemoteObject remote(peer->bus.baseService(), path, interfaceName);
    QStringList sent;
    for (qsizetype i = 0; i < qsizetype(std::size(cases)); ++i) {
        const auto &c = cases[i];
        sent.append(QStringLiteral("take:") + c.type);
        remote.send(QStringLiteral("take"), {c.sent});
        if (c.type == u"o")
            continue; // there is no empty one, and no method of ours has one
        // No value at all goes as an empty one.
        EXPECT_EQ(peer->ask(u'_' + QString::number(2 * i + 1)).signature(), c.type);
        EXPECT_EQ(requests.back().caller, peer->bus.baseService());
        if (c.type == u"aa{sv}")
            continue; // the peer has no such value
        EXPECT_EQ(peer->ask(u'_' + QString::number(2 * i), {c.sent}).signature(), c.type);
        EXPECT_EQ(requests.back().arguments, QVariantList{c.plain}) << qPrintable(c.type);
    }
    EXPECT_TRUE(waitFor([&] { return peer->received().size() == sent.size(); }));
    EXPECT_EQ(peer->received(), sent);
}

TEST_F(BusTest, WrongCallsAreRefusedAndChangeNothing)
{
    serve({method(QStringLiteral("setName"), {QStringLiteral("s"), QStringLiteral("i")}),
           method(QStringLiteral("quit"), {}, {}, true)});
    const QString text = QStringLiteral("x");
    const struct
    {
        const char *member;
        QVariantList arguments;
        QString interface;
        const char *error;
    } cases[] = {
        {"setName", {text, 1U}, interfaceName, "InvalidArgs"},
        {"setName", {text, 1, 1}, {}, "InvalidArgs"},
        {"quit", {text}, interfaceName, "InvalidArgs"},
        {"setname", {text, 1}, {}, "UnknownMethod"},
        {"quit", {}, QStringLiteral("org.caravel.Other"), "UnknownInterface"},
    };
    const SystemLogCapture log;
    for (const auto &c : cases)
        EXPECT_EQ(peer->ask(QString::fromLatin1(c.member), c.arguments, c.interface).errorName(),
                  QLatin1String("org.freedesktop.DBus.Error.") + QLatin1String(c.error))
            << c.member;
    EXPECT_THAT(requests, IsEmpty());
    EXPECT_TRUE(log.contains(peer->bus.baseService() +
                             QStringLiteral(": setName takes the types \"si\", not \"su\"")));
    EXPECT_EQ(peer->ask(QStringLiteral("quit"), {}, {}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(requests.size(), 1U);
}

TEST_F(BusTest, DescribesItselfToTheBussTools)
{
    RemoteMethod named =
        method(QStringLiteral("take"), {QStringLiteral("a{sv}")}, QStringLiteral("t"));
    named.inNames = {QStringLiteral("sender")};
    serve({named, method(QStringLiteral("quit"), {}, {}, true)});
    const QString xml =
        peer->ask(QStringLiteral("Introspect"), {}, {}).arguments().value(0).toString();
    EXPECT_TRUE(xml.simplified().contains(QStringLiteral(
        "<interface name=\"org.caravel.Test\"> <method name=\"take\"> "
        "<arg name=\"sender\" type=\"a{sv}\" direction=\"in\"/> "
        "<arg type=\"t\" direction=\"out\"/> </method> <method name=\"quit\"> "
        "<annotation name=\"org.freedesktop.DBus.Method.NoReply\" value=\"true\"/> </method>")))
        << qPrintable(xml);
}

TEST_F(BusTest, AnInvalidatedConnectionServesNothing)
{
    RemoteMethod stop = method(QStringLiteral("stop"));
    stop.call = [this](const RemoteRequest &) {
        served.invalidate();
        return QVariant();
    };
    serve({stop, method(QStringLiteral("late"))});
    const RemoteObject watched(QStringLiteral("org.caravel.Bus_Test___1"), path, interfaceName);
    EXPECT_TRUE(watched.isAvailable());
    // Both are on their way before the first one runs.
    const QDBusPendingCall first = peer->call(QStringLiteral("stop"));
    EXPECT_EQ(peer->ask(QStringLiteral("late")).errorName(),
              u"org.freedesktop.DBus.Error.UnknownObject");
    EXPECT_FALSE(first.isError());
    EXPECT_FALSE(watched.isAvailable());
    EXPECT_TRUE(served.exportObject(path, interfaceName, {}));
}

TEST_F(BusTest, AMethodMayCallItsCallerWhoWaits)
{
    QThread thread;
    thread.start();
    peer->moveToThread(&thread);
    RemoteObject remote(peer->bus.baseService(), path, interfaceName);
    std::optional<QVariant> nested;
    RemoteMethod callsBack = method(QStringLiteral("callsBack"));
    callsBack.call = [&](const RemoteRequest &) {
        nested = remote.call(QStringLiteral("nested"), {5}, 30s).value;
        return QVariant();
    };
    serve({callsBack});
    peer->ask(QStringLiteral("callsBack"));
    EXPECT_EQ(nested, QVariant(5));
    thread.quit();
    thread.wait();
}

TEST_F(BusTest, NotificationsReachEveryObserver)
{
    auto &center = DistributedNotificationCenter::defaultCenter();
    const QString name = QStringLiteral("CVTestNotification");
    int heard = 0;
    int othersHeard = 0;
    QObject context;
    const auto count = [](int &number) {
        return [&number] {
            ++number;
        };
    };
    center.observe(name, &context, count(heard));
    center.observe(name, &context, count(othersHeard), DistributedNotificationCenter::Own::Ignore);
    {
        QObject gone;
        center.observe(name, &gone, [] { ADD_FAILURE(); });
    }
    center.observe(QStringLiteral("CVOtherNotification"), &context, [] { ADD_FAILURE(); });
    center.post(name);
    EXPECT_TRUE(waitFor([&] { return heard == 1; }));
    NamedConnection::flush();
    peer->bus.send(QDBusMessage::createSignal(
        QStringLiteral("/org/caravel/DistributedNotificationCenter"),
        QStringLiteral("org.caravel.DistributedNotificationCenter"), name));
    EXPECT_TRUE(waitFor([&] { return heard == 2 && othersHeard >= 1; }));
    EXPECT_EQ(othersHeard, 1);
}

} // namespace
