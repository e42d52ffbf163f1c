#include "fuzz/AnyBusValue.h"
#include "fuzz/PlayedBus.h"
#include "platform/bus/NamedConnection.h"
#include "platform/tray/Menu.h"
#include "platform/tray/own/BusMenu.h"

#include <QCoreApplication>
#include <QDebug>
#include <QVariantMap>

#include <cstring>
#include <map>

namespace {

constexpr const char *servedPath = "/Served";
constexpr const char *servedInterface = "org.caravel.Served";
constexpr const char *menuPath = "/Menu";
constexpr const char *menuInterface = "com.canonical.dbusmenu";
constexpr const char *propertiesInterface = "org.freedesktop.DBus.Properties";

struct Method
{
    const char *path;
    const char *interface;
    const char *name;
    QByteArrayList in;
    const char *out;
    bool oneway = false;
};

/// Those of ours give their first argument back where they answer at all.
const std::vector<Method> &methods()
{
    static const std::vector<Method> all{
        {servedPath, servedInterface, "takeBool", {"b"}, "b"},
        {servedPath, servedInterface, "takeInt", {"i"}, "i"},
        {servedPath, servedInterface, "takeUInt", {"u"}, "u"},
        {servedPath, servedInterface, "takeLong", {"t"}, "t"},
        {servedPath, servedInterface, "takeReal", {"d"}, "d"},
        {servedPath, servedInterface, "takeText", {"s"}, "s"},
        {servedPath, servedInterface, "takeTexts", {"as"}, "as"},
        {servedPath, servedInterface, "takeMap", {"a{sv}"}, "a{sv}"},
        {servedPath, servedInterface, "takeRows", {"aa{sv}"}, "aa{sv}"},
        {servedPath, servedInterface, "takePath", {"o"}, "o"},
        {servedPath, servedInterface, "takeTwo", {"a{sv}", "s"}, "a{sv}"},
        {servedPath, servedInterface, "takeNone", {}, ""},
        {servedPath, servedInterface, "hear", {"a{sv}"}, "", true},
        {menuPath, menuInterface, "GetLayout", {"i", "i", "as"}, "u(ia{sv}av)"},
        {menuPath, menuInterface, "GetGroupProperties", {"ai", "as"}, "a(ia{sv})"},
        {menuPath, menuInterface, "GetProperty", {"i", "s"}, "v"},
        {menuPath, menuInterface, "Event", {"i", "s", "v", "u"}, ""},
        {menuPath, menuInterface, "EventGroup", {"a(isvu)"}, "ai"},
        {menuPath, menuInterface, "AboutToShow", {"i"}, "b"},
        {menuPath, menuInterface, "AboutToShowGroup", {"ai"}, "aiai"},
        {menuPath, propertiesInterface, "GetAll", {"s"}, "a{sv}"},
    };
    return all;
}

void promiseSame(const QVariant &value, const QVariant &expected, const char *what)
{
    if (areSame(value, expected))
        return;
    QString text;
    QDebug(&text) << value << "where it should be" << expected;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    promise(false, what);
}

// --- Who is called

struct Request
{
    QString method;
    RemoteRequest request;
};

/// What is served, and what has reached it.
class Callees
{
public:
    Callees()
        : m_busMenu(m_menu, QString::fromLatin1(menuPath))
    {
        for (int number = 1; number <= itemCount; ++number)
            m_menu.addItem({QStringLiteral("_%1").arg(number),
                            [this](const QString &) { ++chosen; }, number != disabledItem});
        QObject::connect(&m_menu, &Menu::needsUpdate, &m_menu,
                         [this] { m_menu.setTitle(0, QStringLiteral("%1").arg(++m_updates)); });
        std::vector<RemoteMethod> served{
            {QStringLiteral("end"), {}, {}, {}, false, [this](const RemoteRequest &) {
                 hasEnded = true;
                 return QVariant();
             }}};
        for (const Method &method : methods())
            if (method.path == servedPath)
                served.push_back(recorder(method));
        promise(m_connection.exportObject(QString::fromLatin1(servedPath),
                                          QString::fromLatin1(servedInterface), served),
                "the object is served");
    }

    /// How often an event makes something happen: the items' ids go from 1.
    static int choices(int id, const QString &event)
    {
        return event == u"clicked" && id >= 1 && id <= itemCount && id != disabledItem;
    }

    std::vector<Request> requests;
    int chosen = 0;
    bool hasEnded = false;

private:
    static constexpr int itemCount = 4;
    static constexpr int disabledItem = 3;

