#include "util/FileManagerTools.h"

#include "support/FailingFileManager.h"
#include "support/OperationNotes.h"
#include "support/TestSupport.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using namespace FileManagerTools;
using testing::ElementsAre;
using testing::IsEmpty;

using Ended = CopyOutcome::Ended;

namespace {

constexpr qsizetype mebibyte = 1 << 20;

class CopyPath : public testing::Test
{
protected:
    CopyPath()
    {
        for (qsizetype i = 0; i < contents.size(); i += 4096)
            contents[i] = char(i / 4096);
        writeFile(source, contents);
        FileManager::setDefaultManager(&disk);
    }
    ~CopyPath() override { FileManager::setDefaultManager(nullptr); }

    const TemporaryFolder folder;
    const QString source = folder / "source";
    const QString copy = folder / "copy";
    QByteArray contents = QByteArray(2 * mebibyte + mebibyte / 2, 'c');
    FailingFileManager disk;
    OperationNotes notes{folder.path()};
};

} // namespace

TEST_F(CopyPath, CopiesInChunksAndFlushesOnce)
{
    disk.largestWrite = 700'000; // short writes are continued
    EXPECT_EQ(copyPath(source, copy, notes).ended, Ended::Complete);
    EXPECT_EQ(readFile(copy), contents);
    EXPECT_THAT(notes.chunks, ElementsAre(1048576, 1048576, 524288));
    EXPECT_EQ(notes.copied, copy);
    EXPECT_EQ(disk.flushed, 1);
    EXPECT_EQ(disk.closed, 2);
    FileManager::setDefaultManager(nullptr); // a system that moves the bytes by itself
    OperationNotes same(folder.path());
    EXPECT_EQ(copyPath(source, folder / "second", same).ended, Ended::Complete);
    EXPECT_EQ(same.chunks, notes.chunks);
    EXPECT_EQ(readFile(folder / "second"), contents);
    writeFile(folder / "empty", {});
    EXPECT_EQ(copyPath(folder / "empty", folder / "third", same).ended, Ended::Complete);
    EXPECT_EQ(same.chunks.size(), 3U);
    EXPECT_TRUE(QFile::exists(folder / "third"));
}

TEST_F(CopyPath, AStopOrAFailureMidwayLeavesAShortFileThatIsClosedAndFlushed)
{
    const struct
    {
        size_t stopAfter;
        std::optional<int> readableTimes;
        std::optional<qint64> writableBytes;
        size_t chunks;
        std::vector<std::string> errors;
        qsizetype size;
    } cases[] = {
        {1, {}, {}, 1, {}, mebibyte},
        {0, 2, {}, 2, {"Couldn't read source"}, 2 * mebibyte},
        {0, {}, mebibyte, 3, {"Couldn't write copy"}, mebibyte},
    };
    for (const auto &c : cases) {
        OperationNotes told(folder.path());
        told.stopAfter = c.stopAfter;
        disk.readableTimes = c.readableTimes;
        disk.writableBytes = c.writableBytes;
        disk.closed = disk.flushed = 0;
        const auto ended = c.stopAfter > 0 ? Ended::Stopped : Ended::Failed;
        EXPECT_EQ(copyPath(source, copy, told).ended, ended) << c.size;
        EXPECT_EQ(told.chunks.size(), c.chunks) << c.size;
        EXPECT_EQ(told.errors, c.errors);
        EXPECT_EQ(readFile(copy).size(), c.size);
        EXPECT_EQ(disk.flushed, 1) << c.size;
        EXPECT_EQ(disk.closed, 2) << c.size;
        QFile::remove(copy);
    }
}

TEST_F(CopyPath, NeverOverwritesAndReportsWhatCannotBeMadeOnce)
{
    writeFile(copy, "old");
    QFile::link(folder / "outside", folder / "dangling");
    EXPECT_EQ(copyPath(source, copy, notes).ended, Ended::Refused);
    EXPECT_EQ(copyPath(source, folder / "dangling", notes).ended, Ended::Refused);
    EXPECT_EQ(copyPath(folder / "none", folder / "second", notes).ended, Ended::Refused);
    EXPECT_EQ(readFile(copy), "old");
    EXPECT_FALSE(QFile::exists(folder / "outside"));
    EXPECT_THAT(notes.errors, IsEmpty());
    EXPECT_EQ(copyPath(source, folder / "none/copy", notes).ended, Ended::Refused);
    EXPECT_EQ(disk.closed, 3); // the source, each time that it was opened
    ASSERT_EQ(::mkfifo(qPrintable(folder / "pipe"), 0600), 0);
    EXPECT_EQ(copyPath(folder / "pipe", folder / "second", notes).ended, Ended::Refused);
    EXPECT_THAT(notes.errors, ElementsAre("Couldn't create none/copy", "Couldn't read pipe"));
}

TEST(FileManagerTools, MakesEveryMissingFolder)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "x");
    for (const char *path : {"a/b/c", "a/b/c", "file/x", "file"})
        createPath(folder / path);
    createPath(QStringLiteral("relative"));
    EXPECT_EQ(treeOf(folder.path()).join(u' '), u"a/ a/b/ a/b/c/ file");
    EXPECT_FALSE(QFile::exists(QStringLiteral("relative")));
}

TEST(FileManagerTools, FollowsLinksAnywhereAlongAPath)
{
    const TemporaryFolder folder;
    writeFile(folder / "real/library/file", {});
    for (const auto &[target, name] : {std::pair("real", "one"),
                                       {"one/library", "two"},
                                       {"loop b", "loop a"},
                                       {"loop a", "loop b"},
                                       {"gone", "dangling"}})
        QFile::link(folder / target, folder / name);
    const QString top = QFileInfo(folder.path()).canonicalFilePath() + u'/';
    for (const auto &[path, resolved] : {std::pair("one/library/file", "real/library/file"),
                                         {"two/file", "real/library/file"},
                                         {"one/new", "real/new"},
                                         {"loop a/x", "loop a/x"},
                                         {"dangling/x", "dangling/x"},
                                         {"real//library/", "real/library"}})
        EXPECT_EQ(pathByResolvingAliasesInPath(folder / path), top + QString::fromUtf8(resolved));
    EXPECT_EQ(pathByResolvingAliasesInPath(QStringLiteral("/")), QStringLiteral("/"));
}
