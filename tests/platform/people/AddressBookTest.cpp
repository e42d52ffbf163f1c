#include "platform/people/AddressBook.h"

#include "platform/people/own/EvolutionAddressBook.h"
#include "platform/people/own/VCardAddressBook.h"
#include "support/PrivateBus.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <csignal>
#include <gtest/gtest.h>
#include <libebook/libebook.h>
#include <memory>

namespace {

using namespace std::chrono_literals;

QString labelText(ContactLabel label)
{
    static const char *const texts[] = {"other", "work",    "home",    "mobile",
                                        "main",  "homefax", "workfax", "pager"};
    return QString::fromLatin1(texts[static_cast<size_t>(label)]);
}

QString joined(const std::vector<Labelled<QString>> &entries)
{
    QStringList texts;
    for (const auto &entry : entries)
        texts.append(labelText(entry.label) + u'=' + entry.value);
    return texts.join(u',');
}

/// All that is known of somebody but the UID, on one line: "first|last|organization|…".
QString described(const Person &person)
{
    QStringList parts{person.firstName.value_or(QString()), person.lastName.value_or(QString()),
                      person.organization.value_or(QString()), joined(person.phones)};
    if (person.primaryPhone > 0)
        parts.last() += u'#' + QString::number(person.primaryPhone);
    parts.append(joined(person.emails));
    for (const auto &service : person.instantMessaging)
        parts.append(joined(service));
    for (const auto &[label, address] : person.addresses)
        parts.append(
            labelText(label) + u'=' +
            QStringList{address.street, address.city, address.state, address.zip, address.country}
                .join(u'/'));
    parts.append(person.note.value_or(QString()));
    const QByteArray image = person.image.file.startsWith(u"/tmp/a ") ? "" : person.image.data();
    parts.append(image.isEmpty() ? person.image.file : QString::fromLatin1(image));
    while (!parts.isEmpty() && parts.last().isEmpty())
        parts.removeLast();
    return parts.join(u'|');
}

QByteArray card(const QByteArray &lines)
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\n" + lines + "END:VCARD\r\n";
}

class VCards : public testing::Test
{
protected:
    const TemporaryFolder folder;

    std::string read(const QByteArray &text) const
    {
        writeFile(folder / "some.vcf", text);
        QStringList lines;
        for (const Person &person : vCardPeople(folder.path()).people)
            lines.append(described(person));
        return lines.isEmpty() ? "nobody" : lines.join(u'\n').toStdString();
    }
};

} // namespace

TEST_F(VCards, AreReadInTheirThreeVersions)
{
    const std::pair<QByteArray, const char *> cases[] = {
        {"N:Lovelace;Ada;King;;\nORG:Engines;Analytical\nFN:ignored\n", "Ada|Lovelace|Engines"},
        {"FN:Ada King Lovelace\n", "Ada King|Lovelace"},
        {"item1.TEL;TYPE=WORK,VOICE:1\nTEL;TYPE=HOME:2\nTEL;TYPE=cell:3\nTEL;TYPE=MAIN:4\n"
         "TEL;TYPE=HOME;TYPE=FAX:5\nTEL;TYPE=\"work,fax\":6\nTEL;TYPE=PAGER:7\nTEL;TYPE=FAX:8\n"
         "TEL:9\nTEL;TYPE=X-BOAT:10\n",
         "|||work=1,home=2,mobile=3,main=4,homefax=5,workfax=6,pager=7,other=8,other=9,other=10"},
        {"TEL;HOME;VOICE:1\nTEL;WORK;PREF:2\nTEL;CELL;PREF:3\n", "|||home=1,work=2,mobile=3#1"},
        {"TEL;PREF=20;VALUE=uri:tel:+1\nTEL;PREF=3:2\n", "|||other=+1,other=2#1"},
        {"EMAIL;TYPE=INTERNET;TYPE=WORK:a@b\nEMAIL:c@d\n", "||||work=a@b,other=c@d"},
        {"X-AIM;TYPE=HOME:a\nX-ICQ:1\nIMPP;TYPE=WORK:xmpp:j%40k\nX-JABBER:j@k\nIMPP:msnim:m\n"
         "X-YAHOO;TYPE=WORK:y\nIMPP:sip:none\n",
         "|||||home=a|other=1|work=j@k|other=m|work=y"},
        {"ADR;TYPE=WORK;TYPE=HOME:;;1 High St;Town;Shire;AB1;UK\nADR:;;;;;;\n",
         "||||||||||home=1 High St/Town/Shire/AB1/UK"},
        {"NOTE:one\\ntwo\\, three\\; four\n", "||||||||||one\ntwo, three; four"},
        {"N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:M=C3=BCller;J=\nan;;;\n", "Jan|Müller"},
        {"N;CHARSET=ISO-8859-2:Ha\xB9"
         "ek;Jan;;;\n",
         "Jan|Hašek"},
        {"N;CHARSET=KLINGON:M\xFCller;Jan\n", "Jan|Müller"},
        {"PHOTO;JPEG;ENCODING=BASE64:\n aGVs\n bG8=\n\nTEL:1\n", "|||other=1||||||||hello"},
        {"PHOTO:data:image/jpeg;base64,aGVsbG8=\n", "|||||||||||hello"},
        {"PHOTO;VALUE=uri:file:///tmp/a%20b.png\n", "|||||||||||/tmp/a b.png"},
        {"AGENT:\nBEGIN:VCARD\nFN:Agent\nEND:VCARD\nFN:Ada\n", "Ada"},
        {"KIND:group\nFN:Friends\n", "nobody"},
    };
    for (const auto &[lines, person] : cases)
        EXPECT_EQ(read(card(lines)), person) << lines.constData();
}