    RemoteMethod recorder(const Method &method)
    {
        const QString name = QString::fromLatin1(method.name);
        QStringList in;
        for (const QByteArray &type : method.in)
            in.append(QString::fromLatin1(type));
        return {name,
                in,
                {},
                QString::fromLatin1(method.out),
                method.oneway,
                [this, name](const RemoteRequest &request) {
                    requests.push_back({name, request});
                    return request.arguments.value(0);
                }};
    }

    Menu m_menu;
    int m_updates = 0;
    BusMenu m_busMenu;
    NamedConnection m_connection;
};

// --- Calls

enum class Address { Right, NoInterface, OtherInterface, OtherMember, Last = OtherMember };

struct Call
{
    const Method *method = nullptr;
    Address address = Address::Right;
    bool hasRightTypes = false;
    bool wantsAnswer = true;
    BusValue body;

    bool isServed() const { return method->path == servedPath; }
    bool isRight() const
    {
        return hasRightTypes && (address == Address::Right || address == Address::NoInterface);
    }
};

BusValue bodyFrom(FuzzedDataProvider &input, const QByteArrayList &types)
{
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE_TUPLE);
    for (const QByteArray &type : types)
        g_variant_builder_add_value(&builder,
                                    valueFrom(input, G_VARIANT_TYPE(type.constData()), deepest));
    return BusValue(g_variant_ref_sink(g_variant_builder_end(&builder)));
}

/// Those that the method takes, or some others.
QByteArrayList typesFrom(FuzzedDataProvider &input, const QByteArrayList &right)
{
    if (input.ConsumeIntegralInRange(0, 3) != 3)
        return right;
    QByteArrayList types;
    for (qsizetype left = input.ConsumeIntegralInRange(0, 4); left > 0; --left) {
        const bool isOther = types.size() >= right.size() || input.ConsumeBool();
        types.append(isOther ? typeFrom(input, deepestType) : right[types.size()]);
    }
    return types;
}

Call callFrom(FuzzedDataProvider &input)
{
    Call call;
    call.method = &methods()[input.ConsumeIntegralInRange<size_t>(0, methods().size() - 1)];
    if (input.ConsumeIntegralInRange(0, 7) == 7)
        call.address =
            static_cast<Address>(input.ConsumeIntegralInRange(0, static_cast<int>(Address::Last)));
    call.wantsAnswer = input.ConsumeIntegralInRange(0, 7) != 7;
    const QByteArrayList types = typesFrom(input, call.method->in);
    call.hasRightTypes = types.join() == call.method->in.join();
    call.body = bodyFrom(input, types);
    return call;
}

BusMessage messageFor(const Call &call, FuzzedDataProvider &input)
{
    const char *interface = call.method->interface;
    if (call.address == Address::NoInterface)
        interface = nullptr;
    else if (call.address == Address::OtherInterface)
        interface = "org.caravel.Other";
    BusMessage message(g_dbus_message_new_method_call(
        ":1.1", call.method->path, interface,
        call.address == Address::OtherMember ? "noSuchMethod" : call.method->name));
    g_dbus_message_set_body(message.get(), call.body.get());
    if (!call.wantsAnswer)
        g_dbus_message_set_flags(message.get(), G_DBUS_MESSAGE_FLAGS_NO_REPLY_EXPECTED);
    g_dbus_message_set_byte_order(message.get(), input.ConsumeBool()
                                                     ? G_DBUS_MESSAGE_BYTE_ORDER_BIG_ENDIAN
                                                     : G_DBUS_MESSAGE_BYTE_ORDER_LITTLE_ENDIAN);
    return message;
}

// --- Promises

QByteArray expectedError(Address address)
{
    switch (address) {
    case Address::OtherInterface:
        return "org.freedesktop.DBus.Error.UnknownInterface";
    case Address::OtherMember:
        return "org.freedesktop.DBus.Error.UnknownMethod";
    default:
        return "org.freedesktop.DBus.Error.InvalidArgs";
    }
}

void checkRefusal(const Call &call, GDBusMessage *answer)
{
    promise(g_dbus_message_get_message_type(answer) == G_DBUS_MESSAGE_TYPE_ERROR,
            "a wrong call is refused");
    promise(!call.isServed() ||
                g_dbus_message_get_error_name(answer) == expectedError(call.address),
            "the refusal says what is wrong");
}

