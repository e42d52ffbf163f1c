#include "modules/bookmarks/CVSyncBookmarks.h"

#include "modules/bookmarks/own/FirefoxBookmarks.h"
#include "platform/lists/PropertyList.h"
#include "support/SyncHarness.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

enum Source { Safari, Firefox, OmniWeb, Camino };

QByteArray golden(const char *name)
{
    return readFile(QStringLiteral(CARAVEL_GOLDEN_FOLDER "/") + QString::fromUtf8(name));
}

/// An entry of Safari's list; an empty title is left out.
QVariantMap leaf(const char *title, const char *address)
{
    QVariantMap names;
    if (*title)
        names.insert(u"title"_s, QString::fromUtf8(title));
    return {{u"WebBookmarkType"_s, u"WebBookmarkTypeLeaf"_s},
            {u"URLString"_s, QString::fromUtf8(address)},
            {u"URIDictionary"_s, names}};
}

QVariantMap folder(const char *title, const QVariant &children)
{
    return {{u"WebBookmarkType"_s, u"WebBookmarkTypeList"_s},
            {u"Title"_s, QString::fromUtf8(title)},
            {u"Children"_s, children}};
}

QByteArray listOf(const QVariantList &children)
{
    return PropertyList::toXml(QVariantMap{{u"Children"_s, children}});
}

class CVSyncBookmarksTest : public testing::Test
{
protected:
    SyncHarness harness{{CVSyncBookmarks::kind()}};
    const QString library = harness.home(u"Library/"_s);
    const QString support = library + u"Application Support/"_s;
    const QString profiles = support + u"Firefox/profiles.ini"_s;
    const QString sources[4] = {
        library + u"Safari/Bookmarks.plist"_s, support + u"Firefox/Profiles/a b/bookmarks.html"_s,
        support + u"OmniWeb 5/Bookmarks.html"_s, support + u"Camino/bookmarks.plist"_s};
    const QString placed = u"PSP/SYSTEM/BROWSER/bookmarks.html"_s;

    void SetUp() override
    {
        harness.mountStick();
        writeFile(profiles, "[Profile0]\nPath=Profiles/a b\n");
        writeFile(support + u"Caravel/log"_s, {});
    }

    void set(const char *key, const QVariant &value)
    {
        harness.defaults.setObject(QString::fromLatin1(key), value);
    }
    QByteArray staged() const { return readFile(support + u"Caravel/bookmarks.html"_s); }

    std::vector<CVSyncItem> items() { return CVSyncBookmarks(harness.stick()).itemsToSync(); }

    /// What the browser's file offers: "title size", then its bookmarks as "  title=address".
    QString offered(Source source, const QByteArray &contents)
    {
        set("bookmarkSource", source);
        writeFile(sources[source], contents);
        return offered();
    }
    static QString offered()
    {
        QString lines;
        for (const BookmarkFolder &found : CVSyncBookmarks::availableIdentifiers()) {
            lines += found.title.value_or(u"?"_s) + u' ' + QString::number(found.size) + u'\n';
            for (const Bookmark &bookmark : found.bookmarks)
                lines += u"  "_s + bookmark.title + u'=' + bookmark.address + u'\n';
        }
        return lines;
    }
};

} // namespace

TEST_F(CVSyncBookmarksTest, PlacesTheChosenFolders)
{
    const QVariantMap deep = folder("Deeper", QVariantList{leaf("Too deep", "http://x/")});
    const QVariantList work{
        leaf("Fish & <Chips>", "http://example.org/first?a=1&b=2"),
        folder("Sub", QVariantList{leaf("Zweite Straße 日本", "http://example.org/second"), deep,
                                   leaf("", "http://example.org/third")})};
    writeFile(sources[Safari],
              listOf({leaf("Top", "http://top/"), folder("Work", work),
                      folder("Private", QVariantList{leaf("Mine", "http://mine/")})}));
    writeFile(harness.stick(u"PSP/SYSTEM/BROWSER/history.dat"_s), "kept");
    CVSyncBookmarks::setSelectedIdentifiers({u"Gone"_s, u"Work"_s, u"Sub"_s}, harness.stick());
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(readFile(harness.stick(placed)), golden("bookmarks-work.html"));
    EXPECT_EQ(harness.delegate.count(QStringLiteral("syncWillProcessItem Syncing Safari "
                                                    "Bookmarks...")),
              1);
    EXPECT_EQ(readFile(harness.stick(u"PSP/SYSTEM/BROWSER/history.dat"_s)), "kept");

    CVSyncBookmarks::setSelectedIdentifiers({}, harness.stick());
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(readFile(harness.stick(placed)), golden("bookmarks-contacts.html"));
}

