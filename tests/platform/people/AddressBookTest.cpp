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
#include <thread>

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
    if (!person.image.file.isEmpty())
        parts.append(QStringLiteral("file ") + person.image.file);
    else if (!person.image.bytes.isEmpty())
        parts.append(QStringLiteral("image ") + QString::fromLatin1(person.image.bytes));
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
        writeFile(folder / QStringLiteral("some.vcf"), text);
        QStringList lines;
        for (const Person &person : vCardPeople(folder.path()))
            lines.append(described(person));
        return lines.join(u'\n').toStdString();
    }
};

} // namespace

TEST_F(VCards, AreReadInTheirThreeVersions)
{
    const struct
    {
        const char *lines;
        const char *person;
    } cases[] = {
        {"N:Lovelace;Ada;King;;\nORG:Engines;Analytical\nFN:ignored\n", "Ada|Lovelace|Engines"},
        {"FN:Ada King Lovelace\n", "Ada King|Lovelace"},
        {"FN:Engines\nORG:Engines\n", "||Engines"},
        {"FN:Plato\n", "Plato"},
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
        {"N;CHARSET=ISO-8859-1;ENCODING=QUOTED-PRINTABLE:M=FCller;Jan;;;\n", "Jan|Müller"},
        {"N;CHARSET=ISO-8859-2:Ha\xB9"
         "ek;Jan;;;\n",
         "Jan|Hašek"},
        {"PHOTO;ENCODING=b;TYPE=JPEG:aGVs\n bG8=\n", "|||||||||||image hello"},
        {"PHOTO;JPEG;ENCODING=BASE64:\n aGVs\n bG8=\n\nTEL:1\n", "|||other=1||||||||image hello"},
        {"PHOTO:data:image/jpeg;base64,aGVsbG8=\n", "|||||||||||image hello"},
        {"PHOTO;VALUE=uri:file:///tmp/a%20b.png\n", "|||||||||||file /tmp/a b.png"},
        {"PHOTO;VALUE=uri:https://example.org/a.png\n", ""},
        {"KIND:group\nFN:Friends\n", nullptr},
        {"X-ADDRESSBOOKSERVER-KIND:group\nFN:Friends\n", nullptr},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(read(card(c.lines)), c.person ? c.person : "") << c.lines;
        EXPECT_EQ(c.person == nullptr, vCardPeople(folder.path()).empty()) << c.lines;
    }
}

TEST_F(VCards, AreReadAsFarAsBrokenOnesGo)
{
    const QByteArray good = card("FN:Ada\r\nTEL:1\r\n");
    const std::string ada = "Ada|||other=1";
    const struct
    {
        QByteArray text;
        std::string people;
        bool isSaid;
    } cases[] = {
        {QByteArray(good).replace("\r\n", "\n"), ada, false},
        {QByteArray(good).replace("\r\n", "\r"), ada, false},
        {"\xEF\xBB\xBF" + good.trimmed(), ada, false},
        {"some\r\n" + good.toLower().replace("ada", "Ada") + "noise", ada, false},
        {QByteArray(good).replace("TEL:1", QByteArray("TEL\0:1", 6)), ada, false},
        {card("FN:A\r\nda\r\nTEL:1\r\n"), ada, false},
        {card("NOTE:no blank before\r\nthe next line\r\nFN:Ada\r\nTEL:1\r\n"),
         "Ada|||other=1|||||||no blank beforethe next line", false},
        {card("N;CHARSET=KLINGON:M\xFCller;Jan\r\n"), "Jan|Müller", false},
        {card("N;CHARSET=KLINGON;ENCODING=QUOTED-PRINTABLE:M=FCller;Jan\r\n"), "Jan|Müller", false},
        {card("N;ENCODING=QUOTED-PRINTABLE:M=FCller;Jan\r\n"), "Jan|Müller", false},
        {card("N:M\xFCller;Jan\r\n"), "Jan|Müller", false},
        {card("AGENT:\r\nBEGIN:VCARD\r\nFN:Agent\r\nEND:VCARD\r\nFN:Ada\r\nTEL:1\r\n"), ada, false},
        {"BEGIN:VCARD\r\nFN:Bob\r\n" + good, "Bob\n" + ada, false},
        {good.first(good.size() - 13), ada, true},
        {card({}), {}, false},
        {{}, {}, true},
        {QByteArray("\0\1\2\3", 4), {}, true},
        {QByteArray(65 << 20, 'x'), {}, true},
    };
    for (const auto &c : cases) {
        const SystemLogCapture log;
        EXPECT_EQ(read(c.text), c.people) << c.text.left(200).constData();
        EXPECT_EQ(log.contains(folder / QStringLiteral("some.vcf")), c.isSaid)
            << c.text.left(200).constData();
    }
}

TEST_F(VCards, TakeLinearTime)
{
    constexpr qsizetype size = 2 << 20;
    for (const QByteArray &lines :
         {"NOTE:" + QByteArray("=\r\n ").repeated(size / 4),
          QByteArray(" =\r\n").repeated(size / 4), "A" + QByteArray(";=\r\n").repeated(size / 4),
          "TEL;" + QByteArray(size, ';'),
          "PHOTO;ENCODING=b:" + QByteArray("QUJD\r\n ").repeated(size / 7)})
        EXPECT_EQ(read(card(lines + "\r\nFN:Ada\r\n")).substr(0, 3), "Ada");
    read(QByteArray("BEGIN:VCARD\r\n").repeated(size / 130));
}