TEST_F(VCards, AreReadAsFarAsBrokenOnesGo)
{
    const QByteArray good = card("FN:Ada\r\nTEL:1\r\n");
    const struct
    {
        QByteArray text;
        const char *people;
        bool isSaid = false;
    } cases[] = {
        {QByteArray(good).replace("\r\n", "\r"), "Ada|||other=1"},
        {"\xEF\xBB\xBF" + good.trimmed(), "Ada|||other=1"},
        {"some\r\n" + good.toLower() + "noise", "ada|||other=1"},
        {QByteArray(good).replace("TEL:1", QByteArray("TEL\0:1", 6)), "Ada|||other=1"},
        {card("FN:A\r\nda\r\nTEL:1\r\n"), "Ada|||other=1"},
        {"BEGIN:VCARD\r\nFN:Bob\r\n" + good, "Bob\nAda|||other=1"},
        {good.chopped(13), "Ada|||other=1", true},
        {card({}), ""},
        {{}, "nobody", true},
        {QByteArray(65 << 20, 'x'), "nobody", true},
    };
    for (const auto &c : cases) {
        const SystemLogCapture log;
        EXPECT_EQ(read(c.text), c.people);
        EXPECT_EQ(log.contains(folder / "some.vcf"), c.isSaid) << c.text.left(200).constData();
    }
}

TEST_F(VCards, KeepTheirUidFromRunToRun)
{
    writeFile(folder / "b/two.VCF", card("UID:u1\r\nFN:Ada\r\n") + card("FN:Bob\r\n"));
    writeFile(folder / "a.vcf", card("FN:Cleo\r\n"));
    writeFile(folder / ".hidden.vcf", card("FN:Nobody\r\n"));
    writeFile(folder / "readme.txt", card("FN:Nobody\r\n"));
    const auto [people, unreadable] = vCardPeople(folder.path());
    ASSERT_EQ(people.size(), 3U);
    EXPECT_EQ(people[0].firstName, QStringLiteral("Cleo"));
    EXPECT_EQ(people[1].uid, QStringLiteral("u1"));
    EXPECT_FALSE(people[2].uid.isEmpty() || people[0].uid == people[2].uid);
    EXPECT_EQ(vCardPeople(folder.path()).people[2].uid, people[2].uid);
    EXPECT_TRUE(vCardPeople(folder / "missing").people.empty());
}

// --- The desktop's service

