#include "modules/contacts/CVSyncContacts.h"

#include "support/SyncHarness.h"
#include "util/QMMD5Hasher.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

namespace {

class FixedAddressBook : public AddressBook
{
public:
    People people() override { return {everybody, unreadable}; }
    std::vector<Person> everybody;
    std::optional<FileError> unreadable;
};

Person person(const char *uid, const char *first, const char *last, const char *organization = "")
{
    const auto text = [](const char *value) {
        return *value ? std::optional(QString::fromUtf8(value)) : std::nullopt;
    };
    Person person;
    person.uid = QString::fromUtf8(uid);
    person.firstName = text(first);
    person.lastName = text(last);
    person.organization = text(organization);
    return person;
}

QByteArray pngOf(Qt::GlobalColor color)
{
    QBuffer buffer;
    QImage image(20, 30, QImage::Format_RGB32);
    image.fill(color);
    image.save(&buffer, "PNG");
    return buffer.data();
}

Person withEverything()
{
    using enum ContactLabel;
    Person all = person("everything", "Zoë", "%@");
    all.phones = {{Other, u"0"_s}, {Work, u"1"_s},    {Home, u"2"_s},    {Mobile, u"3"_s},
                  {Main, u"4"_s},  {HomeFax, u"5"_s}, {WorkFax, u"6"_s}, {Pager, u"7"_s}};
    all.emails = {{Home, u"z@example.org"_s}};
    all.instantMessaging = {{{{Work, u"aim name"_s}},
                             {{Other, u"1"_s}},
                             {{Home, u"j"_s}},
                             {{Home, u"m"_s}},
                             {{Work, u"y1"_s}, {Home, u"y2"_s}}}};
    all.addresses = {{Home, {u"1 High St"_s, u"Town"_s, u"Shire"_s, u"AB1"_s, u"UK"_s}},
                     {Work, {{}, u"Only town"_s, {}, {}, {}}}};
    all.note = u"one\ntwo\r\nthree"_s;
    all.image.bytes = pngOf(Qt::red);
    return all;
}

class CVSyncContactsTest : public testing::Test
{
protected:
    SyncHarness harness;
    FixedAddressBook book;
    const QString support = harness.home(u"Library/Application Support/Caravel/"_s);
    const QString picture = QMMD5Hasher::hashFromString(u"everything"_s) + u".JPG"_s;

    void SetUp() override
    {
        AddressBook::setSharedAddressBook(&book);
        QDir().mkpath(support);
    }
    void TearDown() override { AddressBook::setSharedAddressBook(nullptr); }

    std::string wishes() const { return SyncHarness::wishes(CVSyncContacts(harness.stick())); }
    QColor shown() const { return QImage::fromData(readFile(support + picture)).pixel(32, 32); }
};

} // namespace

TEST_F(CVSyncContactsTest, StagesThePageAndThePictures)
{
    Person company = person("company", "", "", "Acme & <b>Sons</b>");
    company.phones = {{ContactLabel::Work, u"1"_s}};
    Person second = person("anna-2", "Anna", "A", "Zoo");
    second.phones = {{ContactLabel::Other, u"4"_s}, {ContactLabel::Other, u"5"_s}};
    second.primaryPhone = 1;
    book.everybody = {withEverything(),
                      second,
                      person("anna-1", "Anna", "Z"),
                      person("nobody", "", ""),
                      person("null", "(null)", "(null)", "Null Ltd"),
                      company,
                      person("last-only", "", "Solo")};
    const std::string index = "index.html < contacts_index.html";
    EXPECT_EQ(wishes(), (picture + u" < "_s + picture).toStdString() + '\n' + index);
    const auto expectPage = [this](const char *golden) {
        EXPECT_EQ(readFile(support + u"contacts_index.html"_s).toStdString(),
                  readFile(QStringLiteral(CARAVEL_GOLDEN_FOLDER "/") + QLatin1String(golden))
                      .toStdString());
    };
    expectPage("contacts.html");
    EXPECT_GT(shown().red(), 200);
    const auto items = CVSyncContacts(harness.stick()).itemsToSync();
    EXPECT_EQ(items[0].description, u"Syncing Contact Icons..."_s);
    EXPECT_EQ(items[1].destination, harness.stick(u"Caravel/Contacts/index.html"_s));
    EXPECT_EQ(items[1].description, u"Syncing Contact Index..."_s);
    book.everybody.clear();
    book.unreadable = FileError{FileError::Operation::Read, u"Personal"_s, 0, {}};
    EXPECT_EQ(wishes(), index + "\nunreadable: Personal");
    expectPage("contacts-none.html");
}

TEST_F(CVSyncContactsTest, RendersAPictureOnlyWhenItHasChanged)
{
    book.everybody = {withEverything()};
    wishes();
    const QByteArray red = readFile(support + picture);
    // A picture that was rendered again would lose what is changed in its middle here.
    QByteArray touched = red;
    touched[touched.size() / 2] ^= 1;
    writeFile(support + picture, touched);
    wishes();
    EXPECT_EQ(readFile(support + picture), touched);
    writeFile(support + picture, red.chopped(10));
    wishes();
    EXPECT_EQ(readFile(support + picture), red) << "a cut-off one is made again";
    book.everybody[0].image = {{}, harness.home(u"blue.png"_s)};
    writeFile(book.everybody[0].image.file, pngOf(Qt::blue));
    wishes();
    EXPECT_GT(shown().blue(), 200);

    book.everybody.push_back(person("gone", "Gone", "Picture"));
    book.everybody[0].image = {"no image", {}};
    book.everybody[1].image.file = harness.home(u"missing.png"_s);
    const SystemLogCapture log;
    wishes();
    EXPECT_EQ(QImage::fromData(readFile(support + picture)).size(), QSize(64, 64));
    for (const QString &name : {picture, u"contacts_index.html"_s}) {
        QFile::remove(support + name);
        writeFile(support + name + u"/in the way"_s, {});
    }
    wishes();
    for (const QString &said :
         {u"Zoë %@"_s, u"missing.png"_s, support + picture, support + u"contacts_index.html"_s})
        EXPECT_TRUE(log.contains(said)) << qPrintable(said);
}
