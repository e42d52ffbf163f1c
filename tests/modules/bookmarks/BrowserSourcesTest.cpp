#include "modules/bookmarks/CVSyncBookmarks.h"

#include "support/SourceData.h"
#include "support/SyncHarness.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <gtest/gtest.h>

namespace {

enum Source { Places = 4, Chromium = 5 };

class BrowserSourcesTest : public testing::Test
{
protected:
    SyncHarness harness;

    std::string offered(Source source)
    {
        harness.set(u"bookmarkSource", source);
        const auto folders = CVSyncBookmarks::availableIdentifiers();
        QStringList lines;
        for (const BookmarkFolder &found : folders.valueOr({})) {
            for (const Bookmark &bookmark : found.bookmarks)
                lines.append(*found.title + u": "_s + bookmark.title + u'=' + bookmark.address);
        }
        return folders                       ? joined(lines)
               : folders.error().isMissing() ? "missing"
                                             : folders.error().what().toStdString();
    }
    void put(const QString &place, const char *name) const
    {
        writeFile(harness.home(place), sourceData(name));
    }
    static void change(const QString &database, const QString &statement)
    {
        {
            QSqlDatabase opened = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"test"_s);
            opened.setDatabaseName(database);
            ASSERT_TRUE(opened.open());
            ASSERT_TRUE(QSqlQuery(opened).exec(statement));
        }
        QSqlDatabase::removeDatabase(u"test"_s);
    }
};

} // namespace

TEST_F(BrowserSourcesTest, ReadsFirefoxWhileItRuns)
{
    EXPECT_EQ(offered(Places), "missing");
    const QString root = u".mozilla/firefox/"_s;
    for (const char *name : {"profiles.ini", "installs.ini"})
        put(root + QLatin1StringView(name), name);
    EXPECT_EQ(offered(Places), "missing");
    const QString database = root + u"PROFILE/places.sqlite"_s;
    put(database, "places.sqlite");
    const std::string menu = "Bookmarks Menu: Men\u00fc=https://menu.example/?a=1&b=2\n"
                             "Bookmarks Menu/News: Daily <News>=https://news.example/\n"
                             "Bookmarks Menu/News/Local: Local=https://local.example/";
    const std::string rest = "\nBookmarks Toolbar: Tool=https://tool.example/\n"
                             "Other Bookmarks: Other=https://other.example/";
    EXPECT_EQ(offered(Places), menu) << "the newest lie in the log";
    put(database + u"-wal"_s, "places.sqlite-wal");
    EXPECT_EQ(offered(Places), menu + rest);
    int asked = 0;
    EXPECT_FALSE(CVSyncBookmarks::readFirefoxDatabase([&asked] { return ++asked == 2; }));
    EXPECT_EQ(asked, 2) << "a cancel ends the copy, and no other try follows";
    EXPECT_EQ(joined(treeOf(harness.home(root + u"PROFILE"_s))),
              "places.sqlite\nplaces.sqlite-wal");
    harness.set(u"enabledBookmarks", list("Bookmarks-Menu"));
    harness.set(u"enabledBookmarks@4", QStringList(u"Bookmarks Menu/News"_s));
    harness.set(u"syncContacts", false);
    writeFile(harness.home(u"Library/Application Support/Caravel/log"_s), {});
    const auto items = CVSyncBookmarks(harness.stick()).itemsToSync();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].description, u"Syncing Firefox Bookmarks..."_s);
    EXPECT_EQ(readFile(items[0].source).count("<DT>"), 1);

    // The same in other places, and the profile that is named.
    QFile::remove(harness.home(database));
    for (const char *other : {".config/mozilla/firefox/", "snap/firefox/common/.mozilla/firefox/",
                              ".var/app/org.mozilla.firefox/.mozilla/firefox/"}) {
        const QString folder = QLatin1StringView(other);
        put(folder + u"profiles.ini"_s, "profiles.ini");
        put(folder + u"Own/places.sqlite"_s, "places.sqlite");
        EXPECT_EQ(offered(Places), "missing");
        put(folder + u"PROFILE/places.sqlite"_s, "places.sqlite");
        EXPECT_EQ(offered(Places), menu);
        QFile::remove(harness.home(folder + u"PROFILE/places.sqlite"_s));
    }
    for (const QString &name : {u"Own"_s, harness.home(u".config/mozilla/firefox/Own"_s)}) {
        harness.set(u"bookmarkProfile", name);
        EXPECT_EQ(offered(Places), menu);
    }
    const QString own = harness.home(u".config/mozilla/firefox/Own/places.sqlite"_s);
    change(own, u"UPDATE moz_bookmarks SET parent = id WHERE title = 'Local'"_s);
    EXPECT_EQ(offered(Places), menu.substr(0, menu.rfind('\n'))) << "a row in itself";
    change(own, u"UPDATE moz_bookmarks SET parent = 8 WHERE id = 2"_s);
    EXPECT_EQ(offered(Places), menu.substr(0, menu.rfind('\n'))) << "a circle";
    change(own, u"ALTER TABLE moz_places RENAME COLUMN url TO address"_s);
    const SystemLogCapture log;
    EXPECT_EQ(offered(Places), "Couldn't understand") << "another version";
    for (const QByteArray &bad :
         {sourceData("places.sqlite").left(100000), QByteArray(5000, 'x')}) {
        writeFile(own, bad);
        EXPECT_EQ(offered(Places), "Couldn't understand");
    }
    EXPECT_TRUE(log.contains(own));
}

TEST_F(BrowserSourcesTest, ReadsChromiumAndItsKin)
{
    const std::string all =
        "Bookmarks Bar: B\u00e4r=https://bar.example/?a=1&b=2\n"
        "Bookmarks Bar/News: Daily \"News\"=https://news.example/\n"
        "Bookmarks Bar/News/Local: https://local.example/=https://local.example/"
        "\nOther Bookmarks: Other=https://other.example/";
    EXPECT_EQ(offered(Chromium), "missing");
    for (const char *place : {".var/app/org.chromium.Chromium/config/chromium/Default/",
                              "snap/chromium/common/chromium/Default/",
                              ".config/microsoft-edge/Profile 2/", ".config/chromium/Default/"}) {
        const QString file = QLatin1StringView(place) + u"Bookmarks"_s;
        put(file, "Bookmarks");
        EXPECT_EQ(offered(Chromium), all) << place;
        writeFile(harness.home(file), R"({"roots": {"other": {"children": [{"url": "a:"}]}}})");
        EXPECT_EQ(offered(Chromium), "Other Bookmarks: a:=a:");
    }
    put(u".config/chromium/Default/AccountBookmarks"_s, "Bookmarks");
    const QString file = harness.home(u".config/chromium/Default/Bookmarks"_s);
    const std::pair<QByteArray, std::string> cases[] = {
        {"", "Couldn't understand"},
        {"{}", "Couldn't understand"},
        {sourceData("Bookmarks").chopped(9), "Couldn't understand"},
        {R"({"roots": {"synced": {"children": [7, {"type": "folder"}, {"url": 5}]}}})", all},
        {R"({"roots": {"synced": )" + QByteArray(R"({"type":"folder","children":[)").repeated(9999),
         "Couldn't understand"},
    };
    for (const auto &[contents, offer] : cases) {
        writeFile(file, contents);
        EXPECT_EQ(offered(Chromium), offer) << contents.left(80).constData();
    }
    harness.set(u"bookmarkProfile", u"Profile 2"_s);
    EXPECT_EQ(offered(Chromium), "Other Bookmarks: a:=a:");
}
