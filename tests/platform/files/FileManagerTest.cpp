#include "platform/files/FileManager.h"
#include "platform/files/FinderInfo.h"

#include "support/FailingFileManager.h"
#include "support/OperationNotes.h"
#include "support/TestSupport.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Below a folder, "a/" holds a file, a folder with a file, an empty folder, and links to a file, a
/// folder and nothing.
class FileManagerTest : public testing::Test
{
protected:
    FileManagerTest()
    {
        writeFile(folder / "a/file", "contents");
        writeFile(folder / "a/sub/über", QByteArray(3 << 20, 'x'));
        QDir().mkpath(folder / "a/empty");
        makeLink("file", "a/to file");
        makeLink("sub", "a/to sub");
        makeLink("nowhere", "a/dangling");
    }

    void makeLink(const char *target, const char *path) const
    {
        ASSERT_EQ(::symlink(target, qUtf8Printable(folder / path)), 0);
    }
    void makePipe(const char *path) const
    {
        ASSERT_EQ(::mkfifo(qUtf8Printable(folder / path), 0644), 0);
    }

    const TemporaryFolder folder;
    const QString a = folder / "a";
    const QString b = folder / "b";
    const QString none = folder / "none";
    OperationNotes notes{folder.path()};
};

TEST_F(FileManagerTest, TellsKindsAndSizes)
{
    makePipe("a/pipe");
    const auto letter = [](const FileStatus &status) {
        return "-FDL"[int(status.kind)];
    };
    std::vector<std::string> seen;
    for (const char *path : {"file", "sub/über", "to file", "dangling", "pipe", "none", "file/x"}) {
        const FileStatus status = files().status(a + u'/' + QString::fromUtf8(path));
        const FileStatus itself = files().linkStatus(a + u'/' + QString::fromUtf8(path));
        seen.push_back({letter(status), letter(itself), ' '});
        seen.back() += std::to_string(status.size);
    }
    EXPECT_THAT(seen, ElementsAre("FF 8", "FF 3145728", "FL 8", "-L 0", "FF 0", "-- 0", "-- 0"));
    EXPECT_TRUE(files().status(folder / "a/to sub").isFolder());
    EXPECT_FALSE(files().exists(folder / "a/file" + QChar(0)));
    const auto space = files().volumeSpace(a);
    ASSERT_TRUE(space);
    EXPECT_EQ(space->size, std::filesystem::space(a.toStdString()).capacity);
    EXPECT_LE(space->free, space->size);
    EXPECT_FALSE(files().volumeSpace(none));
    EXPECT_EQ(files().displayName(QStringLiteral("/media/PSP")), u"PSP");
}

TEST_F(FileManagerTest, ListsAFolderBeforeItsContentsInByteOrder)
{
    writeFile(folder / "a/Z", {});
    writeFile(folder / "a/sub.1", {});
    const QByteArray badName = a.toUtf8() + "/bad\xff";
    ASSERT_EQ(::mkdir(badName.constData(), 0755), 0);

    const SystemLogCapture log;
    std::vector<std::string> seen;
    for (const FolderEntry &entry : files().subpaths(a))
        seen.push_back(entry.path.toStdString() + (entry.isFolder ? "/ " : " ") +
                       std::to_string(entry.parent));
    EXPECT_THAT(seen, ElementsAre("Z -1", "dangling -1", "empty/ -1", "file -1", "sub/ -1",
                                  "sub/über 4", "sub.1 -1", "to file -1", "to sub -1"));
    EXPECT_TRUE(log.contains(QStringLiteral("a/bad%FF")));
    EXPECT_EQ(files().subpaths(folder / "a/to sub").size(), 1U);
    EXPECT_THAT(files().subpaths(folder / "a/file"), IsEmpty());
    EXPECT_THAT(files().subpaths(none), IsEmpty());
    EXPECT_EQ(log.lines().size(), 1);
    ::rmdir(badName.constData());
}

TEST_F(FileManagerTest, ReadsNothingThatIsNoRegularFileOrTooLong)
{
    makePipe("pipe");
    EXPECT_EQ(*files().readFile(folder / "a/to file", 8), "contents");
    EXPECT_EQ(files().readFile(folder / "a/file", 7).error().number, EFBIG);
    EXPECT_GT(files().readFile(QStringLiteral("/proc/self/stat"), 100000)->size(), 10);
    for (const QString &path : {folder / "pipe", a, none}) {
        const auto contents = files().readFile(path, 100);
        ASSERT_FALSE(contents) << path.toStdString();
        EXPECT_EQ(contents.error().isMissing(), path == none) << path.toStdString();
        EXPECT_EQ(files().openForReading(path), -1) << path.toStdString();
    }
}

