#include "platform/files/FileManager.h"
#include "platform/files/FinderInfo.h"
#include "platform/volumes/VolumeIdentity.h"

#include "support/TestSupport.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

void makeLink(const QString &target, const QString &path)
{
    ASSERT_EQ(::symlink(target.toUtf8().constData(), path.toUtf8().constData()), 0);
}

void makePipe(const QString &path)
{
    ASSERT_EQ(::mkfifo(path.toUtf8().constData(), 0644), 0);
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    ::lstat(path.toUtf8().constData(), &status);
    return status.st_mode & 07777;
}

/// Notes each error as "Error Path", the path relative to a folder.
class ErrorNotes : public FileOperationHandler
{
public:
    explicit ErrorNotes(QString folder, bool proceed = true)
        : m_folder(std::move(folder))
        , m_proceed(proceed)
    {
    }

    bool fileManagerCopiedBytes(quint64, const QString &) override { return false; }
    bool fileManagerShouldProceedAfterError(const FileError &error) override
    {
        notes.push_back((error.what() + u' ' + error.path.mid(m_folder.size() + 1)).toStdString());
        EXPECT_FALSE(error.text.isEmpty());
        return m_proceed;
    }

    std::vector<std::string> notes;

private:
    const QString m_folder;
    const bool m_proceed;
};

/// A device that takes so many bytes.
class FullDisk : public FileManager
{
public:
    explicit FullDisk(qint64 room)
        : m_room(room)
    {
    }
    qint64 write(int descriptor, const void *buffer, size_t count) override
    {
        if (m_room == 0) {
            errno = ENOSPC;
            return -1;
        }
        const qint64 taken =
            FileManager::write(descriptor, buffer, std::min(count, size_t(m_room)));
        m_room -= taken;
        return taken;
    }

private:
    qint64 m_room;
};

/// "a/" holds a file, a folder with a file, an empty folder, and links to a file, a folder and
/// nothing.
void makeTree(const TemporaryFolder &folder)
{
    writeFile(folder / QStringLiteral("a/file"), "contents");
    writeFile(folder / QStringLiteral("a/sub/über"), QByteArray(3 << 20, 'x'));
    QDir().mkpath(folder / QStringLiteral("a/empty"));
    makeLink(QStringLiteral("file"), folder / QStringLiteral("a/to file"));
    makeLink(QStringLiteral("sub"), folder / QStringLiteral("a/to sub"));
    makeLink(QStringLiteral("nowhere"), folder / QStringLiteral("a/dangling"));
}

TEST(FileManager, ALockIsWaitedForAsLongAsToldAndNoLonger)
{
    const TemporaryFolder folder;
    const QString path = folder / QStringLiteral("lock");
    const auto lock = [&path](int milliseconds) {
        return files().lock(path, std::chrono::milliseconds(milliseconds));
    };
    std::optional<FileResult<FileLock>> held = lock(0);
    ASSERT_TRUE(*held);
    EXPECT_EQ(lock(20).error().number, EWOULDBLOCK);
    const std::jthread releasing([&held] { held.reset(); });
    EXPECT_TRUE(lock(60000));
    EXPECT_TRUE(files().exists(path));
    EXPECT_TRUE(files().lock(folder / QStringLiteral("none/x"), {}).error().isMissing());
}

} // namespace

TEST(FileManager, TellsKindsAndSizes)
{
    const TemporaryFolder folder;
    makeTree(folder);
    makePipe(folder / QStringLiteral("a/pipe"));
    using Kind = FileStatus::Kind;
    const struct
    {
        QString path;
        Kind followed;
        Kind itself;
        quint64 size;
    } cases[] = {
        {QStringLiteral("a/file"), Kind::File, Kind::File, 8},
        {QStringLiteral("a/sub/über"), Kind::File, Kind::File, 3U << 20},
        {QStringLiteral("a/to file"), Kind::File, Kind::Link, 8},
        {QStringLiteral("a/to sub"), Kind::Folder, Kind::Link, 0},
        {QStringLiteral("a/dangling"), Kind::Missing, Kind::Link, 0},
        {QStringLiteral("a/pipe"), Kind::File, Kind::File, 0},
        {QStringLiteral("a/none"), Kind::Missing, Kind::Missing, 0},
        {QStringLiteral("a/file/below"), Kind::Missing, Kind::Missing, 0},
        {QStringLiteral("a/file") + QChar(0), Kind::Missing, Kind::Missing, 0},
    };
    for (const auto &c : cases) {
        const FileStatus status = files().status(folder / c.path);
        EXPECT_EQ(status.kind, c.followed) << c.path.toStdString();
        EXPECT_EQ(files().linkStatus(folder / c.path).kind, c.itself) << c.path.toStdString();
        if (!status.isFolder()) {
            EXPECT_EQ(status.size, c.size) << c.path.toStdString();
        }
    }
}

