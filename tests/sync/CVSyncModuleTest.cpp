// What a module queues, drops, removes and writes down.

#include "platform/lists/PropertyList.h"
#include "support/FailingFileManager.h"
#include "support/ListModule.h"
#include "support/SyncHarness.h"
#include "sync/Compare.h"
#include "util/PathComponents.h"
#include "util/Settings.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace {

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

QStringList uniqueNames(const QStringList &destinations, bool tellsCaseApart = true)
{
    std::vector<CVSyncItem> items;
    for (const QString &destination : destinations)
        items.emplace_back(QString(), destination, QString());
    QStringList names;
    for (const CVSyncItem &item : Compare::fixDuplicateDestinations(
             std::move(items), StickNames(QString(), {.tellsCaseApart = tellsCaseApart})))
        names.append(item.destination);
    return names;
}

/// Music wanted from a folder of sources; what is on the stick is made by each test.
class CVSyncModuleTest : public testing::Test
{
protected:
    TemporaryFolder sources;
    QStringList wanted; // names below the sources and below the module's folder
    ListModule::Wishes wishes{[this] { return items(); }, QStringLiteral("/PSP/MUSIC")};
    SyncHarness harness{{ListModule::kind(QStringLiteral("Music"), wishes)}};

    void SetUp() override { harness.mountStick(); }

    std::vector<CVSyncItem> items() const
    {
        std::vector<CVSyncItem> list;
        for (const QString &name : wanted)
            list.emplace_back(sources / name, musicFolder() + u'/' + name, name);
        return list;
    }
    QString musicFolder() const { return harness.stick(QStringLiteral("PSP/MUSIC")); }
    void put(const QString &name, const QByteArray &contents = "x") const
    {
        writeFile(musicFolder() + u'/' + name, contents);
    }
    void want(const QString &name, const QByteArray &contents)
    {
        writeFile(sources / name, contents);
        wanted.append(name);
    }
    QStringList onStick() const { return treeOf(musicFolder()); }
};

} // namespace

TEST(DuplicateDestinations, AreNumberedInOrder)
{
    EXPECT_EQ(uniqueNames(words("/a/S.mp3 /a/S.mp3 /b/S.mp3 /a/S.mp3 /a/s.mp3")),
              words("/a/S.mp3 /a/S.1.mp3 /b/S.mp3 /a/S.2.mp3 /a/s.mp3"));
    EXPECT_EQ(uniqueNames(words("/a/S.mp3 /a/s.mp3 /A/S.mp3"), false),
              words("/a/S.mp3 /a/s.1.mp3 /A/S.2.mp3"));
    EXPECT_EQ(uniqueNames(words("/a.b/name /a.b/name /a/.x /a/.x")),
              words("/a.b/name /a.b/name.1 /a/.x /a/.x.1"));

    const QString longest = QStringLiteral("/a/") + QString(251, u'n') + QStringLiteral(".mp3");
    const QString second = uniqueNames({longest, longest}).last();
    EXPECT_TRUE(second.endsWith(u"n.1.mp3"));
    EXPECT_EQ(second.size() - 3, PathComponents::maximumBytes);
}

TEST_F(CVSyncModuleTest, CopiesWhatIsMissingOrOfAnotherSize)
{
    want(QStringLiteral("same"), "1234");
    want(QStringLiteral("changed"), "12345");
    want(QStringLiteral("new/one"), "new");
    want(QStringLiteral("._fork"), "never copied");
    want(QStringLiteral("gone"), "");
    QFile::remove(sources / QStringLiteral("gone"));
    put(QStringLiteral("same"), "abcd");
    put(QStringLiteral("changed"), "1");
    put(QStringLiteral("gone"), "kept: it is wanted, only its source is missing");
    put(QStringLiteral("._changed"), "companion");
    put(QStringLiteral("stranger"));
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(onStick(), words("changed gone new/ new/one same"));
    EXPECT_EQ(readFile(musicFolder() + QStringLiteral("/same")), "abcd")
        << "equal sizes count as synced";
    EXPECT_EQ(readFile(musicFolder() + QStringLiteral("/changed")), "12345");
    EXPECT_EQ(harness.index(QStringLiteral("Music")),
              words("/PSP/MUSIC/same /PSP/MUSIC/changed /PSP/MUSIC/new/one"));
}

TEST_F(CVSyncModuleTest, ComparesFoldersByContentAndNeverFollowsLinks)
{
    writeFile(sources / QStringLiteral("Save/file"), "12345");
    wanted = words("Save linked planted");
    writeFile(sources / QStringLiteral("target"), "123456789");
    QFile::link(sources / QStringLiteral("target"), sources / QStringLiteral("linked"));
    writeFile(sources / QStringLiteral("planted"), "planted");
    put(QStringLiteral("Save/file"), "54321");
    // A link planted on the stick must not lead the copy to the file behind it.
    writeFile(harness.home(QStringLiteral("precious")), "precious");
    QFile::link(harness.home(QStringLiteral("precious")),
                musicFolder() + QStringLiteral("/planted"));
    ASSERT_TRUE(harness.run());
    EXPECT_EQ(readFile(musicFolder() + QStringLiteral("/Save/file")), "12345");
    EXPECT_EQ(readFile(musicFolder() + QStringLiteral("/linked")), "123456789");
    EXPECT_EQ(readFile(harness.home(QStringLiteral("precious"))), "precious");
    EXPECT_EQ(readFile(musicFolder() + QStringLiteral("/planted")), "planted");
}