TEST_F(FileManagerTest, CopiesTreesWithLinksAsLinks)
{
    ASSERT_EQ(::chmod(qUtf8Printable(folder / "a/file"), 0700), 0);
    EXPECT_TRUE(files().copy(a, b, nullptr));
    EXPECT_EQ(treeOf(b), treeOf(a));
    EXPECT_EQ(readFile(folder / "b/sub/über"), QByteArray(3 << 20, 'x'));
    EXPECT_FALSE(QFileInfo(folder / "b/file").isExecutable());
    EXPECT_EQ(QFile::symLinkTarget(folder / "b/to file"), folder / "b/file");
}

TEST_F(FileManagerTest, CopyReportsEachErrorAndGoesOnWhenAllowed)
{
    makePipe("a/empty/pipe 1");
    makePipe("a/empty/pipe 2");
    QDir().mkpath(folder / "a/sub/deep");
    const auto copy = [&](const char *from, const char *to) {
        EXPECT_FALSE(files().copy(folder / from, folder / to, &notes));
        return std::exchange(notes.errors, {});
    };
    EXPECT_THAT(copy("a", "all"),
                ElementsAre("Couldn't copy a/empty/pipe 1", "Couldn't copy a/empty/pipe 2"));
    EXPECT_EQ(treeOf(folder / "all").size(), 8);
    EXPECT_THAT(copy("a", "all"), ElementsAre("Couldn't create all"));
    EXPECT_THAT(copy("a/file", "all/file"), ElementsAre("Couldn't create all/file"));
    EXPECT_THAT(copy("none", "x"), ElementsAre("Couldn't copy none"));
    // Into itself: an end all the same.
    EXPECT_THAT(copy("a/sub", "a/sub/deep/self"), ElementsAre("Couldn't copy a/sub/deep/self"));
    notes.proceeds = false;
    EXPECT_THAT(copy("a", "some"), ElementsAre("Couldn't copy a/empty/pipe 1"));
    EXPECT_FALSE(files().exists(folder / "some/file"));
}

TEST_F(FileManagerTest, ComparesTreesByNamesKindsAndBytes)
{
    ASSERT_TRUE(files().copy(a, b, nullptr));
    EXPECT_TRUE(files().contentsEqual(a, b));
    const std::pair<const char *, QByteArray> changes[] = {
        {"sub/über", QByteArray((3 << 20) - 1, 'x') + 'y'}, // the last byte
        {"file", "content"},                                // the size
        {"empty/x", {}},                                    // one more
        {"empty", {}},                                      // a file where a folder was
        {"to file", "contents"},                            // a file where a link was
    };
    for (const auto &[path, contents] : changes) {
        ASSERT_TRUE(files().remove(b, nullptr) && files().copy(a, b, nullptr));
        if (path != QByteArray("empty/x"))
            files().remove(b + u'/' + QString::fromUtf8(path), nullptr);
        EXPECT_EQ(files().contentsEqual(a, b), path == QByteArray("empty/x")) << "less " << path;
        writeFile(b + u'/' + QString::fromUtf8(path), contents);
        EXPECT_FALSE(files().contentsEqual(a, b)) << path;
    }
    QFile::remove(folder / "b/to file");
    makeLink("./file", "b/to file");
    EXPECT_FALSE(files().contentsEqual(a, b));
}

TEST_F(FileManagerTest, RemovesTreesWithoutFollowingLinks)
{
    writeFile(folder / "kept/file", "kept");
    makeLink("../../kept", "a/sub/link");
    makeLink("kept", "link");
    makePipe("a/pipe");
    for (const QString &path : {a, folder / "link", none})
        EXPECT_TRUE(files().remove(path, &notes)) << path.toStdString();
    EXPECT_THAT(notes.errors, IsEmpty());
    EXPECT_EQ(treeOf(folder.path()).join(u' '), u"kept/ kept/file");
}

