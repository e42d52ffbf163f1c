#include "util/FileManagerTools.h"
#include "util/ByteCount.h"
#include "util/Filename.h"

#include "support/TestSupport.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>

#include <cerrno>

using namespace FileManagerTools;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr qsizetype mebibyte = 1 << 20;

/// A file layer whose reads and writes can fail, in place while it lives.
class FaultyFiles : public FileManager
{
public:
    FaultyFiles() { setDefaultManager(this); }
    ~FaultyFiles() override { setDefaultManager(nullptr); }
    FaultyFiles(const FaultyFiles &) = delete;
    FaultyFiles &operator=(const FaultyFiles &) = delete;

    qint64 transfer(int from, int to, size_t count) override
    {
        // What is to fail goes through read() and write().
        const bool faulty = readsLeft >= 0 || writesLeft >= 0 || largestWrite < count;
        return faulty ? -1 : FileManager::transfer(from, to, count);
    }
    qint64 read(int descriptor, void *buffer, size_t count) override
    {
        return fails(readsLeft, EIO) ? -1 : FileManager::read(descriptor, buffer, count);
    }
    qint64 write(int descriptor, const void *buffer, size_t count) override
    {
        return fails(writesLeft, ENOSPC)
                   ? -1
                   : FileManager::write(descriptor, buffer, std::min(count, largestWrite));
    }
    bool close(int descriptor) override
    {
        ++closed;
        return FileManager::close(descriptor);
    }
    bool closeAndFlush(int descriptor) override
    {
        ++flushed;
        return close(descriptor);
    }

    int readsLeft = -1; // until they fail; -1: never
    int writesLeft = -1;
    size_t largestWrite = size_t(1) << 30;
    int closed = 0;
    int flushed = 0;

private:
    static bool fails(int &left, int error)
    {
        if (left == 0) {
            errno = error;
            return true;
        }
        left -= left > 0 ? 1 : 0;
        return false;
    }
};

class Handler : public FileOperationHandler
{
public:
    explicit Handler(size_t stopAfter = 0)
        : m_stopAfter(stopAfter)
    {
    }
    bool fileManagerCopiedBytes(quint64 bytes, const QString &toPath) override
    {
        chunks.push_back(bytes);
        paths.insert(toPath);
        return chunks.size() == m_stopAfter;
    }
    bool fileManagerShouldProceedAfterError(const FileError &error) override
    {
        errors.push_back(error.what().toStdString());
        paths.insert(error.path);
        EXPECT_FALSE(error.text.isEmpty());
        return true;
    }

    std::vector<quint64> chunks;
    std::vector<std::string> errors;
    QSet<QString> paths;

private:
    const size_t m_stopAfter;
};

class CopyPath : public testing::Test
{
protected:
    CopyPath()
    {
        for (qsizetype i = 0; i < m_contents.size(); i += 4096)
            m_contents[i] = char(i / 4096);
        writeFile(m_source, m_contents);
    }

    TemporaryFolder m_folder;
    const QString m_source = m_folder / QStringLiteral("source");
    const QString m_copy = m_folder / QStringLiteral("copy");
    QByteArray m_contents = QByteArray(2 * mebibyte + mebibyte / 2, 'c');
};

} // namespace

TEST_F(CopyPath, CopiesInChunksAndFlushesOnce)
{
    FaultyFiles files;
    files.largestWrite = 700'000; // short writes are continued
    Handler handler;
    EXPECT_TRUE(copyPath(m_source, m_copy, handler));
    EXPECT_EQ(readFile(m_copy), m_contents);
    EXPECT_THAT(handler.chunks, ElementsAre(1048576, 1048576, 524288));
    EXPECT_THAT(handler.paths, ElementsAre(m_copy));
    EXPECT_EQ(files.flushed, 1);
    EXPECT_EQ(files.closed, 2);

    writeFile(m_folder / QStringLiteral("empty"), {});
    Handler silent;
    EXPECT_TRUE(copyPath(m_folder / QStringLiteral("empty"), m_copy + u'2', silent));
    EXPECT_THAT(silent.chunks, IsEmpty());
    EXPECT_TRUE(QFile::exists(m_copy + u'2'));
}

TEST_F(CopyPath, AStopOrAFailureMidwayLeavesAShortFileThatIsClosedAndFlushed)
{
    const struct
    {
        const char *what;
        size_t stopAfter;
        int readsLeft;
        int writesLeft;
        std::vector<quint64> chunks;
        std::vector<std::string> errors;
        qsizetype size;
    } cases[] = {
        {"stopped", 1, -1, -1, {1048576}, {}, mebibyte},
        {"unreadable", 0, 2, -1, {1048576, 1048576}, {"Couldn't read"}, 2 * mebibyte},
        {"full", 0, -1, 1, {1048576, 1048576, 524288}, {"Couldn't write"}, mebibyte},
    };
    for (const auto &c : cases) {
        FaultyFiles files;
        files.readsLeft = c.readsLeft;
        files.writesLeft = c.writesLeft;
        Handler handler(c.stopAfter);
        EXPECT_TRUE(copyPath(m_source, m_copy, handler)) << c.what;
        EXPECT_EQ(handler.chunks, c.chunks) << c.what;
        EXPECT_EQ(handler.errors, c.errors) << c.what;
        EXPECT_EQ(readFile(m_copy).size(), c.size) << c.what;
        EXPECT_EQ(files.flushed, 1) << c.what;
        EXPECT_EQ(files.closed, 2) << c.what;
        QFile::remove(m_copy);
    }
}

