#include "modules/bookmarks/CVSyncBookmarks.h"

#include "platform/lists/PropertyList.h"
#include "support/SyncHarness.h"

#include <gtest/gtest.h>

namespace {

enum Source { Safari, Firefox, OmniWeb, Camino };

QVariantMap entry(const char *title, const char *key, const QVariant &value)
{
    return {{u"Title"_s, QString::fromUtf8(title)}, {QString::fromLatin1(key), value}};
}

/// Of Safari's list; an empty title is left out.
QVariantMap leaf(const char *title, const char *address)
{
    QVariantMap leaf = entry("", "URLString", QString::fromUtf8(address));
    leaf.insert(u"WebBookmarkType"_s, u"WebBookmarkTypeLeaf"_s);
    leaf.insert(u"URIDictionary"_s,
                *title ? QVariantMap{{u"title"_s, QString::fromUtf8(title)}} : QVariantMap());
    return leaf;
}

QVariantMap folder(const char *title, const QVariant &children)
{
    QVariantMap folder = entry(title, "Children", children);
    folder.insert(u"WebBookmarkType"_s, u"WebBookmarkTypeList"_s);
    return folder;
}

QByteArray listOf(const QVariantList &children)
{
    return PropertyList::toXml(entry("", "Children", children));
}

class CVSyncBookmarksTest : public testing::Test
{
protected:
    SyncHarness harness;
    const QString support = harness.home(u"Library/Application Support/"_s);
    const QString sources[4] = {harness.home(u"Library/Safari/Bookmarks.plist"_s),
                                support + u"Firefox/Profiles/a b/bookmarks.html"_s,
                                support + u"OmniWeb 5/Bookmarks.html"_s,
                                support + u"Camino/bookmarks.plist"_s};
    const QString staged = support + u"Caravel/bookmarks.html"_s;

    void SetUp() override
    {
        writeFile(support + u"Firefox/profiles.ini"_s, "[Profile0]\nPath=Profiles/a b\n");
        writeFile(support + u"Caravel/log"_s, {});
    }

    std::vector<CVSyncItem> items() { return CVSyncBookmarks(harness.stick()).itemsToSync(); }

    /// What the browser's file offers: "title size", then its bookmarks as "  title=address".
    std::string offered(Source source, const QByteArray &contents)
    {
        harness.set(u"bookmarkSource", source);
        writeFile(sources[source], contents);
        QStringList lines;
        for (const BookmarkFolder &found : CVSyncBookmarks::availableIdentifiers().valueOr({})) {
            lines.append(found.title.value_or(u"?"_s) + u' ' + QString::number(found.size));
            for (const Bookmark &bookmark : found.bookmarks)
                lines.append(u"  "_s + bookmark.title + u'=' + bookmark.address);
        }
        return joined(lines);
    }
    void expectOffers(Source source, const std::vector<std::pair<QByteArray, const char *>> &cases)
    {
        for (const auto &[text, offer] : cases)
            EXPECT_EQ(offered(source, text), offer) << text.constData();
    }
};

} // namespace