TEST_F(VCards, KeepTheirUidFromRunToRun)
{
    writeFile(folder / QStringLiteral("b/two.VCF"),
              card("UID:u1\r\nFN:Ada\r\n") + card("FN:Bob\r\n"));
    writeFile(folder / QStringLiteral("a.vcf"), card("FN:Cleo\r\n"));
    writeFile(folder / QStringLiteral(".hidden.vcf"), card("FN:Nobody\r\n"));
    writeFile(folder / QStringLiteral("readme.txt"), card("FN:Nobody\r\n"));
    const std::vector<Person> people = vCardPeople(folder.path());
    ASSERT_EQ(people.size(), 3U);
    EXPECT_EQ(people[0].firstName, QStringLiteral("Cleo"));
    EXPECT_EQ(people[1].uid, QStringLiteral("u1"));
    EXPECT_NE(people[0].uid, people[2].uid);
    EXPECT_FALSE(people[2].uid.isEmpty());
    EXPECT_EQ(vCardPeople(folder.path())[2].uid, people[2].uid);
    EXPECT_TRUE(vCardPeople(folder / QStringLiteral("missing")).empty());
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

    static QString contacts(const QString &name)
    {
        return *home / (QStringLiteral(".contacts/") + name);
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

QStringList names(const std::vector<Person> &people)
{
    QStringList names;
    for (const Person &person : people)
        names.append(person.firstName.value_or(QStringLiteral("?")));
    return names;
}

} // namespace

TEST_F(AddressBookService, MayBeMissing)
{
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    writeFile(contacts(QStringLiteral("c.vcf")), card("UID:two\r\nFN:Bob\r\n"));
    const SystemLogCapture log;
    EXPECT_EQ(names(AddressBook::sharedAddressBook().people()), QStringList(QStringLiteral("Bob")));
    EXPECT_TRUE(log.contains(QStringLiteral("address book service can't be reached")));
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);

    const NoThreads none;
    EXPECT_TRUE(evolutionPeople(30s).empty());
    EXPECT_TRUE(log.contains(QStringLiteral("there is no thread for it")));
}

TEST_F(AddressBookService, ComesBeforeTheFiles)
{
    add(card("UID:one\r\nN:Lovelace;Ada;;;\r\nTEL;TYPE=CELL:1\r\nTEL;TYPE=WORK,PREF:2\r\n"
             "PHOTO;ENCODING=b;TYPE=PNG:aGVsbG8=\r\nX-JABBER;TYPE=HOME:a@b\r\n"));
    add(card("UID:list\r\nFN:Friends\r\nX-EVOLUTION-LIST:TRUE\r\n"));
    writeFile(contacts(QStringLiteral("c.vcf")),
              card("UID:one\r\nFN:Other\r\n") + card("UID:two\r\nFN:Bob\r\n"));
    const SystemLogCapture log;
    const std::vector<Person> people = AddressBook::sharedAddressBook().people();
    ASSERT_EQ(names(people), QStringList({QStringLiteral("Ada"), QStringLiteral("Bob")}));
    EXPECT_EQ(people[0].uid, QStringLiteral("one"));
    EXPECT_EQ(people[0].lastName, QStringLiteral("Lovelace"));
    EXPECT_EQ(joined(people[0].phones), QStringLiteral("mobile=1,work=2"));
    EXPECT_EQ(people[0].primaryPhone, 1U);
    EXPECT_EQ(people[0].image.data(), "hello");
    EXPECT_EQ(joined(people[0].instantMessaging[size_t(MessagingService::Jabber)]),
              QStringLiteral("home=a@b"));
    EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join(u'\n').toStdString();

    qint64 early = 0;
    for (int round = 0; round < 60; ++round) {
        ASSERT_EQ(evolutionPeople(30s).size(), 1U);
        if (round == 10)
            early = residentBytes();
    }
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LT(residentBytes() - early, 1 << 20) << "bytes that 50 readings left behind";
#endif
}

TEST_F(AddressBookService, IsNotWaitedForWhenItHangsOrDies)
{
    add(card("UID:three\r\nN:;Cleo\r\n"));
    signalFactory(SIGSTOP);
    {
        const SystemLogCapture log;
        EXPECT_TRUE(evolutionPeople(500ms).empty());
        EXPECT_TRUE(log.contains(QStringLiteral("longer than 500 ms")));
    }
    std::thread killer([] {
        std::this_thread::sleep_for(300ms);
        signalFactory(SIGKILL);
    });
    {
        const SystemLogCapture log;
        const auto people = evolutionPeople(30s);
        EXPECT_TRUE(!people.empty() || !log.lines().isEmpty());
    }
    killer.join();
    EXPECT_TRUE(names(evolutionPeople(30s)).contains(QStringLiteral("Cleo")))
        << "the next reading starts the service again";
    bus->stop();
    const SystemLogCapture log;
    EXPECT_TRUE(evolutionPeople(30s).empty());
    EXPECT_TRUE(log.contains(QStringLiteral("address book service can't be reached")));
}
