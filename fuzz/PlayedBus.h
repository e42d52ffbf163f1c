#pragma once

#include "fuzz/Home.h"

#include <QDBusConnection>

#include <gio/gio.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <thread>
#include <vector>

struct Unreference
{
    void operator()(GDBusMessage *message) const { g_object_unref(message); }
    void operator()(GVariant *value) const { g_variant_unref(value); }
};
using BusMessage = std::unique_ptr<GDBusMessage, Unreference>;
using BusValue = std::unique_ptr<GVariant, Unreference>;

/// This process's session bus, played by the process itself: what it sends reaches the connection
/// as bytes on its socket, and what the connection sends comes back. One per process, and made
/// before anything asks for the session bus. Main thread.
class PlayedBus
{
public:
    PlayedBus()
    {
        const std::string path = (Home::instance() / QStringLiteral("bus")).toStdString();
        sockaddr_un address{};
        promise(path.size() < sizeof address.sun_path, "the bus has a short name");
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, path.size());
        m_listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        promise(::bind(m_listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) ==
                        0 &&
                    ::listen(m_listener, 1) == 0,
                "the bus is set up");
        qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray("unix:path=").append(path.c_str()));
        // Connecting waits for the greeting.
        std::thread greeter([this] { greet(); });
        promise(QDBusConnection::sessionBus().isConnected(), "the bus is joined");
        greeter.join();
    }
    ~PlayedBus()
    {
        ::close(m_peer);
        ::close(m_listener);
    }
    PlayedBus(const PlayedBus &) = delete;
    PlayedBus &operator=(const PlayedBus &) = delete;

    /// Gives the message the next serial and the sender's name, and returns the serial.
    guint32 send(GDBusMessage *message)
    {
        g_dbus_message_set_serial(message, ++m_serial);
        g_dbus_message_set_sender(message, sender);
        gsize size = 0;
        guchar *blob =
            g_dbus_message_to_blob(message, &size, G_DBUS_CAPABILITY_FLAGS_NONE, nullptr);
        promise(blob, "the message can be written");
        write(blob, size);
        g_free(blob);
        return m_serial;
    }

    /// Waits for the next message of the connection's.
    BusMessage receive()
    {
        std::vector<guchar> blob(16); // tells how long it is
        read(blob.data(), blob.size());
        const gssize size = g_dbus_message_bytes_needed(blob.data(), blob.size(), nullptr);
        promise(size >= 16, "messages begin as they must");
        blob.resize(static_cast<size_t>(size));
        read(blob.data() + 16, blob.size() - 16);
        BusMessage message(g_dbus_message_new_from_blob(blob.data(), blob.size(),
                                                        G_DBUS_CAPABILITY_FLAGS_NONE, nullptr));
        promise(message != nullptr, "messages are well-formed");
        return message;
    }

    static constexpr const char *sender = ":1.7";

private:
    void greet()
    {
        m_peer = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        promise(readLine().find("AUTH EXTERNAL") != std::string::npos, "it says who it is");
        write("OK 0123456789abcdef0123456789abcdef\r\n");
        if (readLine() != "BEGIN") { // it wants to pass descriptors
            write("AGREE_UNIX_FD\r\n");
            readLine();
        }
        const BusMessage hello = receive();
        const BusMessage answer(g_dbus_message_new_method_reply(hello.get()));
        g_dbus_message_set_body(answer.get(), g_variant_new("(s)", ":1.1"));
        send(answer.get());
    }

    std::string readLine()
    {
        std::string line;
        for (char next = 0; line.find("\r\n") == std::string::npos; line += next)
            read(&next, 1);
        return line.substr(0, line.size() - 2);
    }

    void read(void *bytes, size_t size)
    {
        auto *at = static_cast<char *>(bytes);
        while (size > 0) {
            const ssize_t count = TEMP_FAILURE_RETRY(::recv(m_peer, at, size, 0));
            promise(count > 0, "the connection stays open");
            at += count;
            size -= static_cast<size_t>(count);
        }
    }

    void write(const std::string &text) { write(text.data(), text.size()); }
    void write(const void *bytes, size_t size)
    {
        const auto *at = static_cast<const char *>(bytes);
        while (size > 0) {
            const ssize_t count = TEMP_FAILURE_RETRY(::send(m_peer, at, size, MSG_NOSIGNAL));
            promise(count > 0, "the connection takes messages");
            at += count;
            size -= static_cast<size_t>(count);
        }
    }

    int m_listener = -1;
    int m_peer = -1;
    guint32 m_serial = 0;
};
