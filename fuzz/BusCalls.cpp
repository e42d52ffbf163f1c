#include "fuzz/BusCalls.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QRegularExpression>

#include <algorithm>
#include <latch>
#include <thread>

namespace {

/// Greets who joins; nobody else is on this bus.
GDBusMessage *answerCall(GDBusConnection *bus, GDBusMessage *message, gboolean isIncoming, gpointer)
{
    if (!isIncoming || g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL)
        return message;
    GDBusMessage *answer = nullptr;
    if (g_strcmp0(g_dbus_message_get_member(message), "Hello") == 0) {
        answer = g_dbus_message_new_method_reply(message);
        g_dbus_message_set_body(answer, g_variant_new("(s)", ":1.1"));
    } else {
        answer = g_dbus_message_new_method_error_literal(
            message, "org.freedesktop.DBus.Error.ServiceUnknown", "nobody is here");
    }
    g_dbus_connection_send_message(bus, answer, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
    g_object_unref(answer);
    g_object_unref(message);
    return nullptr;
}

gboolean takePeer(GDBusServer *, GDBusConnection *connection, gpointer peer)
{
    g_dbus_connection_add_filter(connection, answerCall, nullptr, nullptr);
    *static_cast<GDBusConnection **>(peer) = G_DBUS_CONNECTION(g_object_ref(connection));
    return TRUE;
}

/// Whether a bus lets it through: none knows "maybe", empty structures, or entries outside of
/// dictionaries, and depth has an end.
bool isSendable(GVariant *value, int depth = 0)
{
    static const QRegularExpression foreign(QStringLiteral("m|\\(\\)|(?<!a)\\{|.{30}"));
    if (!g_variant_is_container(value))
        return true;
    bool isFine = depth < 30;
    for (gsize i = 0; isFine && i < g_variant_n_children(value); ++i) {
        GVariant *child = g_variant_get_child_value(value, i);
        const bool isInner = depth == 0 || g_variant_is_of_type(value, G_VARIANT_TYPE_VARIANT);
        const QString type = QString::fromLatin1(g_variant_get_type_string(child));
        isFine = !(isInner && foreign.match(type).hasMatch()) && isSendable(child, depth + 1);
        g_variant_unref(child);
    }
    return isFine;
}

/// Of the type where the text can be read as one; else of whatever type it has; else null.
GVariant *parsed(const QByteArray &text, const QByteArray &type)
{
    if (!g_utf8_validate(text.constData(), text.size(), nullptr))
        return nullptr;
    const GVariantType *wanted = G_VARIANT_TYPE(type.constData());
    GVariant *value = g_variant_parse(wanted, text.constData(), nullptr, nullptr, nullptr);
    if (!value)
        value = g_variant_parse(nullptr, text.constData(), nullptr, nullptr, nullptr);
    if (value && g_variant_is_of_type(value, G_VARIANT_TYPE_TUPLE) && isSendable(value))
        return value;
    g_clear_pointer(&value, g_variant_unref);
    return nullptr;
}

void checkAnswer(GDBusMessage *answer, const CalledMethod &called, bool isRight)
{
    promise(answer, "a call has an answer");
    const bool isError = g_dbus_message_get_message_type(answer) == G_DBUS_MESSAGE_TYPE_ERROR;
    promise(isRight != isError, "right calls are answered and wrong ones refused");
    GVariant *body = g_dbus_message_get_body(answer);
    const char *type = body ? g_variant_get_type_string(body) : "()";
    promise(isError || type == '(' + called.out + ')', "an answer has the declared type");
}

} // namespace

// The bus's threads let go of messages when they find the time; after each input that looks as if
// it had lost some, and looking closer takes longer than everything else.
extern "C" int __lsan_is_turned_off()
{
    return 1;
}

BusCalls::BusCalls()
{
    static int argc = 1;
    static char name[] = "fuzzer";
    static char *argv[] = {name, nullptr};
    static auto *const application = new QCoreApplication(argc, argv); // outlives every worker
    Q_UNUSED(application)
    const QByteArray address =
        "unix:path=" + (Home::instance() / QStringLiteral("../bus")).toUtf8();
    std::latch isReady(1);
    // Joining waits for the greeting.
    std::thread greeter([&] {
        g_main_context_push_thread_default(g_main_context_new());
        GDBusServer *server =
            g_dbus_server_new_sync(address.constData(), G_DBUS_SERVER_FLAGS_NONE,
                                   "0123456789abcdef0123456789abcdef", nullptr, nullptr, nullptr);
        promise(server, "the bus is set up");
        g_signal_connect(server, "new-connection", G_CALLBACK(takePeer), &m_peer);
        g_dbus_server_start(server);
        isReady.count_down();
        while (!m_peer)
            g_main_context_iteration(g_main_context_get_thread_default(), TRUE);
    });
    isReady.wait();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    promise(QDBusConnection::sessionBus().isConnected(), "the bus is joined");
    greeter.join();
}

GDBusMessage *BusCalls::answerTo(GDBusMessage *call)
{
    GAsyncResult *result = nullptr;
    const auto take = [](GObject *, GAsyncResult *given, gpointer taken) {
        *static_cast<GAsyncResult **>(taken) = G_ASYNC_RESULT(g_object_ref(given));
    };
    constexpr int limit = 15000; // ms
    g_dbus_connection_send_message_with_reply(m_peer, call, G_DBUS_SEND_MESSAGE_FLAGS_NONE, limit,
                                              nullptr, nullptr, take, &result);
    while (!result)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    GDBusMessage *answer =
        g_dbus_connection_send_message_with_reply_finish(m_peer, result, nullptr);
    g_object_unref(result);
    return answer;
}

void BusCalls::makeOne(const QByteArray &line, const std::vector<CalledMethod> &methods)
{
    const bool isOtherOrder = line.startsWith('>');
    const bool isSilent = line.startsWith('!');
    const qsizetype end = line.indexOf(' ');
    const QByteArray name = line.left(end).mid(isOtherOrder || isSilent ? 1 : 0);
    const auto method = std::ranges::find(methods, name, &CalledMethod::name);
    if (end < 0 || method == methods.end())
        return;
    const QByteArray type = '(' + method->in + ')';
    GVariant *arguments = parsed(line.mid(end + 1), type);
    if (!arguments)
        return;
    GDBusMessage *call = g_dbus_message_new_method_call(":1.1", method->path, method->interface,
                                                        method->name.constData());
    g_dbus_message_set_sender(call, ":1.7");
    g_dbus_message_set_body(call, arguments);
    if (isOtherOrder)
        g_dbus_message_set_byte_order(call, G_DBUS_MESSAGE_BYTE_ORDER_BIG_ENDIAN);
    if (isSilent) {
        g_dbus_message_set_flags(call, G_DBUS_MESSAGE_FLAGS_NO_REPLY_EXPECTED);
        g_dbus_connection_send_message(m_peer, call, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr,
                                       nullptr);
    } else {
        GDBusMessage *answer = answerTo(call);
        checkAnswer(answer, *method, type == g_variant_get_type_string(arguments));
        g_object_unref(answer);
    }
    g_object_unref(call);
}

void BusCalls::make(const QByteArray &lines, const std::vector<CalledMethod> &methods,
                    const std::function<void()> &rest)
{
    for (const QByteArray &line : lines.split('\n')) {
        if (!line.isEmpty())
            makeOne(line, methods);
        else if (rest)
            rest();
    }
}
