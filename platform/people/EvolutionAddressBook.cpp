#include "platform/people/own/EvolutionAddressBook.h"

#include "platform/core/Log.h"
#include "platform/people/own/VCardPerson.h"

#include <algorithm>
#include <condition_variable>
#include <functional>
#include <iterator>
#include <libebook/libebook.h>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace {

struct Unref
{
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename T>
using Ref = std::unique_ptr<T, Unref>;

// Asks for a client at once, however far the book's own service has come.
constexpr auto noWait = static_cast<guint32>(-1);

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

    /// Says what failed, unless nobody waits any more. Takes the error.
    void fail(const char *what, const QString &which, GError *error)
    {
        const std::unique_ptr<GError, decltype(&g_error_free)> owned(error, &g_error_free);
        const std::scoped_lock lock(m_mutex);
        if (!m_isAbandoned)
            qCWarning(lcPlatform, "%s%s: %s", what, qUtf8Printable(which),
                      error ? error->message : "no reason given");
    }

    void finish()
    {
        const std::scoped_lock lock(m_mutex);
        m_isFinished = true;
        m_finished.notify_all();
    }

    std::vector<Person> wait(std::chrono::milliseconds limit)
    {
        std::unique_lock lock(m_mutex);
        if (!m_finished.wait_for(lock, limit, [this] { return m_isFinished; })) {
            qCWarning(lcPlatform,
                      "The address book service took longer than %lld ms: "
                      "contacts are missing",
                      static_cast<long long>(limit.count()));
            m_isAbandoned = true;
            g_cancellable_cancel(m_cancellable.get());
        }
        std::vector<Person> all;
        for (auto &[book, people] : std::exchange(m_people, {}))
            std::ranges::move(people, std::back_inserter(all));
        return all;
    }

private:
    const Ref<GCancellable> m_cancellable{g_cancellable_new()};

    std::mutex m_mutex; // guards what follows
    std::condition_variable m_finished;
    std::map<size_t, std::vector<Person>> m_people; // by book
    bool m_isFinished = false;
    bool m_isAbandoned = false;
};

/// The contexts of libebook's objects stay with the thread that made them.
class ThreadContext
{
public:
    ThreadContext() { g_main_context_push_thread_default(m_context); }
    ~ThreadContext()
    {
        // What the objects left to be called here frees their subscriptions to the bus's signals.
        while (g_main_context_iteration(m_context, FALSE)) {
        }
        g_main_context_pop_thread_default(m_context);
        g_main_context_unref(m_context);
    }
    ThreadContext(const ThreadContext &) = delete;
    ThreadContext &operator=(const ThreadContext &) = delete;

private:
    GMainContext *const m_context = g_main_context_new();
};

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
    const ThreadContext context;
    const QString name = QString::fromUtf8(e_source_get_display_name(source));
    GError *error = nullptr;
    const Ref<EClient> client(
        e_book_client_connect_sync(source, noWait, reading.cancellable(), &error));
    if (!client) {
        reading.fail("Can't open the address book ", name, error);
        return;
    }
    GSList *contacts = nullptr;
    if (e_book_client_get_contacts_sync(E_BOOK_CLIENT(client.get()),
                                        "(contains \"x-evolution-any-field\" \"\")", &contacts,
                                        reading.cancellable(), &error))
        reading.add(book, peopleIn(contacts));
    else
        reading.fail("Can't read the address book ", name, error);
    g_slist_free_full(contacts, g_object_unref);
}

void readBooks(Reading &reading)
{
    const ThreadContext context;
    GError *error = nullptr;
    const Ref<GDBusConnection> bus(
        g_bus_get_sync(G_BUS_TYPE_SESSION, reading.cancellable(), &error));
    if (!bus) {
        reading.fail("The address book service can't be reached", {}, error);
        return;
    }
    // Else a bus that goes would end this process.
    g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    const Ref<ESourceRegistry> registry(e_source_registry_new_sync(reading.cancellable(), &error));
    if (!registry) {
        reading.fail("The address book service can't be reached", {}, error);
        return;
    }
    GList *const sources =
        e_source_registry_list_enabled(registry.get(), E_SOURCE_EXTENSION_ADDRESS_BOOK);
    // Side by side, so that one whose server doesn't answer holds up none of the others.
    std::vector<std::thread> books;
    for (GList *each = sources; each; each = each->next)
        books.emplace_back(readBook, books.size(), E_SOURCE(each->data), std::ref(reading));
    for (std::thread &book : books)
        book.join();
    g_list_free_full(sources, g_object_unref);
}

} // namespace

std::vector<Person> evolutionPeople(std::chrono::milliseconds limit)
{
    // A thread that can be left behind: not every call of the library's can be cancelled.
    const auto reading = std::make_shared<Reading>();
    std::thread([reading] {
        readBooks(*reading);
        reading->finish();
    }).detach();
    return reading->wait(limit);
}