TEST_F(CVSyncBookmarksTest, LeavesTheBrowserItsBookmarksWhereThereIsNothingToPlace)
{
    set("syncContacts", false);
    writeFile(harness.stick(placed), "the PSP's own");
    for (const QByteArray &contents :
         {listOf({folder("Empty", QVariantList()), folder("Other", QVariantList{leaf("x", "y")})}),
          listOf({leaf("x", "y")}), QByteArray("garbage")}) {
        CVSyncBookmarks::setSelectedIdentifiers({u"Empty"_s}, harness.stick());
        writeFile(sources[Safari], contents);
        ASSERT_TRUE(harness.run());
        EXPECT_EQ(readFile(harness.stick(placed)), "the PSP's own");
        EXPECT_EQ(staged(), golden("bookmarks-none.html"));
    }
}

TEST_F(CVSyncBookmarksTest, DescribesTheSource)
{
    const char *const texts[] = {"Syncing Safari Bookmarks...", "Syncing Firefox Bookmarks...",
                                 "Syncing OmniWeb Bookmarks...", "Syncing Camino Bookmarks...", ""};
    for (const QString &source : sources)
        QFile::remove(source);
    for (int number = 0; number < 5; ++number) {
        set("bookmarkSource", number);
        const auto found = items();
        ASSERT_EQ(found.size(), 1U) << number;
        EXPECT_EQ(found[0].description, QString::fromUtf8(texts[number]));
        EXPECT_EQ(found[0].destination, harness.stick(placed));
        EXPECT_EQ(staged(), golden("bookmarks-contacts.html"));
    }
    set("bookmarkSource", -1);
    EXPECT_EQ(offered(), QString());
}

TEST_F(CVSyncBookmarksTest, SaysWhenItCannotWriteTheFile)
{
    const QString path = support + u"Caravel/bookmarks.html"_s;
    writeFile(path + u"/in the way"_s, {});
    const SystemLogCapture log;
    items();
    EXPECT_TRUE(log.contains(path));
}

TEST_F(CVSyncBookmarksTest, ReadsFirefox)
{
    const QByteArray heading = "    <DT><H3 ADD_DATE=\"1\">News</H3>\n";
    const QByteArray bookmark = "        <DT><A HREF=\"http://a/?b&amp;c\" ID=\"1\">A</A>\n";
    const QString plain = u"News 1\n  A=http://a/?b&amp;c\n"_s;
    const struct
    {
        QByteArray text;
        QString offer;
    } cases[] = {
        {heading + bookmark, plain},
        {(heading + bookmark).chopped(1), plain},
        {"\xEF\xBB\xBF" + heading + bookmark, plain},
        {bookmark + "        <DT><H3 X=\"\">Inner</H3>\n" + bookmark, QString()},
        {heading + "        <DT><H3 X=\"\">Inner</H3>\n<DT><A HREF=\"b\" X=\"\">B &amp; C</A>\n",
         u"News 1\n  B &amp; C=b\n"_s},
        {"    <DT><H3 X=\"\">Fish &amp; Chips &#233;</H3>\n" + bookmark +
             "    <DT><H3 X=\"\">Empty</H3>\n",
         u"Fish & Chips é 1\n  A=http://a/?b&amp;c\nEmpty 0\n"_s},
        {heading + bookmark + "    <DT><H3 X=\"\">Between</H3>\n" + heading +
             "<DT><A HREF=\"b\" X=\"\">B</A>\n",
         u"Between 0\nNews 1\n  B=b\n"_s},
        {"    <DT><H3 X=\"\">Caf\xE9</H3>\n", u"Café 0\n"_s},
        {"    <DT><H3 X=\"\">a/\xC3\xA9..</H3>\n", u"a/é.. 0\n"_s},
        // Lines that can't be cut leave the folder before them the current one.
        {heading + "    <DT><H3>No marker</H3>\n    <DT><H3</H3> X=\"\"></H3>\n" +
             "<DT><A HREF=\"b\">B</A>\n<DT><A X=\"\" >B</A>\n<DT><A</A>\n<DT><A HREF=\"b\" >B</A>\n"
             "<DT><A X=\"y\" HREF=\"b\">B</A>\n" +
             bookmark,
         plain},
        {QByteArray(heading + bookmark).replace("\n", "\r\n"), QString()},
        {"    <DT><H3 X=\"\">\n", QString()},
    };
    for (const auto &c : cases)
        EXPECT_EQ(offered(Firefox, c.text), c.offer) << c.text.constData();

    const QByteArray endless(10 << 20, 'x');
    EXPECT_EQ(offered(Firefox, heading + "<DT><A HREF=\"" + endless + "\n" +
                                   QByteArray("<DT><A</A").repeated(1 << 20) + "\n<DT><A HREF=\"" +
                                   endless + "\" >\">B</A>\n" + bookmark),
              u"News 2\n  B="_s + QString::fromLatin1(endless) + u"\n  A=http://a/?b&amp;c\n"_s);
}