TEST_F(CVSyncModuleTest, LeavesAloneWhatLinksOnTheStickLeadTo)
{
    const QString mine = harness.home(QStringLiteral("Music"));
    writeFile(mine + QStringLiteral("/album/mine.mp3"), "mine");
    writeFile(mine + QStringLiteral("/album/unwanted.mp3"), "mine too");
    want(QStringLiteral("album/mine.mp3"), "other");
    // The whole folder, then one album in it.
    for (const QString &link : {musicFolder(), musicFolder() + QStringLiteral("/album")}) {
        QDir(musicFolder()).removeRecursively();
        QDir().mkpath(link.left(link.lastIndexOf(u'/')));
        ASSERT_TRUE(
            QFile::link(link == musicFolder() ? mine : mine + QStringLiteral("/album"), link));
        harness.delegate.errors.clear();
        wishes.clears = link == musicFolder();
        EXPECT_TRUE(harness.run());
        EXPECT_EQ(readFile(mine + QStringLiteral("/album/mine.mp3")), "mine");
        EXPECT_EQ(readFile(mine + QStringLiteral("/album/unwanted.mp3")), "mine too");
        ASSERT_FALSE(harness.delegate.errors.empty());
        EXPECT_EQ(harness.delegate.errors[0].value(QStringLiteral("Path")), link);
        QFile::remove(link);
    }
}

TEST_F(CVSyncModuleTest, CleansItsFolderByTheRules)
{
    struct Case
    {
        const char *what;
        bool clears;
        bool preference; // "ownOnly": on removes strangers too
        std::optional<QByteArray> index;
        const char *left;
    };
    const QByteArray index = PropertyList::toXml(
        QStringList{QStringLiteral("/PSP/MUSIC/A/own"), QStringLiteral("/PSP/MUSIC/wanted")});
    const Case cases[] = {
        {"everything not wanted goes", true, true, index, "wanted"},
        {"only own files go", true, false, index, "A/ A/stranger B/ B/C/ B/C/stranger wanted"},
        {"without an index everything counts as own", true, false, std::nullopt, "wanted"},
        {"nothing is known to be own", true, false, QByteArray("garbage"),
         "A/ A/own A/stranger B/ B/C/ B/C/stranger wanted"},
        {"a module that doesn't clear", false, true, index,
         "A/ A/own A/stranger B/ B/C/ B/C/stranger wanted"},
    };
    want(QStringLiteral("wanted"), "w");
    for (const Case &c : cases) {
        for (const char *name : {"A/own", "A/stranger", "B/C/stranger", "D/.DS_Store", ".DS_Store"})
            put(QString::fromLatin1(name));
        QDir().mkpath(musicFolder() + QStringLiteral("/empty/inside"));
        const QString indexFile = harness.stick(QStringLiteral(".caravel/MusicSyncIndex.plist"));
        QFile::remove(indexFile);
        if (c.index)
            writeFile(indexFile, *c.index);
        wishes.clears = c.clears;
        Settings::ownOnly.set(c.preference);
        ASSERT_TRUE(harness.run()) << c.what;
        EXPECT_EQ(onStick(), words(c.left)) << c.what;
    }
}

TEST_F(CVSyncModuleTest, SwitchedOffItTakesItsFilesAway)
{
    want(QStringLiteral("one"), "1");
    ASSERT_TRUE(harness.run());
    Settings::syncMusic.set(false);
    ASSERT_TRUE(harness.run());
    EXPECT_TRUE(onStick().isEmpty());
    EXPECT_TRUE(QDir(musicFolder()).exists()) << "the module's own folder stays";
    EXPECT_TRUE(harness.index(QStringLiteral("Music")).isEmpty());
}

TEST(Compare, NeverCleansOutsideTheStick)
{
    const QString volume = QStringLiteral("/media/PSP");
    for (const QString &folder :
         {QStringLiteral("/home/PSP"), volume + QStringLiteral("-2"), QStringLiteral("/")}) {
        KindInput input;
        input.volume = volume;
        input.shouldClearUnsyncedFiles = true;
        input.folders = {{folder, false, {{QStringLiteral("mine")}}, {}}};
        EXPECT_TRUE(Compare::plan(input, StickNames(volume, {})).removals.empty());
    }
}

TEST_F(CVSyncModuleTest, AsksTheDiskLittleWhenEverythingIsInPlace)
{
    constexpr int folders = 20;
    constexpr int perFolder = 50;
    for (int i = 0; i < folders * perFolder; ++i) {
        const QString name = QStringLiteral("%1/%2").arg(i % folders).arg(i);
        want(name, "contents");
        put(name, "contents");
    }
    FailingFileManager files;
    FileManager::setDefaultManager(&files);
    EXPECT_TRUE(harness.run());
    FileManager::setDefaultManager(nullptr);
    EXPECT_LE(files.statusCalls, 2 * folders * perFolder + folders + 20);
    EXPECT_EQ(files.listings, 1);
}