TEST_F(CopyPath, NeverOverwritesAndReportsWhatCannotBeMadeOnce)
{
    FaultyFiles files;
    Handler handler;
    writeFile(m_copy, "old");
    QFile::link(m_folder / QStringLiteral("outside"), m_folder / QStringLiteral("dangling"));
    EXPECT_FALSE(copyPath(m_source, m_copy, handler));
    EXPECT_FALSE(copyPath(m_source, m_folder / QStringLiteral("dangling"), handler));
    EXPECT_FALSE(copyPath(m_folder / QStringLiteral("none"), m_copy + u'2', handler));
    EXPECT_EQ(readFile(m_copy), "old");
    EXPECT_FALSE(QFile::exists(m_folder / QStringLiteral("outside")));
    EXPECT_THAT(handler.errors, IsEmpty());

    const QString unmakeable = m_folder / QStringLiteral("none/copy");
    EXPECT_FALSE(copyPath(m_source, unmakeable, handler));
    EXPECT_THAT(handler.errors, ElementsAre("Couldn't create"));
    EXPECT_THAT(handler.paths, ElementsAre(unmakeable));
    EXPECT_EQ(files.closed, 3); // the source, each time that it was opened

    Handler pipe;
    ASSERT_EQ(::mkfifo(qPrintable(m_folder / QStringLiteral("pipe")), 0600), 0);
    EXPECT_FALSE(copyPath(m_folder / QStringLiteral("pipe"), m_copy + u'3', pipe));
    EXPECT_THAT(pipe.errors, ElementsAre("Couldn't read"));
}

TEST_F(CopyPath, CopiesFoldersAsTrees)
{
    writeFile(m_folder / QStringLiteral("tree/sub/x"), "x");
    Handler handler;
    EXPECT_TRUE(copyPath(m_folder / QStringLiteral("tree"), m_copy, handler));
    EXPECT_THAT(treeOf(m_copy), ElementsAre(QStringLiteral("sub/"), QStringLiteral("sub/x")));
    EXPECT_THAT(handler.chunks, IsEmpty());
}

TEST(FileManagerTools, MakesEveryMissingFolder)
{
    const TemporaryFolder folder;
    createPath(folder / QStringLiteral("a/b/c"));
    createPath(folder / QStringLiteral("a/b/c"));
    writeFile(folder / QStringLiteral("file"), "x");
    createPath(folder / QStringLiteral("file/x"));
    createPath(folder / QStringLiteral("file"));
    createPath(QStringLiteral("relative"));
    createPath(QString());
    EXPECT_THAT(treeOf(folder.path()),
                ElementsAre(QStringLiteral("a/"), QStringLiteral("a/b/"), QStringLiteral("a/b/c/"),
                            QStringLiteral("file")));
}

TEST(FileManagerTools, FollowsLinksAnywhereAlongAPath)
{
    const TemporaryFolder folder;
    writeFile(folder / QStringLiteral("real/library/file"), {});
    const char *const links[][2] = {{"real", "one"},
                                    {"one/library", "two"},
                                    {"loop b", "loop a"},
                                    {"loop a", "loop b"},
                                    {"gone", "dangling"}};
    for (const auto &link : links)
        QFile::link(folder / QString::fromUtf8(link[0]), folder / QString::fromUtf8(link[1]));
    const char *const cases[][2] = {{"one/library/file", "real/library/file"},
                                    {"two/file", "real/library/file"},
                                    {"one/new", "real/new"},
                                    {"loop a/x", "loop a/x"},
                                    {"dangling/x", "dangling/x"},
                                    {"real//library/", "real/library"}};
    const QString top = QFileInfo(folder.path()).canonicalFilePath() + u'/';
    for (const auto &c : cases)
        EXPECT_EQ(pathByResolvingAliasesInPath(folder / QString::fromUtf8(c[0])),
                  top + QString::fromUtf8(c[1]));
    EXPECT_EQ(pathByResolvingAliasesInPath(QStringLiteral("/")), QStringLiteral("/"));
}

TEST(FileManagerTools, DescribesByteCounts)
{
    const struct
    {
        std::optional<quint64> bytes;
        const char *text;
    } cases[] = {
        {std::nullopt, "--"},
        {0, "--"},
        {1, "1 b"},
        {1024, "1024 b"},
        {1025, "1.0 KB"},
        {1280, "1.2 KB"}, // a tie goes to the even digit
        {1536, "1.5 KB"},
        {1048576, "1024.0 KB"},
        {1048577, "1.0 MB"},
        {1073741824, "1024.0 MB"},
        {1610612736, "1.5 GB"},
        {1099511627776, "1024.0 GB"},
        {1099511627777, "1.0 TB"},
        {~quint64(0), "16777216.0 TB"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(sizeDescriptionForByteCount(c.bytes), QString::fromUtf8(c.text));
}

TEST(FileManagerTools, MakesFileNames)
{
    const char *const cases[][2] = {
        {"", ""},
        {"AC/DC: Live?", "AC_DC_ Live_"},
        {":/?<>|*\\", "________"},
        {"say \"hi\"", "say 'hi'"},
        {"The End.", "The End_"},
        {"The End...", "The End.._"},
        {"The End. ", "The End."},
        {"  a\tb\r\n", "a\tb"},
        {" \n ", ""},
        {".", "_"},
        {"Motörhead?", "Moto\u0308rhead_"},
        {"Élan.", "E\u0301lan_"},
        {"\u00a0\u3000é. \u2028", "e\u0301."},
    };
    for (const auto &c : cases)
        EXPECT_EQ(makeFilename(QString::fromUtf8(c[0])), QString::fromUtf8(c[1])) << c[0];
}