TEST_F(CVSyncBookmarksTest, FindsTheFirstFirefoxProfile)
{
    const QString firefox = support + u"Firefox"_s;
    const struct
    {
        QByteArray ini;
        std::optional<QString> profile;
    } cases[] = {
        {"[Profile1]\nPath=b\n[Profile0]\nPath=a\n", firefox + u"/a"_s},
        {"[Profile0]\nIsRelative=0\nPath=/etc\n", firefox + u"/etc"_s},
        {"[Profile1]\nPath=b\n", std::nullopt},
        {"[Profile0]\r\nPath=a\r\n", std::nullopt},
        {"", std::nullopt},
    };
    set("bookmarkSource", Firefox);
    for (const auto &c : cases) {
        writeFile(profiles, c.ini);
        EXPECT_EQ(defaultFirefoxProfile(), c.profile) << c.ini.constData();
        EXPECT_EQ(offered(), QString());
    }
}

TEST_F(CVSyncBookmarksTest, ReadsOmniWeb)
{
    const QByteArray heading = "<dt><h3><a bookmarkid=7>News</a></h3>\n";
    const QByteArray bookmark = "<dt><a href=\"http://a/?b&amp;c\" bookmarkid=8>A &lt;</a>\n";
    const QString plain = u"News 1\n  A <=http://a/?b&amp;c\n"_s;
    const struct
    {
        QByteArray text;
        QString offer;
    } cases[] = {
        {bookmark + heading + bookmark, plain},
        {(heading + bookmark).chopped(1), plain},
        {"\xEF\xBB\xBF" + heading + bookmark, plain},
        {"<dt><h3><a bookmarkid=12345>Five &amp; more</a></h3>\n" + bookmark +
             "<dt><h3><a bookmarkid=99>Two</a></h3>\n",
         u"Five & more 1\n  A <=http://a/?b&amp;c\nTwo 0\n"_s},
        {"<dt><h3><a bookmarkid=123456>Six</a></h3>\n", u"3456>Six 0\n"_s},
        {"<dt><h3><a bookmarkid=1>a>b>c</a></h3>\n", u"a>b>c 0\n"_s},
        {"<dt><h3><a bookmarkid=1></a></h3>\n" + bookmark, u" 0\n"_s},
        {heading + bookmark + "<dt><h3><a bookmarkid=9>Between</a></h3>\n" + heading,
         u"Between 0\nNews 0\n"_s},
        {"<dt><h3><a bookmarkid=1>Caf\xE9</a></h3>\n", u"Café 0\n"_s},
        {heading + " " + bookmark + "\t<dt><h3><a bookmarkid=9>Indented</a></h3>\n", u"News 0\n"_s},
        // Lines that can't be cut.
        {heading + "<dt><h3><a bookmarkid=></a></h3>\n" +
             "<dt><a href=\"</a>\" bookmarkid=1>B</a>\n" + bookmark,
         plain},
        {QByteArray(heading + bookmark).replace("\n", "\r\n"), QString()},
        {"<dt><h3><a bookmarkid=", QString()},
    };
    for (const auto &c : cases)
        EXPECT_EQ(offered(OmniWeb, c.text), c.offer) << c.text.constData();

    const QByteArray endless = QByteArray("<dt><a href=\"\" bookmarkid=>").repeated(400000);
    EXPECT_EQ(offered(OmniWeb, heading + endless + "\n" + bookmark), plain);
}