void checkAnswer(const Call &call, GDBusMessage *answer)
{
    promise(call.wantsAnswer || !call.isServed(), "who wants no answer has none");
    if (!call.isRight()) {
        checkRefusal(call, answer);
        return;
    }
    promise(g_dbus_message_get_message_type(answer) == G_DBUS_MESSAGE_TYPE_METHOD_RETURN,
            "a right call is answered");
    GVariant *body = g_dbus_message_get_body(answer);
    const QByteArray type = body ? g_variant_get_type_string(body) : "()";
    promise(type == '(' + QByteArray(call.method->out) + ')', "an answer has the declared type");
    if (call.isServed() && *call.method->out)
        promiseSame(plainOf(childOf(body, 0).get()),
                    sentAs(plainOf(childOf(call.body.get(), 0).get())),
                    "a value comes back as it went");
}

/// How many of the menu's items the call chooses.
int choicesOf(const Call &call)
{
    const QVariantList arguments = plainChildrenOf(call.body.get());
    if (call.isServed() || !call.isRight())
        return 0;
    if (std::strcmp(call.method->name, "Event") == 0)
        return Callees::choices(arguments[0].toInt(), arguments[1].toString());
    int choices = 0;
    if (std::strcmp(call.method->name, "EventGroup") == 0) {
        for (const QVariant &event : arguments[0].toList())
            choices += Callees::choices(event.toList()[0].toInt(), event.toList()[1].toString());
    }
    return choices;
}

using Calls = std::map<guint32, Call>; // by serial

void checkRequests(const Calls &calls, const std::vector<Request> &requests)
{
    auto request = requests.begin();
    for (const auto &[serial, call] : calls) {
        if (!call.isServed() || !call.isRight())
            continue;
        promise(request != requests.end() && request->method == QLatin1String(call.method->name),
                "a right call reaches its method");
        promiseSame(request->request.arguments, plainChildrenOf(call.body.get()),
                    "arguments arrive as plain values");
        promise(request->request.caller == QLatin1String(PlayedBus::sender),
                "a call tells its caller");
        ++request;
    }
    promise(request == requests.end(), "a wrong call reaches nothing");
}

// --- Between the two

void serveUntilEnd(Callees &callees)
{
    while (!callees.hasEnded)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(); // a menu's choices come last
}

/// Up to the one to the last call.
void checkAnswers(PlayedBus &bus, const Calls &calls, guint32 last)
{
    std::map<guint32, int> answers;
    for (guint32 answered = 0; answered != last;) {
        const BusMessage message = bus.receive();
        answered = g_dbus_message_get_reply_serial(message.get());
        if (const auto call = calls.find(answered); call != calls.end()) {
            ++answers[answered];
            checkAnswer(call->second, message.get());
        }
    }
    for (const auto &[serial, call] : calls)
        promise(answers[serial] == 1 || (!call.wantsAnswer && answers[serial] <= 1),
                "there is one answer to a call");
}

guint32 sendEnd(PlayedBus &bus)
{
    const BusMessage end(
        g_dbus_message_new_method_call(":1.1", servedPath, servedInterface, "end"));
    return bus.send(end.get());
}

void exchange(PlayedBus &bus, FuzzedDataProvider &input)
{
    Callees callees; // made anew: QtDBus remembers every signature that an object was called with
    Calls calls;
    int choices = 0;
    for (int left = 8; left > 0 && input.remaining_bytes() > 0; --left) {
        Call call = callFrom(input);
        choices += choicesOf(call);
        const BusMessage message = messageFor(call, input);
        calls.emplace(bus.send(message.get()), std::move(call));
    }
    const guint32 last = sendEnd(bus);
    serveUntilEnd(callees);
    checkRequests(calls, callees.requests);
    promise(callees.chosen == choices, "a menu's items are chosen by their events alone");
    checkAnswers(bus, calls, last);
}

/// Until it is served for the first time, a connection may give out messages in any order.
PlayedBus &joinedBus()
{
    static PlayedBus bus;
    Callees callees;
    sendEnd(bus);
    serveUntilEnd(callees);
    return bus;
}

QCoreApplication &makeApplication()
{
    static int argc = 1;
    static char name[] = "fuzzer";
    static char *argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);
    return application;
}

} // namespace

// Nested values are made and freed from more places than can all be kept at length.
extern "C" const char *__asan_default_options()
{
    return "malloc_context_size=8:quarantine_size_mb=64";
}

// Calls that come over the bus, of any types: from the bytes on the socket to the methods that they
// are for, and back.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QCoreApplication &application = makeApplication();
    Q_UNUSED(application)
    static PlayedBus &bus = joinedBus();
    FuzzedDataProvider input(data, size);
    exchange(bus, input);
    return 0;
}
