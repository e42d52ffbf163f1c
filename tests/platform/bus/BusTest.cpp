#include "platform/bus/DistributedNotificationCenter.h"
#include "platform/bus/NamedConnection.h"
#include "platform/bus/RemoteObject.h"
#include "support/TestSupport.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVirtualObject>
#include <QThread>

#include <future>
#include <mutex>

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString path = QStringLiteral("/Served");
const QString interfaceName = QStringLiteral("org.caravel.Test");
const QString connectionName = QStringLiteral("Bus Test 1");

// Another process as the bus sees it: a connection of its own, and an object that records the calls
// that reach it and answers them with their own arguments. It may be moved to a thread.
class Peer : public QDBusVirtualObject
{
public:
    explicit Peer(const QString &name)
        : m_name(name)
        , bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name))
    {
        bus.registerVirtualObject(path, this);
    }
    ~Peer() override { leave(); }

    // The connection closes when nobody holds it any more.
    void leave()
    {
        bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(m_name);
    }

    QDBusMessage request(const QString &member, const QVariantList &arguments = {},
                         const QString &interface = interfaceName) const
    {
        QDBusMessage call = QDBusMessage::createMethodCall(NamedConnection::busName(connectionName),
                                                           path, interface, member);
        call.setArguments(arguments);
        return call;
    }

    // The answer to a call on the served object, which this thread serves meanwhile.
    QDBusMessage ask(const QDBusMessage &call)
    {
        const QDBusPendingCall pending = bus.asyncCall(call);
        EXPECT_TRUE(waitFor([&] { return pending.isFinished(); }));
        return pending.reply();
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        if (message.interface() != interfaceName)
            return false;
        if (meanwhile)
            meanwhile();
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

    std::function<void()> meanwhile; // runs while a call is served

private:
    const QString m_name;
    mutable std::mutex m_mutex;
    QStringList m_received;

public:
    QDBusConnection bus;
};

class BusTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!NamedConnection::busAvailable())
            GTEST_SKIP() << "no bus daemon can be started";
        peer.emplace(QStringLiteral("peer"));
    }

    void TearDown() override { NamedConnection::flush(); }

    RemoteMethod method(const QString &name, const QStringList &in, const QString &out,
                        const QVariant &answer = {}, bool oneway = false)
    {
        return {name, in, {}, out, oneway, [this, name, answer](const RemoteRequest &request) {
                    requests.push_back(request);
                    return answer;
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

QVariantMap map(const QVariant &value)
{
    return {{QStringLiteral("title"), QStringLiteral("Cancel Sync")}, {QStringLiteral("n"), value}};
}

TEST_F(BusTest, NamesStandForConnectionNames)
{
    EXPECT_EQ(NamedConnection::busName(QStringLiteral("CaravelHelper 123")),
              u"org.caravel.CaravelHelper_123");
    EXPECT_EQ(NamedConnection::busName(QStringLiteral("a.b-\u00e9_Z9")), u"org.caravel.a_b___Z9");
}

TEST_F(BusTest, ArgumentsArriveAsPlainValues)
{
    const QVariantMap nested = map(QVariantList{1, QStringLiteral("x"), map(true)});
    const struct
    {
        QString type;
        QVariant sent;
        QVariant received;
    } cases[] = {
        {QStringLiteral("b"), true, true},
        {QStringLiteral("i"), -7, -7},
        {QStringLiteral("u"), 7U, 7U},
        {QStringLiteral("t"), ~quint64(0), ~quint64(0)},
        {QStringLiteral("d"), 0.5, 0.5},
        {QStringLiteral("s"), QStringLiteral("\u00fc"), QStringLiteral("\u00fc")},
        {QStringLiteral("as"), QStringList{QStringLiteral("a"), QString()},
         QStringList{QStringLiteral("a"), QString()}},
        {QStringLiteral("as"), QStringList(), QStringList()},
        {QStringLiteral("a{sv}"), nested, nested},
        {QStringLiteral("a{sv}"), QVariantMap(), QVariantMap()},
        {QStringLiteral("o"), QVariant::fromValue(QDBusObjectPath("/a/b")), QStringLiteral("/a/b")},
    };
    std::vector<RemoteMethod> methods;
    for (size_t i = 0; i < std::size(cases); ++i)
        methods.push_back(method(QStringLiteral("take%1").arg(i), {cases[i].type}, {}));
    serve(methods);
    for (size_t i = 0; i < std::size(cases); ++i) {
        const QDBusMessage answer =
            peer->ask(peer->request(QStringLiteral("take%1").arg(i), {cases[i].sent}));
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << qPrintable(answer.errorMessage());
        ASSERT_EQ(requests.size(), i + 1) << qPrintable(cases[i].type);
        EXPECT_EQ(requests.back().arguments, QVariantList{cases[i].received})
            << qPrintable(cases[i].type);
        EXPECT_EQ(requests.back().caller, peer->bus.baseService());
    }
}

TEST_F(BusTest, AnswersHaveTheDeclaredTypeWhateverTheValueHolds)
{
    const QVariantList rows = {map(1), QVariantMap()};
    const struct
    {
        QString out;
        QVariant answer;
        QString signature;
    } cases[] = {
        {{}, {}, {}},
        {QStringLiteral("b"), 1, QStringLiteral("b")},
        {QStringLiteral("i"), 5LL, QStringLiteral("i")},
        {QStringLiteral("u"), 5, QStringLiteral("u")},
        {QStringLiteral("t"), 5, QStringLiteral("t")},
        {QStringLiteral("d"), 5, QStringLiteral("d")},
        {QStringLiteral("s"), QVariant(), QStringLiteral("s")},
        {QStringLiteral("as"), QVariant(), QStringLiteral("as")},
        {QStringLiteral("a{sv}"), map(2.5), QStringLiteral("a{sv}")},
        {QStringLiteral("aa{sv}"), rows, QStringLiteral("aa{sv}")},
        {QStringLiteral("aa{sv}"), QVariantList(), QStringLiteral("aa{sv}")},
        {QStringLiteral("o"), QStringLiteral("/x"), QStringLiteral("o")},
    };
    std::vector<RemoteMethod> methods;
    for (size_t i = 0; i < std::size(cases); ++i)
        methods.push_back(
            method(QStringLiteral("get%1").arg(i), {}, cases[i].out, cases[i].answer));
    serve(methods);
    for (size_t i = 0; i < std::size(cases); ++i) {
        const QDBusMessage answer = peer->ask(peer->request(QStringLiteral("get%1").arg(i)));
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << i;
        EXPECT_EQ(answer.signature(), cases[i].signature) << i;
    }
}

TEST_F(BusTest, WrongCallsAreRefusedAndChangeNothing)
{
    serve({method(QStringLiteral("setName"), {QStringLiteral("s"), QStringLiteral("i")}, {}),
           method(QStringLiteral("quit"), {}, {}, {}, true)});
    const QString own = interfaceName;
    const QString invalid = QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");
    const QString text = QStringLiteral("x");
    const struct
    {
        QString member;
        QVariantList arguments;
        QString interface;
        QString error;
    } cases[] = {
        {QStringLiteral("setName"), {}, own, invalid},
        {QStringLiteral("setName"), {text}, own, invalid},
        {QStringLiteral("setName"), {text, 1U}, own, invalid},
        {QStringLiteral("setName"), {text, 1, 1}, own, invalid},
        {QStringLiteral("setName"), QVariantList() << QVariant(QVariantList{text, 1}), {}, invalid},
        {QStringLiteral("quit"), {text}, own, invalid},
        {QStringLiteral("setname"),
         {},
         own,
         QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod")},
        {QStringLiteral("setname"),
         {},
         {},
         QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod")},
        {QStringLiteral("quit"),
         {},
         QStringLiteral("org.caravel.Other"),
         QStringLiteral("org.freedesktop.DBus.Error.UnknownInterface")},
    };
    const SystemLogCapture log;
    for (const auto &each : cases)
        EXPECT_EQ(peer->ask(peer->request(each.member, each.arguments, each.interface)).errorName(),
                  each.error)
            << qPrintable(each.member);
    EXPECT_THAT(requests, IsEmpty());
    EXPECT_TRUE(log.contains(QStringLiteral("setName takes the types \"si\", not \"su\"")));
    EXPECT_TRUE(log.contains(peer->bus.baseService()));
    EXPECT_EQ(peer->ask(peer->request(QStringLiteral("quit"), {}, {})).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(requests.size(), 1U);
}

TEST_F(BusTest, DescribesItselfToTheBussTools)
{
    RemoteMethod named =
        method(QStringLiteral("take"), {QStringLiteral("a{sv}")}, QStringLiteral("t"));
    named.inNames = {QStringLiteral("sender")};
    serve({named, method(QStringLiteral("quit"), {}, {}, {}, true)});
    for (const QString &interface :
         {QStringLiteral("org.freedesktop.DBus.Introspectable"), QString()}) {
        const QDBusMessage answer =
            peer->ask(peer->request(QStringLiteral("Introspect"), {}, interface));
        const QString xml = answer.arguments().value(0).toString().simplified();
        EXPECT_TRUE(xml.contains(QStringLiteral(
            "<interface name=\"org.caravel.Test\"> <method name=\"take\"> "
            "<arg name=\"sender\" type=\"a{sv}\" direction=\"in\"/> "
            "<arg type=\"t\" direction=\"out\"/> </method> <method name=\"quit\"> "
            "<annotation name=\"org.freedesktop.DBus.Method.NoReply\" value=\"true\"/> </method>")))
            << qPrintable(xml);
    }
    EXPECT_EQ(peer->ask(peer->request(QStringLiteral("Ping"), {},
                                      QStringLiteral("org.freedesktop.DBus.Peer")))
                  .type(),
              QDBusMessage::ReplyMessage);
}

TEST_F(BusTest, AMethodOfATypeThatIsNoneIsNotServed)
{
    const QString unknown = QStringLiteral("a{ss}");
    EXPECT_DEATH(serve({method(QStringLiteral("take"), {unknown}, {})}), "take: \"a\\{ss\\}\"");
    EXPECT_DEATH(serve({method(QStringLiteral("give"), {}, unknown)}), "give: \"a\\{ss\\}\"");
}

TEST_F(BusTest, OneObjectAPathAndOneProcessAName)
{
    serve({});
    EXPECT_FALSE(served.exportObject(path, interfaceName, {}));
    const QString taken = QStringLiteral("Taken 1");
    ASSERT_TRUE(peer->bus.registerService(NamedConnection::busName(taken)));
    EXPECT_FALSE(served.registerName(taken));
    peer->leave();
    // Nothing is asked again: who waited for the name has it now.
    RemoteObject waiting(NamedConnection::busName(taken), path, interfaceName);
    EXPECT_TRUE(waitFor([&] { return waiting.isAvailable(); }));
}

TEST_F(BusTest, AnInvalidatedConnectionServesNothing)
{
    RemoteMethod stop = method(QStringLiteral("stop"), {}, {});
    stop.call = [this](const RemoteRequest &) {
        served.invalidate();
        return QVariant();
    };
    serve({stop, method(QStringLiteral("late"), {}, {})});
    const RemoteObject watched(NamedConnection::busName(connectionName), path, interfaceName);
    // Both are on their way before the first one runs.
    const QString unique = QDBusConnection::sessionBus().baseService();
    const auto toUnique = [&](const QString &member) {
        return QDBusMessage::createMethodCall(unique, path, interfaceName, member);
    };
    const QDBusPendingCall first = peer->bus.asyncCall(toUnique(QStringLiteral("stop")));
    const QDBusPendingCall second = peer->bus.asyncCall(toUnique(QStringLiteral("late")));
    EXPECT_TRUE(waitFor([&] { return first.isFinished() && second.isFinished(); }));
    EXPECT_FALSE(first.isError());
    EXPECT_EQ(second.error().name(), u"org.freedesktop.DBus.Error.UnknownObject");
    EXPECT_FALSE(watched.isAvailable());
    EXPECT_TRUE(served.exportObject(path, interfaceName, {}));
}

TEST_F(BusTest, SendsInOrderWithTheTypesThatTheValuesStandFor)
{
    RemoteObject remote(peer->bus.baseService(), path, interfaceName);
    const struct
    {
        QVariant value;
        QString signature;
    } cases[] = {
        {true, QStringLiteral("b")},
        {1, QStringLiteral("i")},
        {1U, QStringLiteral("u")},
        {quint64(1), QStringLiteral("t")},
        {1.5, QStringLiteral("d")},
        {QStringLiteral("s"), QStringLiteral("s")},
        {QStringList(), QStringLiteral("as")},
        {QVariantMap(), QStringLiteral("a{sv}")},
        {QVariantList{QVariantMap()}, QStringLiteral("aa{sv}")},
        {QVariant::fromValue(ObjectPath{QStringLiteral("/o")}), QStringLiteral("o")},
    };
    QStringList expected;
    for (const auto &each : cases) {
        const QString member = QStringLiteral("take%1").arg(expected.size());
        remote.send(member, {each.value});
        expected.append(member + u':' + each.signature);
    }
    EXPECT_TRUE(waitFor([&] { return peer->received().size() == expected.size(); }));
    EXPECT_EQ(peer->received(), expected);
}

TEST_F(BusTest, AnswersComeAsPlainValuesAndFailuresAsText)
{
    const QString name = QStringLiteral("org.freedesktop.DBus");
    RemoteObject bus(name, QStringLiteral("/org/freedesktop/DBus"), name);
    const QString own = QDBusConnection::sessionBus().baseService();
    const auto names = bus.call(QStringLiteral("ListNames"), {}, 30s);
    EXPECT_TRUE(names.value.value_or(QVariant()).toStringList().contains(own));
    const auto credentials = bus.call(QStringLiteral("GetConnectionCredentials"), {own}, 30s);
    EXPECT_EQ(credentials.value.value_or(QVariant()).toMap().value(QStringLiteral("ProcessID")),
              QVariant(static_cast<uint>(QCoreApplication::applicationPid())));
    const auto nothing =
        bus.call(QStringLiteral("AddMatch"), {QStringLiteral("type='error'")}, 30s);
    EXPECT_TRUE(nothing.value && !nothing.value->isValid());
    const auto failure = bus.call(QStringLiteral("NoSuch"), {}, 30s);
    EXPECT_FALSE(failure.value);
    EXPECT_FALSE(failure.error.isEmpty());
}

TEST_F(BusTest, AServiceThatComesAndGoesIsNoticed)
{
    const QString name = NamedConnection::busName(QStringLiteral("Comes And Goes"));
    RemoteObject byName(name, path, interfaceName);
    RemoteObject byAddress(peer->bus.baseService(), path, interfaceName);
    QStringList events;
    QObject::connect(&byName, &RemoteObject::appeared, [&] { events << QStringLiteral("came"); });
    QObject::connect(&byName, &RemoteObject::vanished, [&] { events << QStringLiteral("went"); });
    bool addressGone = false;
    QObject::connect(&byAddress, &RemoteObject::vanished, [&] { addressGone = true; });
    EXPECT_FALSE(byName.isAvailable());
    EXPECT_FALSE(byName.call(QStringLiteral("anything"), {}, 30s, false).value);
    ASSERT_TRUE(peer->bus.registerService(name));
    EXPECT_TRUE(waitFor([&] { return events.size() == 1; }));
    EXPECT_TRUE(byName.isAvailable());
    EXPECT_TRUE(byAddress.isAvailable());
    peer->leave();
    EXPECT_TRUE(waitFor([&] { return events.size() == 2 && addressGone; }));
    EXPECT_THAT(events, ElementsAre(QStringLiteral("came"), QStringLiteral("went")));
}

// Two processes may call each other while one of them waits for the other.
TEST_F(BusTest, CallsMayCross)
{
    QThread thread;
    thread.start();
    peer->moveToThread(&thread);
    RemoteObject remote(peer->bus.baseService(), path, interfaceName);
    std::optional<QVariant> nested;
    RemoteMethod callsBack = method(QStringLiteral("callsBack"), {}, {});
    callsBack.call = [&](const RemoteRequest &) {
        nested = remote.call(QStringLiteral("nested"), {5}, 30s).value;
        return QVariant();
    };
    serve({callsBack, method(QStringLiteral("notice"), {}, {})});

    // The other side's call comes while this one waits: it is served once the wait is over.
    peer->meanwhile = [this] {
        peer->bus.asyncCall(peer->request(QStringLiteral("notice")));
    };
    EXPECT_EQ(remote.call(QStringLiteral("first"), {QStringLiteral("x")}, 30s).value,
              QVariant(QStringLiteral("x")));
    EXPECT_TRUE(waitFor([&] { return requests.size() == 1; }));

    // The served method calls its caller back.
    const QDBusPendingCall pending =
        peer->bus.asyncCall(peer->request(QStringLiteral("callsBack")));
    EXPECT_TRUE(waitFor([&] { return pending.isFinished(); }));
    EXPECT_EQ(nested, QVariant(5));
    EXPECT_TRUE(waitFor([&] { return requests.size() == 2; }));
    thread.quit();
    thread.wait();
}

TEST_F(BusTest, NotificationsReachEveryObserver)
{
    auto &center = DistributedNotificationCenter::defaultCenter();
    const QString name = QStringLiteral("CVTestNotification");
    int heard = 0;
    int othersHeard = 0;
    int forgotten = 0;
    int otherName = 0;
    QObject context;
    auto *ending = new QObject;
    using Own = DistributedNotificationCenter::Own;
    center.observe(name, &context, [&] { ++heard; });
    center.observe(
        name, &context, [&] { ++othersHeard; }, Own::Ignore);
    center.observe(name, ending, [&] { ++forgotten; });
    center.observe(QStringLiteral("CVOtherNotification"), &context, [&] { ++otherName; });
    center.post(name);
    EXPECT_TRUE(waitFor([&] { return heard == 1 && forgotten == 1; }));
    delete ending;
    NamedConnection::flush();
    peer->bus.send(QDBusMessage::createSignal(
        QStringLiteral("/org/caravel/DistributedNotificationCenter"),
        QStringLiteral("org.caravel.DistributedNotificationCenter"), name));
    EXPECT_TRUE(waitFor([&] { return heard == 2 && othersHeard >= 1; }));
    EXPECT_EQ(othersHeard, 1);
    EXPECT_EQ(forgotten, 1);
    EXPECT_EQ(otherName, 0);
}

TEST_F(BusTest, ANotificationWithoutAValidNameIsNotedNotSent)
{
    const SystemLogCapture log;
    DistributedNotificationCenter::defaultCenter().post(QStringLiteral("no such name"));
    EXPECT_TRUE(log.contains(QStringLiteral("no such name")));
}

} // namespace
