#include "modules/contacts/CVSyncContacts.h"

#include "modules/contacts/own/ContactsPage.h"
#include "platform/people/ContactPicture.h"
#include "support/SyncHarness.h"
#include "util/QMMD5Hasher.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

namespace {

QByteArray golden(const char *name)
{
    return readFile(QStringLiteral(CARAVEL_GOLDEN_FOLDER "/") + QString::fromUtf8(name));
}

class FixedAddressBook : public AddressBook
{
public:
    std::vector<Person> people() override { return everybody; }
    std::vector<Person> everybody;
};

std::optional<QString> text(const char *value)
{
    return *value ? std::optional(QString::fromUtf8(value)) : std::nullopt;
}

Person person(const char *uid, const char *first, const char *last, const char *organization = "")
{
    Person person;
    person.uid = QString::fromUtf8(uid);
    person.firstName = text(first);
    person.lastName = text(last);
    person.organization = text(organization);
    return person;
}

Labelled<QString> entry(ContactLabel label, const char *value)
{
    return {label, QString::fromUtf8(value)};
}

QByteArray pngOf(Qt::GlobalColor color)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImage image(20, 30, QImage::Format_RGB32);
    image.fill(color);
    image.save(&buffer, "PNG");
    return bytes;
}

Person withEverything()
{
    using enum ContactLabel;
    Person all = person("everything", "Zoë", "%@");
    all.phones = {entry(Other, "0"), entry(Work, "1"),    entry(Home, "2"),    entry(Mobile, "3"),
                  entry(Main, "4"),  entry(HomeFax, "5"), entry(WorkFax, "6"), entry(Pager, "7")};
    all.emails = {entry(Home, "z@example.org")};
    all.instantMessaging = {{{entry(Work, "aim name")},
                             {entry(Other, "1")},
                             {entry(Home, "j")},
                             {entry(Home, "m")},
                             {entry(Work, "y1"), entry(Home, "y2")}}};
    const auto town = [](const char *name) {
        return QString::fromUtf8(name);
    };
    all.addresses = {
        {Home, {town("1 High St"), town("Town"), town("Shire"), town("AB1"), town("UK")}},
        {Work, {{}, town("Only town"), {}, {}, {}}}};
    all.note = u"one\ntwo\r\nthree"_s;
    all.image.bytes = pngOf(Qt::red);
    return all;
}

class CVSyncContactsTest : public testing::Test
{
protected:
    SyncHarness harness{{CVSyncContacts::kind()}};
    FixedAddressBook book;
    const QString support = harness.home(u"Library/Application Support/Caravel/"_s);
    const QString picture = QMMD5Hasher::hashFromString(u"everything"_s) + u".JPG"_s;

    CVSyncContactsTest()
    {
        AddressBook::setSharedAddressBook(&book);
        QDir().mkpath(support);
        harness.mountStick();
    }
    ~CVSyncContactsTest() override { AddressBook::setSharedAddressBook(nullptr); }

    QByteArray placed(const QString &name) const
    {
        return readFile(harness.stick(u"Caravel/Contacts/"_s + name));
    }
    std::vector<CVSyncItem> items() { return CVSyncContacts(harness.stick()).itemsToSync(); }
};

} // namespace

TEST_F(CVSyncContactsTest, PlacesThePageAndThePictures)
{
    Person company = person("company", "", "", "Acme & <b>Sons</b>");
    company.phones = {entry(ContactLabel::Work, "1")};
    Person second = person("anna-2", "Anna", "A", "Zoo");
    second.phones = {entry(ContactLabel::Other, "4"), entry(ContactLabel::Other, "5")};
    second.primaryPhone = 1;
    book.everybody = {withEverything(),
                      second,
                      person("anna-1", "Anna", "Z"),
                      person("nobody", "", ""),
                      person("null", "(null)", "(null)", "Null Ltd"),
                      company,
                      person("last-only", "", "Solo")};
    writeFile(harness.stick(u"Caravel/Contacts/gone.JPG"_s), "gone");
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(placed(u"index.html"_s).toStdString(), golden("contacts.html").toStdString());
    EXPECT_EQ(treeOf(harness.stick(u"Caravel/Contacts"_s)),
              QStringList({picture, u"index.html"_s}));
    EXPECT_GT(qRed(QImage::fromData(placed(picture), "JPG").pixel(32, 32)), 200);
    EXPECT_EQ(harness.delegate.count(u"syncWillProcessItem Syncing Contact Icons..."_s), 1);
    EXPECT_EQ(harness.delegate.count(u"syncWillProcessItem Syncing Contact Index..."_s), 1);

    book.everybody.clear();
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(placed(u"index.html"_s).toStdString(), golden("contacts-none.html").toStdString());
    EXPECT_TRUE(placed(picture).isEmpty());
}

TEST_F(CVSyncContactsTest, RendersAPictureOnlyWhenItHasChanged)
{
    book.everybody = {withEverything()};
    items();
    const QByteArray red = readFile(support + picture);
    ASSERT_FALSE(red.isEmpty());

    // A picture that was rendered again would lose what is changed in its middle here.
    QByteArray touched = red;
    touched[touched.size() / 2] ^= 1;
    writeFile(support + picture, touched);
    items();
    EXPECT_EQ(readFile(support + picture), touched);

    writeFile(support + picture, red.chopped(10));
    items();
    EXPECT_EQ(readFile(support + picture), red) << "a cut-off one is made again";

    book.everybody[0].image = {{}, harness.home(u"blue.png"_s)};
    writeFile(book.everybody[0].image.file, pngOf(Qt::blue));
    EXPECT_EQ(items().size(), 2U);
    EXPECT_GT(qBlue(QImage::fromData(readFile(support + picture)).pixel(32, 32)), 200);
}

TEST_F(CVSyncContactsTest, SaysWhichPictureItCannotShowOrWrite)
{
    book.everybody = {withEverything(), person("gone", "Gone", "Picture")};
    book.everybody[0].image.bytes = "no image";
    book.everybody[1].image.file = harness.home(u"missing.png"_s);
    {
        const SystemLogCapture log;
        EXPECT_EQ(items().size(), 2U);
        EXPECT_TRUE(log.contains(u"Zoë %@"_s));
        EXPECT_TRUE(log.contains(u"missing.png"_s));
        EXPECT_EQ(QImage::fromData(readFile(support + picture)).size(), QSize(64, 64));
    }
    for (const QString &name : {picture, u"contacts_index.html"_s}) {
        QDir().remove(support + name);
        writeFile(support + name + u"/in the way"_s, {});
    }
    const SystemLogCapture log;
    EXPECT_EQ(items().size(), 2U);
    EXPECT_TRUE(log.contains(support + picture));
    EXPECT_TRUE(log.contains(u"contacts_index.html"_s));
}
