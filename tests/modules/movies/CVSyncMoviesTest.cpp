#include "modules/movies/CVSyncMovies.h"

#include "support/SyncHarness.h"
#include "sync/ModuleSelection.h"
#include "util/Settings.h"

#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString mp4 = u".MP4"_s;
const QString thm = u".THM"_s;

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

class CVSyncMoviesTest : public testing::Test
{
protected:
    SyncHarness harness;

    void SetUp() override { harness.mountStick(); }

    QString library(const QString &relative = {}) const
    {
        return harness.home(u"Documents/Caravel/Movies/"_s + relative);
    }
    static void putConverted()
    {
        writeFile(CVSyncMovies::convertedFile(mp4), "movie");
        writeFile(CVSyncMovies::convertedFile(thm), "thumbnail");
    }
    static std::optional<QString> add(const char *title)
    {
        putConverted();
        return CVSyncMovies::moveConvertedMovieNamed(QString::fromUtf8(title));
    }
    QStringList items()
    {
        QStringList lines;
        for (const CVSyncItem &item : CVSyncMovies(harness.stick()).itemsToSync())
            lines.append(item.destination.mid(harness.stick(u"MP_ROOT/"_s).size()) + u" < "_s +
                         item.source.section(u'/', -1) + u" : "_s + item.description);
        return lines;
    }
};

/// A library in which every id is taken, or a disk that takes no more.
class FullFileManager : public FileManager
{
public:
    bool noIds = false;
    bool noMoves = false;
    FileStatus linkStatus(const QString &path) const override
    {
        const bool isId = path.contains(u"/Movies/M4V"_s) && path.endsWith(u"9");
        return noIds && (isId || path.contains(u"/Movies/M4V"_s))
                   ? FileStatus{FileStatus::Kind::Folder, 0}
                   : FileManager::linkStatus(path);
    }
    bool move(const QString &source, const QString &destination,
              FileOperationHandler *handler) override
    {
        if (noMoves && destination.contains(u"/Movies/"_s))
            return false;
        return FileManager::move(source, destination, handler);
    }
};

} // namespace

TEST_F(CVSyncMoviesTest, KeepsTheLibrary)
{
    EXPECT_TRUE(CVSyncMovies::availableIdentifiers().isEmpty());
    EXPECT_EQ(add("Clip"), u"M4V00001/Clip"_s);
    EXPECT_EQ(add("Clip"), u"M4V00002/Clip"_s);
    EXPECT_EQ(add(".."), u"M4V00003/_"_s) << "no title leads out of the library";
    EXPECT_EQ(readFile(library(u"M4V00002/Clip/M4V00002.MP4"_s)), "movie");
    EXPECT_EQ(readFile(library(u"M4V00002/Clip/M4V00002.THM"_s)), "thumbnail");
    EXPECT_FALSE(QFile::exists(CVSyncMovies::convertedFile(mp4)));

    EXPECT_TRUE(CVSyncMovies::deleteMovieWithIdentifier(u"M4V00002/Clip"_s));
    EXPECT_TRUE(
        QFile::exists(harness.home(u".local/share/Trash/files/M4V00002/Clip/M4V00002.MP4"_s)));
    writeFile(library(u"a file"_s), "no movie");
    writeFile(library(u".DS_Store"_s), "");
    QDir().mkpath(library(u"M4V00009"_s));
    EXPECT_EQ(CVSyncMovies::availableIdentifiers(), list({"M4V00001/Clip", "M4V00003/_"}));
    EXPECT_EQ(CVSyncMovies::nextAvailableMovieId(), u"M4V00002"_s);

    const QStringList before = treeOf(library());
    const SystemLogCapture log;
    for (const char *bad : {"", "M4V00001", "../Clip", "M4V00001/..", "/etc/x", "M4V00077/Clip"})
        EXPECT_FALSE(CVSyncMovies::deleteMovieWithIdentifier(QString::fromUtf8(bad))) << bad;
    EXPECT_EQ(treeOf(library()), before);
}