TEST(FileManager, ListsAFolderBeforeItsContentsInByteOrder)
{
    const TemporaryFolder folder;
    makeTree(folder);
    writeFile(folder / QStringLiteral("a/Z"), {});
    writeFile(folder / QStringLiteral("a/sub.1"), {});
    QFile::remove(folder / QStringLiteral("a/to file"));
    const QByteArray badName = (folder / QStringLiteral("a/bad")).toUtf8() + '\xff';
    ASSERT_EQ(::mkdir(badName.constData(), 0755), 0);

    const SystemLogCapture log;
    std::vector<std::string> seen;
    for (const FolderEntry &entry : files().subpaths(folder / QStringLiteral("a")))
        seen.push_back(entry.path.toStdString() + (entry.isFolder ? "/ " : " ") +
                       std::to_string(entry.parent));
    EXPECT_THAT(seen, ElementsAre("Z -1", "dangling -1", "empty/ -1", "file -1", "sub/ -1",
                                  "sub/über 4", "sub.1 -1", "to sub -1"));
    EXPECT_TRUE(log.contains(QStringLiteral("a/bad%FF")));

    EXPECT_EQ(files().subpaths(folder / QStringLiteral("a/to sub")).size(), 1U);
    EXPECT_THAT(files().subpaths(folder / QStringLiteral("a/file")), IsEmpty());
    EXPECT_THAT(files().subpaths(folder / QStringLiteral("none")), IsEmpty());
    EXPECT_EQ(log.lines().size(), 1);
    ::rmdir(badName.constData());
}

TEST(FileManager, ReadsNothingThatIsNoRegularFileOrTooLong)
{
    const TemporaryFolder folder;
    makeTree(folder);
    makePipe(folder / QStringLiteral("pipe"));
    EXPECT_EQ(*files().readFile(folder / QStringLiteral("a/to file"), 8), "contents");
    EXPECT_EQ(files().readFile(folder / QStringLiteral("a/file"), 7).error().number, EFBIG);
    EXPECT_GT(files().readFile(QStringLiteral("/proc/self/stat"), 100000)->size(), 10);
    for (const QString &name :
         {QStringLiteral("pipe"), QStringLiteral("a"), QStringLiteral("none")}) {
        const auto contents = files().readFile(folder / name, 100);
        ASSERT_FALSE(contents) << name.toStdString();
        EXPECT_EQ(contents.error().isMissing(), name == u"none") << name.toStdString();
        EXPECT_EQ(files().openForReading(folder / name), -1) << name.toStdString();
    }
}

TEST(FileManager, CopiesTreesWithLinksAsLinks)
{
    const TemporaryFolder folder;
    makeTree(folder);
    const ::mode_t mask = ::umask(022);
    ::umask(mask);
    ASSERT_EQ(::chmod((folder / QStringLiteral("a/file")).toUtf8().constData(), 0700), 0);
    EXPECT_TRUE(files().copy(folder / QStringLiteral("a"), folder / QStringLiteral("b"), nullptr));
    EXPECT_EQ(treeOf(folder / QStringLiteral("a")), treeOf(folder / QStringLiteral("b")));
    EXPECT_TRUE(files().contentsEqual(folder / QStringLiteral("a"), folder / QStringLiteral("b")));
    EXPECT_EQ(modeOf(folder / QStringLiteral("b/file")), 0644U & ~mask);
    EXPECT_EQ(modeOf(folder / QStringLiteral("b/empty")), 0755U & ~mask);
    EXPECT_EQ(QFile::symLinkTarget(folder / QStringLiteral("b/to file")),
              folder / QStringLiteral("b/file"));
}

