#include "platform/people/own/EvolutionAddressBook.h"

#include "platform/core/Log.h"
#include "platform/core/MainThread.h"
#include "platform/core/own/Glib.h"
#include "platform/files/FileManager.h"
#include "platform/people/own/VCardPerson.h"

#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <condition_variable>
#include <iterator>
#include <latch>
#include <libebook/libebook.h>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

using Glib::Ref;

namespace {

// Asks for a client at once, however far the book's own service has come.
constexpr auto noWait = static_cast<guint32>(-1);

constexpr char noService[] = "The address book service can't be reached";
constexpr char cantRead[] = "Can't read the address book ";

/// What the reading thread and the one that waits for it share.
class Reading
{
public:
    GCancellable *cancellable() const { return m_cancellable.get(); }

    void add(size_t book, std::vector<Person> people)
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_isAbandoned)
            m_people[book] = std::move(people);
    }

    enum class Service { Installed, Missing };

    /// Says what failed, unless nobody waits any more. Takes the error.
    void fail(const char *what, const QString &which, GError *error,
              Service service = Service::Installed)
    {
        const std::unique_ptr<GError, decltype(&g_error_free)> owned(error, &g_error_free);
        const std::scoped_lock lock(m_mutex);
        if (m_isAbandoned)
            return;
        const char *const reason = error ? error->message : "no reason given";
        qCWarning(lcPlatform, "%s%s: %s", what, qUtf8Printable(which), reason);
        // Where there is no session, there is no service either.
        if (service == Service::Installed && qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
            m_unreadable =
                FileError{FileError::Operation::Read, which, 0, QString::fromUtf8(reason)};
    }

    void finish()
    {
        const std::scoped_lock lock(m_mutex);
        m_isFinished = true;
        m_finished.notify_all();
    }

    People wait(std::chrono::milliseconds limit)
    {
        std::unique_lock lock(m_mutex);
        if (!m_finished.wait_for(lock, limit, [this] { return m_isFinished; }))
            abandon(limit);
        People all{{}, std::exchange(m_unreadable, {})};
        for (auto &[book, people] : std::exchange(m_people, {}))
            std::ranges::move(people, std::back_inserter(all.people));
        return all;
    }

private:
    void abandon(std::chrono::milliseconds limit)
    {
        const QString said =
            QStringLiteral("The address book service took longer than %1 ms").arg(limit.count());
        qCWarning(lcPlatform).noquote().nospace() << said << ": contacts are missing";
        m_unreadable = FileError{FileError::Operation::Read, {}, 0, said};
        m_isAbandoned = true;
        g_cancellable_cancel(m_cancellable.get());
    }

    const Ref<GCancellable> m_cancellable{g_cancellable_new()};

    std::mutex m_mutex; // guards what follows
    std::condition_variable m_finished;
    std::map<size_t, std::vector<Person>> m_people; // by book
    std::optional<FileError> m_unreadable;
    bool m_isFinished = false;
    bool m_isAbandoned = false;
};

QString nameOf(ESource *source)
{
    return QString::fromUtf8(e_source_get_display_name(source));
}

std::vector<Person> peopleIn(GSList *contacts)
{
    std::vector<Person> people;
    for (GSList *each = contacts; each; each = each->next) {
        auto person = personOf(E_VCARD(each->data));
        if (person && !person->uid.isEmpty())
            people.push_back(std::move(*person));
    }
    return people;
}

void readBook(size_t book, ESource *source, Reading &reading)
{
    const Glib::ThreadContext context; // libebook's objects stay with theirs
    GError *error = nullptr;
    const Ref<EClient> client(
        e_book_client_connect_sync(source, noWait, reading.cancellable(), &error));
    if (!client) {
        reading.fail("Can't open the address book ", nameOf(source), error);
        return;
    }
    GSList *contacts = nullptr;
    if (e_book_client_get_contacts_sync(E_BOOK_CLIENT(client.get()),
                                        "(contains \"x-evolution-any-field\" \"\")", &contacts,
                                        reading.cancellable(), &error))
        reading.add(book, peopleIn(contacts));
    else
        reading.fail(cantRead, nameOf(source), error);
    g_slist_free_full(contacts, g_object_unref);
}

GError *because(const char *reason)
{
    return g_error_new_literal(G_IO_ERROR, G_IO_ERROR_FAILED, reason);
}

