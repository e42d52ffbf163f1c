#include "modules/movies/CVSyncMovies.h"

#include "modules/movies/ConvertedMovie.h"

#include "support/SyncHarness.h"
#include "util/Settings.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

using ConvertedMovie::movieEnding;
using ConvertedMovie::thumbnailEnding;

class CVSyncMoviesTest : public testing::Test
{
protected:
    SyncHarness harness;
    const QString library = harness.home(u"Documents/Caravel/Movies"_s);
    const SystemLogCapture log;

    void SetUp() override { harness.mountStick(); }

    static std::string add(const char *title)
    {
        writeFile(ConvertedMovie::file(movieEnding), "movie");
        writeFile(ConvertedMovie::file(thumbnailEnding), "thumbnail");
        return CVSyncMovies::moveConvertedMovieNamed(QLatin1String(title))
            .identifier.value_or(u"none"_s)
            .toStdString();
    }
};

/// A library on another disk, in which every id may be taken, and that may take no more.
class OtherDisk : public FileManager
{
public:
    bool noIds = false;
    QString full = u"/Movies/M4V"_s; // what can't be moved to
    QStringList moves;
    std::optional<FileStamp> stamp(const QString &path) const override
    {
        auto stamp = FileManager::stamp(path);
        if (stamp)
            stamp->device += path.contains(u"/Documents/");
        return stamp;
    }
    FileStatus linkStatus(const QString &path) const override
    {
        return noIds && path.contains(u"/Movies/M4V") ? FileStatus{FileStatus::Kind::Folder, 0}
                                                      : FileManager::linkStatus(path);
    }
    bool move(const QString &source, const QString &destination,
              FileOperationHandler *handler) override
    {
        moves.append(destination.section(u'/', -1));
        return !destination.contains(full) && FileManager::move(source, destination, handler);
    }
};

} // namespace

TEST_F(CVSyncMoviesTest, KeepsTheLibrary)
{
    EXPECT_TRUE(CVSyncMovies::availableIdentifiers().isEmpty());
    EXPECT_EQ(add("Clip"), "M4V00001/Clip");
    EXPECT_EQ(add("Clip"), "M4V00002/Clip");
    EXPECT_EQ(add(".."), "M4V00003/_") << "no title leads out of the library";
    EXPECT_EQ(readFile(library + u"/M4V00002/Clip/M4V00002.MP4"_s), "movie");
    EXPECT_EQ(readFile(library + u"/M4V00002/Clip/M4V00002.THM"_s), "thumbnail");
    EXPECT_FALSE(QFile::exists(ConvertedMovie::file(movieEnding)));

    EXPECT_TRUE(CVSyncMovies::deleteMovieWithIdentifier(u"M4V00002/Clip"_s));
    EXPECT_TRUE(
        QFile::exists(harness.home(u".local/share/Trash/files/M4V00002/Clip/M4V00002.MP4"_s)));
    writeFile(library + u"/a file"_s, "no movie");
    writeFile(library + u"/.DS_Store"_s, "");
    QDir().mkpath(library + u"/M4V00009"_s);
    QDir().mkpath(harness.home(u"elsewhere/Linked"_s));
    QFile::link(harness.home(u"elsewhere"_s), library + u"/M4V00010"_s);
    EXPECT_EQ(CVSyncMovies::availableIdentifiers(),
              list("M4V00001/Clip M4V00003/_ M4V00010/Linked"));
    EXPECT_EQ(CVSyncMovies::nextAvailableMovieId(), u"M4V00002"_s);
    const QStringList before = treeOf(library);
    for (const char *bad : {"", "M4V00001", "../Clip", "M4V00001/..", "/etc/x", "M4V00077/Clip"})
        EXPECT_FALSE(CVSyncMovies::deleteMovieWithIdentifier(QLatin1String(bad))) << bad;
    EXPECT_EQ(treeOf(library), before);
}

TEST_F(CVSyncMoviesTest, LosesNothingThatItCantStore)
{
    OtherDisk files;
    FileManager::setDefaultManager(&files);
    EXPECT_EQ(add("Holiday"), "none");
    EXPECT_EQ(joined(files.moves), "CONVERT.MP4.part\nM4V00001.MP4\nCONVERT.MP4\nHoliday.MP4\n"
                                   "Holiday.THM");
    files.noIds = true;
    EXPECT_EQ(add("Holiday"), "none");
    EXPECT_EQ(joined(treeOf(harness.home(u"Library/Application Support/Caravel"_s))),
              "Holiday.1.MP4\nHoliday.1.THM\nHoliday.MP4\nHoliday.THM");
    files.full = u"/"_s;
    EXPECT_EQ(CVSyncMovies::moveConvertedMovieNamed(u"Lost"_s).keptAs, QString());
    EXPECT_EQ(treeOf(library), QStringList());
    FileManager::setDefaultManager(nullptr);
}

TEST_F(CVSyncMoviesTest, RenamesWithTheSelections)
{
    add("Old");
    const QString identifier = u"M4V00001/Old"_s;
    CVSyncMovies::setSelectedIdentifiers({u"other"_s, identifier}, harness.stick());
    for (const QString &bad : {QString(), u"a/b"_s, u".."_s, QString(300, u'x')})
        EXPECT_FALSE(CVSyncMovies::renameMovieWithIdentifier(identifier, bad, harness.stick()));
    EXPECT_FALSE(CVSyncMovies::renameMovieWithIdentifier(u"M4V00001/None"_s, u"New"_s, {}));
    EXPECT_EQ(log.lines().size(), 5);
    CVSyncMovies preparing(harness.stick());
    EXPECT_TRUE(CVSyncMovies::renameMovieWithIdentifier(identifier, u"New"_s, harness.stick()));
    EXPECT_EQ(preparing.itemsToSync().size(), 2U) << "it is still selected";
    EXPECT_EQ(CVSyncMovies::availableIdentifiers(), list("M4V00001/New"));
    EXPECT_EQ(CVSyncMovies::selectedIdentifiersForPSP({}), list("other M4V00001/New"));
    Settings::useSyncProfiles.set(true);
    EXPECT_EQ(CVSyncMovies::selectedIdentifiersForPSP(harness.stick()), list("other M4V00001/New"));
}

TEST_F(CVSyncMoviesTest, TakesTheSelectedMoviesAndTheDropbox)
{
    add("Clip");
    add("Unwanted");
    harness.set(u"enabledMovies", list("M4V00001/Clip M4V00044/Gone"));
    for (const char *name : {"maq00005.mp4", "MAQ00005.mp4", "MAQ00005.Thm", "clip.avi", "mp4",
                             "inner/x.mp4", "dir.mp4/y.mp4"})
        writeFile(harness.home(u"Documents/Caravel/Dropboxes/Movies/"_s + QLatin1String(name)),
                  "x");
    const std::string selected =
        "100MNV01/M4V00001.MP4 < M4V00001.MP4\n100MNV01/M4V00001.THM < M4V00001.THM";
    EXPECT_EQ(SyncHarness::wishes(CVSyncMovies(harness.stick())),
              selected + "\n100ANV01/MAQ00005.THM < MAQ00005.Thm\n"
                         "100ANV01/MAQ00005.MP4 < MAQ00005.mp4\n"
                         "101MNV01/MAQ00005.MP4 < maq00005.mp4");
    Settings::syncDropboxes.set(false);
    EXPECT_EQ(SyncHarness::wishes(CVSyncMovies(harness.stick())), selected);
    EXPECT_EQ(CVSyncMovies(harness.stick()).itemsToSync()[0].description, u"Clip"_s);
}