TEST(FileManager, CopyReportsEachErrorAndGoesOnWhenAllowed)
{
    const TemporaryFolder folder;
    makeTree(folder);
    makePipe(folder / QStringLiteral("a/empty/pipe 1"));
    makePipe(folder / QStringLiteral("a/empty/pipe 2"));
    const auto copy = [&](const QString &from, const QString &to, bool proceed = true) {
        ErrorNotes notes(folder.path(), proceed);
        EXPECT_FALSE(files().copy(folder / from, folder / to, &notes));
        return notes.notes;
    };
    const QString a = QStringLiteral("a");
    EXPECT_THAT(copy(a, QStringLiteral("all")),
                ElementsAre("Couldn't copy a/empty/pipe 1", "Couldn't copy a/empty/pipe 2"));
    EXPECT_EQ(treeOf(folder / QStringLiteral("all")).size(), 7);
    EXPECT_THAT(copy(a, QStringLiteral("some"), false),
                ElementsAre("Couldn't copy a/empty/pipe 1"));
    EXPECT_FALSE(files().exists(folder / QStringLiteral("some/file")));
    EXPECT_THAT(copy(a, QStringLiteral("all")), ElementsAre("Couldn't create all"));
    EXPECT_THAT(copy(QStringLiteral("a/file"), QStringLiteral("all/file")),
                ElementsAre("Couldn't create all/file"));
    EXPECT_THAT(copy(QStringLiteral("none"), QStringLiteral("x")),
                ElementsAre("Couldn't copy none"));
    // Into itself: an end all the same.
    QDir().mkpath(folder / QStringLiteral("a/sub/deep"));
    EXPECT_THAT(copy(QStringLiteral("a/sub"), QStringLiteral("a/sub/deep/self")),
                ElementsAre("Couldn't copy a/sub/deep/self"));
}

TEST(FileManager, AFileThatDoesNotFitLeavesNoHalfCopy)
{
    const TemporaryFolder folder;
    makeTree(folder);
    FullDisk full(8 + (2 << 20));
    ErrorNotes notes(folder.path());
    EXPECT_FALSE(full.copy(folder / QStringLiteral("a"), folder / QStringLiteral("b"), &notes));
    EXPECT_THAT(notes.notes, ElementsAre("Couldn't write b/sub/über"));
    EXPECT_EQ(readFile(folder / QStringLiteral("b/file")), "contents");
    EXPECT_FALSE(files().exists(folder / QStringLiteral("b/sub/über")));
}

TEST(FileManager, ComparesTreesByNamesKindsAndBytes)
{
    struct Change
    {
        const char *what;
        std::function<void(const QString &copy)> make;
        bool equal;
    };
    const Change changes[] = {
        {"nothing", [](const QString &) {}, true},
        {"a byte",
         [](const QString &b) {
             QByteArray bytes(3 << 20, 'x');
             bytes.back() = 'y';
             writeFile(b + QStringLiteral("/sub/über"), bytes);
         },
         false},
        {"the size", [](const QString &b) { writeFile(b + QStringLiteral("/file"), "content"); },
         false},
        {"one more", [](const QString &b) { writeFile(b + QStringLiteral("/empty/x"), {}); },
         false},
        {"one less", [](const QString &b) { QDir().rmdir(b + QStringLiteral("/empty")); }, false},
        {"a kind",
         [](const QString &b) {
             QDir().rmdir(b + QStringLiteral("/empty"));
             writeFile(b + QStringLiteral("/empty"), {});
         },
         false},
        {"a link's target",
         [](const QString &b) {
             QFile::remove(b + QStringLiteral("/to file"));
             makeLink(QStringLiteral("./file"), b + QStringLiteral("/to file"));
         },
         false},
    };
    for (const Change &change : changes) {
        const TemporaryFolder folder;
        makeTree(folder);
        const QString copy = folder / QStringLiteral("b");
        ASSERT_TRUE(files().copy(folder / QStringLiteral("a"), copy, nullptr));
        change.make(copy);
        EXPECT_EQ(files().contentsEqual(folder / QStringLiteral("a"), copy), change.equal)
            << change.what;
    }
}