TEST_F(CVSyncBookmarksTest, ReadsCamino)
{
    const auto entry = [](const char *title, const char *key, const QVariant &value) {
        return QVariantMap{{u"Title"_s, QString::fromUtf8(title)},
                           {QString::fromLatin1(key), value}};
    };
    const QVariantMap page = entry("Page", "URL", u"http://p/"_s);
    QVariantMap group = entry("Group", "FolderType", 2);
    group.insert(u"Children"_s, QVariantList{page, group, 5, page});
    const QVariantMap noFolder = entry("No folder", "Children", QVariantList{page});
    const QVariantMap untitled{{u"Children"_s, QVariantList{page}}, {u"Title"_s, 5}};
    const QVariantList children{
        page, group, noFolder, entry("Wrong", "URL", 5), u'x', QVariantMap{{u"URL"_s, u"u:"_s}}};
    EXPECT_EQ(offered(Camino, listOf({entry("Z", "Children", children), page, untitled, true,
                                      entry("A", "Children", QVariantList{page}),
                                      entry("W", "Children", u"no list"_s),
                                      entry("A", "Children", QVariantList{group})})),
              QStringLiteral("Z 4\n  Page=http://p/\n  Page=http://p/\n  Page=http://p/\n  u:=u:\n"
                             "Page 0\nW 0\nA 2\n  Page=http://p/\n  Page=http://p/\n"));
}

TEST_F(CVSyncBookmarksTest, TakesNothingFromWrongPropertyLists)
{
    QVariantMap oddLeaf = leaf("x", "http://odd/");
    oddLeaf.insert(u"URIDictionary"_s, u"no dictionary"_s);
    QVariantMap noAddress = leaf("x", "");
    noAddress.insert(u"URLString"_s, QVariantList{1});
    QVariantMap untitled = folder("", 5);
    untitled.remove(u"Title"_s);
    EXPECT_EQ(offered(Safari,
                      listOf({5, QVariantList{}, folder("Odd", QVariantList{oddLeaf, 5, noAddress}),
                              untitled, folder("Twice", u"x"_s),
                              folder("Twice", QVariantList{leaf("b", "c")})})),
              u"Odd 3\n  http://odd/=http://odd/\n? 0\nTwice 0\nTwice 1\n  b=c\n"_s);
    EXPECT_EQ(items().size(), 1U);

    const QByteArray good = listOf({folder("Work", QVariantList{leaf("a", "b")})});
    const QByteArray opened = "<plist><dict><key>Children</key>";
    for (const QByteArray &bad :
         {QByteArray(), QByteArray("bplist00garbage"), good.chopped(30),
          PropertyList::toXml(QVariantList{1}), PropertyList::toXml(u"text"_s),
          opened + QByteArray("<array>").repeated(1000000),
          opened + QByteArray("<array><dict><key>Children</key>").repeated(100000)}) {
        for (const Source source : {Safari, Camino}) {
            const SystemLogCapture log;
            EXPECT_EQ(offered(source, bad), QString()) << bad.left(80).constData();
            EXPECT_TRUE(log.contains(sources[source])) << bad.left(80).constData();
        }
    }
    EXPECT_EQ(offered(Safari, "\xEF\xBB\xBF" + QByteArray(good).replace("\n", "\r\n").trimmed()),
              u"Work 1\n  a=b\n"_s);
}