TEST_F(CVSyncMoviesTest, LosesNothingThatItCantStore)
{
    FullFileManager files;
    FileManager::setDefaultManager(&files);
    const SystemLogCapture log;
    const QString support = harness.home(u"Library/Application Support/Caravel"_s);
    files.noIds = true;
    EXPECT_FALSE(add("Holiday"));
    files.noIds = false;
    files.noMoves = true;
    EXPECT_FALSE(add("Holiday"));
    EXPECT_EQ(treeOf(support),
              list({"Holiday.1.MP4", "Holiday.1.THM", "Holiday.MP4", "Holiday.THM"}));
    EXPECT_TRUE(CVSyncMovies::availableIdentifiers().isEmpty());
    FileManager::setDefaultManager(nullptr);
}

TEST_F(CVSyncMoviesTest, MovesToALibraryOnAnotherFileSystem)
{
    const QTemporaryDir other(u"/dev/shm/caravel-XXXXXX"_s);
    if (!other.isValid() || QStorageInfo(other.path()) == QStorageInfo(harness.folder.path()))
        GTEST_SKIP() << "there is no second file system in /dev/shm";
    harness.defaults.setObject(u"CaravelFolder"_s, other.path());
    EXPECT_EQ(add("Clip"), u"M4V00001/Clip"_s);
    EXPECT_EQ(readFile(other.filePath(u"Caravel/Movies/M4V00001/Clip/M4V00001.MP4"_s)), "movie");
    EXPECT_FALSE(QFile::exists(CVSyncMovies::convertedFile(mp4)));
}

TEST_F(CVSyncMoviesTest, RenamesWithTheSelections)
{
    add("Old");
    const QString identifier = u"M4V00001/Old"_s;
    CVSyncMovies::setSelectedIdentifiers({u"other"_s, identifier}, harness.stick());
    const SystemLogCapture log;
    const QString tooLong(300, u'x');
    for (const QString &bad : {QString(), u"a/b"_s, u".."_s, tooLong})
        EXPECT_FALSE(CVSyncMovies::renameMovieWithIdentifier(identifier, bad, harness.stick()));
    EXPECT_FALSE(
        CVSyncMovies::renameMovieWithIdentifier(u"M4V00001/None"_s, u"New"_s, harness.stick()));
    EXPECT_EQ(log.lines().size(), 5);
    EXPECT_TRUE(CVSyncMovies::renameMovieWithIdentifier(identifier, u"New"_s, harness.stick()));
    EXPECT_EQ(CVSyncMovies::availableIdentifiers(), list({"M4V00001/New"}));
    const QStringList renamed = list({"other", "M4V00001/New"});
    EXPECT_EQ(CVSyncMovies::selectedIdentifiersForPSP({}), renamed);
    Settings::useSyncProfiles.set(true);
    EXPECT_EQ(CVSyncMovies::selectedIdentifiersForPSP(harness.stick()), renamed);
}

TEST_F(CVSyncMoviesTest, TakesTheSelectedMoviesAndTheDropbox)
{
    add("Clip");
    add("Unwanted");
    CVSyncMovies::setSelectedIdentifiers(list({"M4V00001/Clip", "M4V00044/Gone"}), harness.stick());
    for (const char *name : {"maq00005.mp4", "MAQ00005.mp4", "MAQ00005.Thm", "clip.avi", "mp4",
                             "inner/x.mp4", "dir.mp4/y.mp4"})
        writeFile(harness.home(u"Documents/Caravel/Dropboxes/Movies/"_s + QString::fromUtf8(name)),
                  "dropped");
    EXPECT_EQ(items(), list({"100MNV01/M4V00001.MP4 < M4V00001.MP4 : Clip",
                             "100MNV01/M4V00001.THM < M4V00001.THM : Clip",
                             "100ANV01/MAQ00005.THM < MAQ00005.Thm : MAQ00005.Thm",
                             "100ANV01/MAQ00005.MP4 < MAQ00005.mp4 : MAQ00005.mp4",
                             "101MNV01/MAQ00005.MP4 < maq00005.mp4 : maq00005.mp4"}));
    Settings::syncDropboxes.set(false);
    EXPECT_EQ(items().size(), 2);
}