TEST_F(CVSyncBookmarksTest, StagesTheChosenFolders)
{
    const QVariantMap deep = folder("Deeper", QVariantList{leaf("Too deep", "http://x/")});
    const QVariantList work{
        leaf("Fish & <Chips>", "http://example.org/first?a=1&b=2"),
        folder("Sub", QVariantList{leaf("Zweite Straße 日本", "http://example.org/second"), deep,
                                   leaf("", "http://example.org/third")})};
    const QByteArray file =
        listOf({leaf("Top", "http://top/"), folder("Work", work), folder("Empty", QVariantList()),
                folder("Private", QVariantList{leaf("Mine", "http://mine/")})});
    const struct
    {
        QByteArray file;
        const char *selected;
        bool syncContacts;
        const char *golden; // staged
        bool isPlaced;
    } cases[] = {
        {file, "Gone Work Sub", true, "bookmarks-work.html", true},
        {file, "", true, "bookmarks-contacts.html", true},
        {file, "Empty", false, "bookmarks-none.html", false},
        {"garbage", "Work", true, "bookmarks-contacts.html", true},
        {"garbage", "", false, "bookmarks-none.html", false},
    };
    for (const auto &c : cases) {
        writeFile(sources[Safari], c.file);
        harness.set(u"enabledBookmarks", list(c.selected));
        harness.set(u"syncContacts", c.syncContacts);
        CVSyncBookmarks module(harness.stick());
        EXPECT_EQ(module.itemsToSync().size(), c.isPlaced ? 1U : 0U) << c.golden;
        EXPECT_EQ(module.unreadableLibrary().has_value(), c.file == "garbage" && *c.selected);
        const QString golden = QStringLiteral(CARAVEL_GOLDEN_FOLDER "/") + QLatin1String(c.golden);
        EXPECT_EQ(readFile(staged).toStdString(), readFile(golden).toStdString());
    }
    harness.set(u"syncContacts", true);
    int number = 0;
    for (const char *text : {"Syncing Safari Bookmarks...", "Syncing Firefox Bookmarks...",
                             "Syncing OmniWeb Bookmarks...", "Syncing Camino Bookmarks...",
                             "Syncing Firefox Bookmarks...", "Syncing Chromium Bookmarks...", ""}) {
        harness.set(u"bookmarkSource", number++);
        ASSERT_EQ(items().size(), 1U);
        EXPECT_EQ(items()[0].description.toStdString(), text);
        EXPECT_EQ(items()[0].destination, harness.stick(u"PSP/SYSTEM/BROWSER/bookmarks.html"_s));
    }
    QFile::remove(staged);
    writeFile(staged + u"/in the way"_s, {});
    const SystemLogCapture log;
    items();
    EXPECT_TRUE(log.contains(staged));
}

TEST_F(CVSyncBookmarksTest, ReadsFirefox)
{
    const QByteArray heading = "    <DT><H3 ADD_DATE=\"1\">News</H3>\n";
    const QByteArray inner = "        <DT><H3 X=\"\">Inner</H3>\n";
    const QByteArray bookmark = "        <DT><A HREF=\"http://a/?b&amp;c\" ID=\"1\">A</A>\n";
    const char *const plain = "News 1\n  A=http://a/?b&amp;c";
    expectOffers(
        Firefox,
        {{heading + bookmark, plain},
         {(heading + bookmark).chopped(1), plain},
         {"\xEF\xBB\xBF" + heading + bookmark, plain},
         {bookmark + inner + bookmark, ""},
         {heading + inner + "<DT><A HREF=\"b\" X=\"\">B &amp; C</A>\n", "News 1\n  B &amp; C=b"},
         {"    <DT><H3 X=\"\">Fish &amp; Chips &#233;</H3>\n    <DT><H3 X=\"\">Empty</H3>\n",
          "Fish & Chips é 0\nEmpty 0"},
         {heading + bookmark + "    <DT><H3 X=\"\">Between</H3>\n" + heading, "Between 0\nNews 0"},
         {"    <DT><H3 X=\"\">Caf\xE9</H3>\n", "Café 0"},
         // Lines that can't be cut leave the folder before them the current one.
         {heading + "    <DT><H3>No marker</H3>\n    <DT><H3</H3> X=\"\"></H3>\n" +
              "<DT><A HREF=\"b\">B</A>\n<DT><A X=\"\" >B</A>\n<DT><A</A>\n"
              "<DT><A HREF=\"b\" >B</A>\n<DT><A X=\"y\" HREF=\"b\">B</A>\n" +
              bookmark,
          plain},
         {QByteArray(heading + bookmark).replace("\n", "\r\n"), ""}});
    // In linear time.
    const QByteArray endless(10 << 20, 'x');
    EXPECT_EQ(offered(Firefox, heading + "<DT><A HREF=\"" + endless + "\n" +
                                   QByteArray("<DT><A</A").repeated(1 << 20) + "\n" + bookmark),
              plain);

    const QString firefox = support + u"Firefox"_s;
    const std::pair<const char *, std::optional<QString>> profiles[] = {
        {"[Profile1]\nPath=b\n[Profile0]\nPath=a\n", firefox + u"/a"_s},
        {"[Profile0]\nIsRelative=0\nPath=/etc\n", firefox + u"/etc"_s},
        {"[Profile1]\nPath=b\n", std::nullopt},
        {"[Profile0]\r\nPath=a\r\n", std::nullopt}};
    for (const auto &[ini, profile] : profiles) {
        writeFile(firefox + u"/profiles.ini"_s, ini);
        const auto found = CVSyncBookmarks::defaultFirefoxProfile();
        EXPECT_EQ(found.valueOr({}), profile.value_or(QString())) << ini;
        EXPECT_TRUE(found || found.error().isMissing()) << ini;
        EXPECT_EQ(offered(Firefox, heading), "");
    }
}