TEST(FileManager, RemovesTreesWithoutFollowingLinks)
{
    const TemporaryFolder folder;
    makeTree(folder);
    writeFile(folder / QStringLiteral("kept/file"), "kept");
    makeLink(folder / QStringLiteral("kept"), folder / QStringLiteral("a/sub/link"));
    makeLink(folder / QStringLiteral("kept"), folder / QStringLiteral("link"));
    makePipe(folder / QStringLiteral("a/pipe"));
    ErrorNotes notes(folder.path());
    for (const QString &name :
         {QStringLiteral("a"), QStringLiteral("link"), QStringLiteral("none")})
        EXPECT_TRUE(files().remove(folder / name, &notes)) << name.toStdString();
    EXPECT_THAT(notes.notes, IsEmpty());
    EXPECT_THAT(treeOf(folder.path()),
                ElementsAre(QStringLiteral("kept/"), QStringLiteral("kept/file")));
}

TEST(FileManager, RemoveReportsWhatStaysAndGoesOn)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "root may remove everything";
    const TemporaryFolder folder;
    writeFile(folder / QStringLiteral("a/locked/x"), {});
    writeFile(folder / QStringLiteral("a/other"), {});
    const QByteArray locked = (folder / QStringLiteral("a/locked")).toUtf8();
    ASSERT_EQ(::chmod(locked.constData(), 0500), 0);
    ErrorNotes notes(folder.path());
    EXPECT_FALSE(files().remove(folder / QStringLiteral("a"), &notes));
    EXPECT_THAT(notes.notes, ElementsAre("Couldn't remove a/locked/x"));
    EXPECT_FALSE(files().exists(folder / QStringLiteral("a/other")));
    ::chmod(locked.constData(), 0700);
}

TEST(FileManager, MovesWithinAndAcrossFileSystemsAndReplacesNothing)
{
    const TemporaryFolder folder;
    makeTree(folder);
    ErrorNotes notes(folder.path());
    EXPECT_TRUE(files().move(folder / QStringLiteral("a"), folder / QStringLiteral("b"), &notes));
    writeFile(folder / QStringLiteral("c"), "old");
    EXPECT_FALSE(
        files().move(folder / QStringLiteral("b/file"), folder / QStringLiteral("c"), &notes));
    EXPECT_FALSE(
        files().move(folder / QStringLiteral("b"), folder / QStringLiteral("b/c"), &notes));
    EXPECT_THAT(notes.notes, ElementsAre("Couldn't move b/file", "Couldn't move b"));
    EXPECT_EQ(readFile(folder / QStringLiteral("c")), "old");

    const QTemporaryDir other(QStringLiteral("/dev/shm/move-XXXXXX"));
    struct stat one = {};
    struct stat two = {};
    ::stat(folder.path().toUtf8().constData(), &one);
    if (!other.isValid() || ::stat(other.path().toUtf8().constData(), &two) != 0 ||
        one.st_dev == two.st_dev)
        GTEST_SKIP() << "no second file system";
    const QString away = other.filePath(QStringLiteral("tree"));
    makePipe(folder / QStringLiteral("b/pipe"));
    EXPECT_FALSE(files().move(folder / QStringLiteral("b"), away, nullptr));
    EXPECT_FALSE(files().exists(away)) << "half a copy stays";
    EXPECT_TRUE(files().exists(folder / QStringLiteral("b/sub/über")));
    QFile::remove(folder / QStringLiteral("b/pipe"));
    const QStringList tree = treeOf(folder / QStringLiteral("b"));
    EXPECT_TRUE(files().move(folder / QStringLiteral("b"), away, nullptr));
    EXPECT_EQ(treeOf(away), tree);
    EXPECT_FALSE(files().exists(folder / QStringLiteral("b")));
    writeFile(folder / QStringLiteral("d"), "new");
    EXPECT_FALSE(files().move(folder / QStringLiteral("d"), away, nullptr));
    EXPECT_EQ(treeOf(away), tree) << "what was there is gone";
}