TEST_F(FileManagerTest, RemoveReportsWhatStaysAndGoesOn)
{
    ::chmod(qUtf8Printable(folder.path()), 0777);
    ::chmod(qUtf8Printable(a), 0777);
    ::chmod(qUtf8Printable(folder / "a/sub"), 0555);
    // Root may remove everything: somebody else asks.
    const auto own = ::geteuid();
    ::setfsuid(own == 0 ? 65534 : own);
    EXPECT_FALSE(files().remove(a, &notes));
    ::setfsuid(own);
    EXPECT_THAT(notes.errors, ElementsAre("Couldn't remove a/sub/über"));
    EXPECT_EQ(treeOf(a).join(u' '), QString::fromUtf8("sub/ sub/über"));
    ::chmod(qUtf8Printable(folder / "a/sub"), 0700);
}

TEST_F(FileManagerTest, MovesWithinAndAcrossFileSystemsAndReplacesNothing)
{
    EXPECT_TRUE(files().move(a, b, &notes));
    writeFile(folder / "c", "old");
    EXPECT_FALSE(files().move(folder / "b/file", folder / "c", &notes));
    EXPECT_FALSE(files().move(b, folder / "b/c", &notes));
    EXPECT_THAT(notes.errors, ElementsAre("Couldn't move b/file", "Couldn't move b"));
    EXPECT_EQ(readFile(folder / "c"), "old");

    const bool isInMemory = QStorageInfo(b).rootPath() == u"/dev/shm";
    const QTemporaryDir other((isInMemory ? QDir::currentPath() : QStringLiteral("/dev/shm")) +
                              QStringLiteral("/move-XXXXXX"));
    const QString away = other.filePath(QStringLiteral("tree"));
    makePipe("b/pipe");
    EXPECT_FALSE(files().move(b, away, nullptr));
    EXPECT_FALSE(files().exists(away)) << "half a copy stays";
    QFile::remove(folder / "b/pipe");
    const QStringList tree = treeOf(b);
    EXPECT_TRUE(tree.contains(QString::fromUtf8("sub/über")));
    EXPECT_TRUE(files().move(b, away, nullptr));
    EXPECT_EQ(treeOf(away), tree);
    EXPECT_FALSE(files().exists(b));
    EXPECT_FALSE(files().move(folder / "c", away, nullptr));
    EXPECT_EQ(treeOf(away), tree) << "what was there is gone";
}

TEST_F(FileManagerTest, ReplacesAFileWholeOrNotAtAll)
{
    const QString path = folder / "c/state.plist";
    QDir().mkpath(folder / "c/folder/x");
    EXPECT_TRUE(files().writeAtomically(path, "first"));
    EXPECT_TRUE(files().writeAtomically(path, "second"));
    FailingFileManager full;
    full.writableBytes = 3;
    const auto third = full.writeAtomically(path, "third");
    ASSERT_FALSE(third);
    EXPECT_EQ(third.error().number, ENOSPC);
    EXPECT_EQ(readFile(path), "second");
    EXPECT_FALSE(files().writeAtomically(folder / "none/x", "x"));
    EXPECT_FALSE(files().writeAtomically(folder / "c/folder", "x"));
    EXPECT_EQ(treeOf(folder / "c").join(u' '), u"folder/ folder/x/ state.plist");
}

TEST_F(FileManagerTest, TheCustomIconFlagIsSetAndAllElseKept)
{
    const auto attribute = "user.com.apple.FinderInfo";
    if (!FinderInfo::setCustomIconFlag(a))
        GTEST_SKIP() << "no user attributes here";
    const auto block = [&] {
        char bytes[128];
        return QByteArray(bytes, ::getxattr(qUtf8Printable(a), attribute, bytes, sizeof bytes));
    };
    EXPECT_EQ(block(), QByteArray(8, '\0') + '\x04' + QByteArray(23, '\0'));
    const QByteArray before = "headhead\xf1\x23" + QByteArray(40, 'l');
    ASSERT_EQ(::setxattr(qUtf8Printable(a), attribute, before.constData(), 50, 0), 0);
    EXPECT_TRUE(FinderInfo::setCustomIconFlag(a));
    EXPECT_EQ(block(), "headhead\xf4\x23" + QByteArray(40, 'l'));
    EXPECT_FALSE(FinderInfo::setCustomIconFlag(none));
}

} // namespace