/// Side by side, so that one whose server doesn't answer holds up none of the others.
void readSideBySide(GList *sources, Reading &reading)
{
    const auto unread = std::make_shared<std::latch>(g_list_length(sources));
    size_t book = 0;
    for (GList *each = sources; each; each = each->next, ++book) {
        ESource *const source = E_SOURCE(each->data);
        const auto read = [book, source, &reading, unread] {
            readBook(book, source, reading);
            unread->count_down();
        };
        const bool isRead = Workers::start(read, Workers::AtQuit::Leave);
        if (!isRead) {
            reading.fail(cantRead, nameOf(source), because("there is no thread for it"));
            unread->count_down();
        }
    }
    unread->wait();
}

/// One that runs has sources of its own, whatever the user enabled.
bool listsAnything(ESourceRegistry *registry)
{
    GList *const all = e_source_registry_list_sources(registry, nullptr);
    g_list_free_full(all, g_object_unref);
    return all != nullptr;
}

/// The file that tells the bus of a service comes in another package than its program.
bool hasProgram(const QString &service)
{
    const QString file =
        QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                               QStringLiteral("dbus-1/services/%1.service").arg(service));
    const QSettings entry(file, QSettings::IniFormat);
    const QString command = entry.value(QStringLiteral("D-BUS Service/Exec")).toString();
    return command.isEmpty() || files().exists(QProcess::splitCommand(command).value(0));
}

bool hasService(GDBusConnection *bus, GCancellable *cancellable)
{
    constexpr char daemon[] = "org.freedesktop.DBus";
    GVariant *const answer = g_dbus_connection_call_sync(
        bus, daemon, "/org/freedesktop/DBus", daemon, "ListActivatableNames", nullptr,
        G_VARIANT_TYPE("(as)"), G_DBUS_CALL_FLAGS_NONE, -1, cancellable, nullptr);
    if (!answer)
        return true; // nothing says that there is none
    bool isListed = false;
    GVariantIter *names = nullptr;
    const char *name = nullptr;
    g_variant_get(answer, "(as)", &names);
    while (g_variant_iter_next(names, "&s", &name))
        isListed = isListed || (g_str_has_prefix(name, "org.gnome.evolution.dataserver.Sources") &&
                                hasProgram(QString::fromUtf8(name)));
    g_variant_iter_free(names);
    g_variant_unref(answer);
    return isListed;
}

/// The connection that all in this process share. Kept: without one, a thread of the library's that
/// still works makes another, and a bus that goes ends a process whose connection wasn't told not
/// to.
Ref<GDBusConnection> sessionBus(GCancellable *cancellable, GError **error)
{
    static std::mutex mutex;
    static Ref<GDBusConnection> kept;
    const std::scoped_lock lock(mutex);
    if (!kept || g_dbus_connection_is_closed(kept.get())) {
        kept = {};
        kept = Ref<GDBusConnection>(g_bus_get_sync(G_BUS_TYPE_SESSION, cancellable, error));
        if (kept)
            g_dbus_connection_set_exit_on_close(kept.get(), FALSE);
    }
    return kept;
}

void readBooks(Reading &reading)
{
    const Glib::ThreadContext context; // libebook's objects stay with theirs
    GError *error = nullptr;
    const Ref<GDBusConnection> bus = sessionBus(reading.cancellable(), &error);
    if (!bus) {
        reading.fail(noService, {}, error);
        return;
    }
    const Ref<ESourceRegistry> registry(e_source_registry_new_sync(reading.cancellable(), &error));
    if (!registry) {
        const bool isThere = hasService(bus.get(), reading.cancellable());
        reading.fail(noService, {}, error,
                     isThere ? Reading::Service::Installed : Reading::Service::Missing);
        return;
    }
    GList *const sources =
        e_source_registry_list_enabled(registry.get(), E_SOURCE_EXTENSION_ADDRESS_BOOK);
    // To the library a service that hangs is like one that isn't there.
    if (!sources && !listsAnything(registry.get()) && hasService(bus.get(), reading.cancellable()))
        reading.fail(noService, {}, because("it lists nothing"));
    readSideBySide(sources, reading);
    g_list_free_full(sources, g_object_unref);
}

} // namespace

People evolutionPeople(std::chrono::milliseconds limit)
{
    // A thread that can be left behind: not every call of the library's can be cancelled.
    const auto reading = std::make_shared<Reading>();
    const auto read = [reading] {
        readBooks(*reading);
        reading->finish();
    };
    const bool isRead = Workers::start(read, Workers::AtQuit::Leave);
    if (!isRead) {
        reading->fail(noService, {}, because("there is no thread for it"));
        reading->finish();
    }
    return reading->wait(limit);
}