TEST(FileManager, ReplacesAFileWholeOrNotAtAll)
{
    const TemporaryFolder folder;
    const QString path = folder / QStringLiteral("state.plist");
    EXPECT_TRUE(files().writeAtomically(path, "first"));
    EXPECT_TRUE(files().writeAtomically(path, "second"));
    EXPECT_EQ(readFile(path), "second");
    FullDisk full(3);
    const auto third = full.writeAtomically(path, "third");
    ASSERT_FALSE(third);
    EXPECT_EQ(third.error().number, ENOSPC);
    EXPECT_EQ(readFile(path), "second");
    EXPECT_FALSE(files().writeAtomically(folder / QStringLiteral("none/x"), "x"));
    QDir().mkpath(folder / QStringLiteral("folder/x"));
    EXPECT_FALSE(files().writeAtomically(folder / QStringLiteral("folder"), "x"));
    EXPECT_THAT(treeOf(folder.path()),
                ElementsAre(QStringLiteral("folder/"), QStringLiteral("folder/x/"),
                            QStringLiteral("state.plist")));
}

TEST(FileManager, MeasuresVolumesAndNamesFiles)
{
    const TemporaryFolder folder;
    const auto space = files().volumeSpace(folder.path());
    ASSERT_TRUE(space);
    EXPECT_GT(space->size, 0U);
    EXPECT_LE(space->free, space->size);
    EXPECT_FALSE(files().volumeSpace(folder / QStringLiteral("none")));
    EXPECT_EQ(files().displayName(QStringLiteral("/media/PSP")), QStringLiteral("PSP"));
}

TEST(FinderInfo, SetsItsFlagAndKeepsAllElse)
{
    const TemporaryFolder folder;
    const QByteArray path = folder.path().toUtf8();
    const auto attribute = "user.com.apple.FinderInfo";
    if (!FinderInfo::setCustomIconFlag(folder.path()))
        GTEST_SKIP() << "no user attributes here";
    const QByteArray head(8, 'h');
    const struct
    {
        QByteArray before;
        QByteArray after;
    } cases[] = {
        {{}, QByteArray(8, '\0') + QByteArray("\x04\x00", 2) + QByteArray(22, '\0')},
        {head + "\x01", head + QByteArray("\x04\x00", 2) + QByteArray(22, '\0')},
        {head + QByteArray("\xf1\x23", 2) + QByteArray(22, 't'),
         head + QByteArray("\xf4\x23", 2) + QByteArray(22, 't')},
        {head + QByteArray("\x00\x40", 2) + QByteArray(40, 'l'),
         head + QByteArray("\x04\x40", 2) + QByteArray(40, 'l')},
    };
    for (const auto &c : cases) {
        ::removexattr(path.constData(), attribute);
        if (!c.before.isEmpty()) {
            ASSERT_EQ(::setxattr(path.constData(), attribute, c.before.constData(),
                                 size_t(c.before.size()), 0),
                      0);
        }
        EXPECT_TRUE(FinderInfo::setCustomIconFlag(folder.path()));
        char block[128];
        const ssize_t size = ::getxattr(path.constData(), attribute, block, sizeof block);
        EXPECT_EQ(QByteArray(block, size), c.after) << c.before.toHex().toStdString();
    }
    EXPECT_FALSE(FinderInfo::setCustomIconFlag(folder / QStringLiteral("none")));
}

TEST(VolumeIdentity, TellsAFolderFromOneMadeInItsPlace)
{
    const TemporaryFolder folder;
    const QString path = folder / QStringLiteral("stick");
    EXPECT_FALSE(VolumeIdentity::of(path));
    QDir().mkpath(path);
    const auto first = VolumeIdentity::of(path);
    writeFile(path + QStringLiteral("/file"), "x");
    EXPECT_TRUE(first);
    EXPECT_EQ(first, VolumeIdentity::of(path));
    EXPECT_FALSE(VolumeIdentity::of(path + QStringLiteral("/file")));
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    EXPECT_NE(first, VolumeIdentity::of(path));
}