TEST_F(CVSyncBookmarksTest, ReadsOmniWeb)
{
    const auto heading = [](const QByteArray &inside) {
        return "<dt><h3><a bookmarkid=" + inside + "</a></h3>\n";
    };
    const QByteArray news = heading("7>News");
    const QByteArray bookmark = "<dt><a href=\"http://a/?b&amp;c\" bookmarkid=8>A &lt;</a>\n";
    const char *const plain = "News 1\n  A <=http://a/?b&amp;c";
    expectOffers(
        OmniWeb,
        {{bookmark + news + bookmark, plain},
         {(news + bookmark).chopped(1), plain},
         {"\xEF\xBB\xBF" + news + bookmark, plain},
         {heading("12345>Five &amp; more") + heading("99>Two"), "Five & more 0\nTwo 0"},
         {heading("123456>Six"), "3456>Six 0"},
         {heading("1>ab>c") + heading("1>a title>of one"), "c 0\na title>of one 0"},
         {heading("1>") + bookmark, " 0"},
         {news + bookmark + heading("9>Between") + news, "Between 0\nNews 0"},
         {heading("1>Caf\xE9"), "Café 0"},
         {news + " " + bookmark + "\t" + heading("9>Indented"), "News 0"},
         {news + heading("") + "<dt><a href=\"</a>\" bookmarkid=1>B</a>\n" + bookmark, plain},
         {QByteArray(news + bookmark).replace("\n", "\r\n"), ""}});
    const QByteArray endless = QByteArray("<dt><a href=\"\" bookmarkid=>").repeated(400000);
    EXPECT_EQ(offered(OmniWeb, news + endless + "\n" + bookmark), plain);
}

TEST_F(CVSyncBookmarksTest, ReadsPropertyLists)
{
    const QVariantMap page = entry("Page", "URL", u"http://p/"_s);
    QVariantMap group = entry("Group", "FolderType", 2);
    group.insert(u"Children"_s, QVariantList{page, group, 5, page});
    const QVariantList children{page,
                                group,
                                entry("No folder", "Children", QVariantList{page}),
                                entry("Wrong", "URL", 5),
                                u'x',
                                QVariantMap{{u"URL"_s, u"u:"_s}}};
    EXPECT_EQ(offered(Camino,
                      listOf({entry("Z", "Children", children), page, QVariantMap{{u"Title"_s, 5}},
                              true, entry("A", "Children", QVariantList{page}),
                              entry("W", "Children", u"no list"_s),
                              entry("A", "Children", QVariantList{group})})),
              "Z 4\n  Page=http://p/\n  Page=http://p/\n  Page=http://p/\n  u:=u:\n"
              "Page 0\nW 0\nA 2\n  Page=http://p/\n  Page=http://p/");

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
              "Odd 3\n  http://odd/=http://odd/\n? 0\nTwice 0\nTwice 1\n  b=c");

    const QByteArray good = listOf({folder("Work", QVariantList{leaf("a", "b")})});
    const QByteArray opened = "<plist><dict><key>Children</key>";
    for (const QByteArray &bad :
         {QByteArray(), good.chopped(30), PropertyList::toXml(QVariantList{1}),
          opened + QByteArray("<array><dict><key>Children</key>").repeated(100000)}) {
        for (const Source source : {Safari, Camino}) {
            const SystemLogCapture log;
            EXPECT_EQ(offered(source, bad), "") << bad.left(80).constData();
            EXPECT_TRUE(log.contains(sources[source])) << bad.left(80).constData();
        }
    }
}