namespace {

constexpr char bookFactory[] = "/usr/libexec/evolution-addressbook-factory";

/// A session with a home of its own, on whose bus the real service starts when it is asked for.
class AddressBookService : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        home = std::make_unique<TemporaryFolder>();
        qputenv("HOME", QFile::encodeName(home->path()));
        qputenv("XDG_DATA_DIRS",
                QFile::encodeName(*home / "data") + ":/usr/local/share:/usr/share");
        // One for all tests: GIO keeps the connection that it has made first.
        bus = std::make_unique<PrivateBus>();
    }
    static void TearDownTestSuite()
    {
        bus.reset();
        home.reset();
    }

    void SetUp() override
    {
        if (!QFile::exists(QString::fromLatin1(bookFactory)))
            GTEST_SKIP() << "evolution-data-server is not installed";
    }

    /// Into the user's own book, as the desktop's programs do it.
    static void add(const QByteArray &card)
    {
        GError *error = nullptr;
        ESourceRegistry *registry = e_source_registry_new_sync(nullptr, &error);
        ASSERT_NE(registry, nullptr) << error->message;
        ESource *source = e_source_registry_ref_builtin_address_book(registry);
        EClient *client = e_book_client_connect_sync(source, guint32(-1), nullptr, &error);
        ASSERT_NE(client, nullptr) << error->message;
        EContact *contact = e_contact_new_from_vcard(card.constData());
        EXPECT_TRUE(e_book_client_add_contact_sync(E_BOOK_CLIENT(client), contact, 0, nullptr,
                                                   nullptr, &error))
            << (error ? error->message : "");
        for (gpointer object :
             {gpointer(contact), gpointer(client), gpointer(source), gpointer(registry)})
            g_object_unref(object);
    }

    static void reloadBus()
    {
        constexpr char daemon[] = "org.freedesktop.DBus";
        GDBusConnection *connection = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
        g_variant_unref(g_dbus_connection_call_sync(connection, daemon, "/", daemon, "ReloadConfig",
                                                    nullptr, nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
                                                    nullptr, nullptr));
        g_object_unref(connection);
    }

    /// Sends a signal to the process that serves the books.
    static void signalFactory(int signal)
    {
        for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
            const QString process = QStringLiteral("/proc/") + name;
            if (readFile(process + QStringLiteral("/cmdline")).startsWith(bookFactory) &&
                readFile(process + QStringLiteral("/environ"))
                    .contains(qgetenv("DBUS_SESSION_BUS_ADDRESS")))
                ::kill(name.toInt(), signal);
        }
    }

    static inline std::unique_ptr<TemporaryFolder> home;
    static inline std::unique_ptr<PrivateBus> bus;
};

} // namespace

TEST_F(AddressBookService, MayBeMissingThoughItsFileIsThere)
{
    const QString entry =
        *home / "data/dbus-1/services/org.gnome.evolution.dataserver.Sources5.service";
    writeFile(entry, "[D-BUS Service]\nName=org.gnome.evolution.dataserver.Sources5\n"
                     "Exec=/nowhere/registry\n");
    reloadBus();
    const SystemLogCapture log;
    EXPECT_FALSE(evolutionPeople(30s).unreadable);
    EXPECT_TRUE(log.contains(QStringLiteral("address book service can't be reached")));
    QFile::remove(entry);
    reloadBus();
}

TEST_F(AddressBookService, ComesBeforeTheFiles)
{
    writeFile(*home / ".contacts/c.vcf",
              card("UID:one\r\nFN:Other\r\n") + card("UID:two\r\nFN:Bob\r\n"));
    const auto everybody = [] {
        QStringList all;
        for (const Person &person : AddressBook::sharedAddressBook().people().people)
            all.append(described(person));
        return all.join(u'\n').toStdString();
    };
    add(card("UID:one\r\nN:Lovelace;Ada;;;\r\nTEL;TYPE=CELL:1\r\nTEL;TYPE=WORK,PREF:2\r\n"
             "PHOTO;ENCODING=b;TYPE=PNG:aGVsbG8=\r\nX-JABBER;TYPE=HOME:a@b\r\n"));
    add(card("UID:list\r\nFN:Friends\r\nX-EVOLUTION-LIST:TRUE\r\n"));
    const SystemLogCapture log;
    EXPECT_EQ(everybody(), "Ada|Lovelace||mobile=1,work=2#1||||home=a@b||||hello\nBob");
    EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join(u'\n').toStdString();
    {
        const NoThreads none;
        EXPECT_EQ(everybody(), "Other\nBob");
        EXPECT_TRUE(log.contains(QStringLiteral("there is no thread for it")));
    }
}

TEST_F(AddressBookService, IsNotWaitedForWhenItHangsOrDies)
{
    add(card("UID:three\r\nN:;Cleo\r\n"));
    const SystemLogCapture log;
    signalFactory(SIGSTOP);
    EXPECT_TRUE(evolutionPeople(500ms).unreadable);
    EXPECT_TRUE(log.contains(QStringLiteral("longer than 500 ms")));
    signalFactory(SIGKILL);
    // A reading after that starts the service again.
    EXPECT_TRUE(waitFor([] {
        const People found = evolutionPeople(30s);
        EXPECT_NE(found.people.empty(), !found.unreadable) << "nobody is not the same as no answer";
        return !found.people.empty();
    }));
    bus->stop();
    EXPECT_TRUE(evolutionPeople(30s).unreadable);
    EXPECT_TRUE(log.contains(QStringLiteral("address book service can't be reached")));
}
