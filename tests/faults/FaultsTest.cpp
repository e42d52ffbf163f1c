// A sync, a restore and the move of a converted movie, killed at any of their calls on files and
// with any of them failing; then once undisturbed. What lies on the stick and in the home must be
// what a run leaves that was never disturbed.
//
// CARAVEL_FAULT_POINTS is the number of places per table row, 12 unless it says otherwise; 0: all.

#include "support/MusicLibraryFile.h"
#include "support/PhotoLibraryFile.h"
#include "support/TestSupport.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <random>
#include <set>

namespace {

using Snapshot = std::map<QString, QByteArray>; // of a place's files, by path

const QString stick = QStringLiteral("volumes/STICK/");

/// What a sync or a restore puts where, by the sample's paths.
const std::map<QString, std::vector<std::pair<const char *, const char *>>> copies{
    {QStringLiteral("sync"),
     {{"PSP/MUSIC/Album 0/Song 1.mp3", "home/Music/Song 1.mp3"},
      {"PSP/MUSIC/Album 0/Song 2.mp3", "home/Music/Song 2.mp3"},
      {"PSP/MUSIC/Album 1/Song 3.mp3", "home/Music/Song 3.mp3"},
      {"PSP/MUSIC/Album 1/Song 4.mp3", "home/Music/Song 4.mp3"},
      {"PSP/MUSIC/Album 1/Song 5.mp3", "home/Music/Song 5.mp3"},
      {"PSP/MUSIC/Album 2/Song 6.mp3", "home/Music/Song 6.mp3"},
      {"PSP/MUSIC/Own/own.mp3", "home/Documents/Caravel/Dropboxes/Music/Own/own.mp3"},
      {"PSP/PHOTO/Trip/Beach.jpg", "home/Pictures/1.jpg"},
      {"PSP/PHOTO/Trip/Beach.1.jpg", "home/Pictures/2.jpg"},
      {"PSP/PHOTO/Trip/Beach.2.jpg", "home/Pictures/3.jpg"},
      {"MP_ROOT/100MNV01/M4V00001.MP4", "home/Documents/Caravel/Movies/M4V00001/Film/M4V00001.MP4"},
      {"MP_ROOT/100MNV01/M4V00001.THM", "home/Documents/Caravel/Movies/M4V00001/Film/M4V00001.THM"},
      {".VolumeIcon.icns", "Caravel/Contents/Helpers/CaravelHelper/Contents/Resources/PSP3.icns"}}},
    {QStringLiteral("restore"),
     {{"PSP/SAVEDATA/GAME/DATA.BIN",
       "home/Documents/Caravel/Backup/Game Saves/GAME/1000000000/GAME/DATA.BIN"}}}};

/// What a sync writes that is no copy, and something that it holds.
constexpr std::pair<const char *, const char *> written[] = {
    {"preferences/org.caravel.Caravel.plist", "<key>lastSync</key>"},
    {"home/Library/Application Support/Caravel/bookmarks.html", "Caravel Contacts"},
    {"home/Library/Application Support/Caravel/contacts_index.html", "Ada Quill"},
    {"home/Library/Application Support/Caravel/0cc175b9c0f1b6a831c399e269772661.JPG", "JFIF"},
    {"volumes/STICK/PSP/SYSTEM/BROWSER/bookmarks.html", "Caravel Contacts"},
    {"volumes/STICK/Caravel/Contacts/index.html", "Ada Quill"},
    {"volumes/STICK/Caravel/Contacts/0cc175b9c0f1b6a831c399e269772661.JPG", "JFIF"},
    {"home/Library/Application Support/Caravel/LastRun.plist", "<key>ended</key>"},
    {"volumes/STICK/.caravel/LastSyncSize", "streamtyped"},
    {"volumes/STICK/.caravel/BackupSyncIndex.plist", "</plist>"},
    {"volumes/STICK/.caravel/LastSelection.plist", "<key>Contacts</key>"},
    {"volumes/STICK/.caravel/BookmarksSyncIndex.plist", ">/PSP/SYSTEM/BROWSER/bookmarks.html<"},
    {"volumes/STICK/.caravel/ContactsSyncIndex.plist", ">/Caravel/Contacts/index.html<"},
    {"volumes/STICK/.caravel/MoviesSyncIndex.plist", ">/MP_ROOT/100MNV01/M4V00001.THM<"},
    {"volumes/STICK/.caravel/MusicSyncIndex.plist", ">/PSP/MUSIC/Album 2/Song 6.mp3<"},
    {"volumes/STICK/.caravel/PhotosSyncIndex.plist", ">/PSP/PHOTO/Trip/Beach.2.jpg<"},
};

Snapshot snapshotOf(const QString &place)
{
    Snapshot snapshot;
    // A state that was kept twice, since the first attempt failed later, counts once.
    static const QRegularExpression newBackup(QStringLiteral("/GAME/17\\d+"));
    static const QRegularExpression kept(QStringLiteral("/Removed from PSP/[^/]+"));
    for (const QString &path : treeOf(place)) {
        if (!path.endsWith(u'/') && !path.endsWith(u".lock"))
            snapshot[QString(path)
                         .replace(newBackup, QStringLiteral("/GAME/new"))
                         .replace(kept, QStringLiteral("/Removed from PSP/new"))] =
                readFile(place + u'/' + path);
    }
    return snapshot;
}

QByteArray someBytes(int seed, int size)
{
    std::mt19937 random(static_cast<unsigned>(seed));
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

struct Outcome
{
    bool exited = false; ///< neither killed nor hanging
    int status = -1;
    QStringList lines; ///< what the subject printed
    QString log;
    QByteArrayList report; ///< the shim's
};

class Faults : public testing::Test
{
protected:
    const TemporaryFolder folder;
    const QString sample = folder / QStringLiteral("sample");
    const QString place = folder / QStringLiteral("place");
    QString m_what;

    QString at(const char *path) const { return place + u'/' + QString::fromUtf8(path); }

    /// Starts from the sample, whose library names files by their place.
    void begin() const
    {
        std::filesystem::remove_all(place.toStdString());
        std::filesystem::copy(sample.toStdString(), place.toStdString(),
                              std::filesystem::copy_options::recursive |
                                  std::filesystem::copy_options::copy_symlinks);
    }

    Outcome run(const QString &plan = {}) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString report = folder / QStringLiteral("report");
        QFile::remove(report);
        if (!plan.isEmpty()) {
            environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(CARAVEL_FAULT_SHIM));
            environment.insert(QStringLiteral("CARAVEL_FAULT_ROOT"), place);
            environment.insert(QStringLiteral("CARAVEL_FAULT"), plan);
            environment.insert(QStringLiteral("CARAVEL_FAULT_REPORT"), report);
        }
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(CARAVEL_FAULT_SUBJECT), {place, m_what});
        Outcome outcome;
        const bool finished = process.waitForFinished(60000);
        if (!finished)
            process.kill();
        outcome.exited = finished && process.exitStatus() == QProcess::NormalExit;
        outcome.status = process.exitCode();
        outcome.lines = QString::fromLocal8Bit(process.readAllStandardOutput())
                            .split(u'\n', Qt::SkipEmptyParts);
        outcome.log = QString::fromLocal8Bit(process.readAllStandardError());
        if (QFile::exists(report))
            outcome.report = readFile(report).split('\n');
        return outcome;
    }

    /// What lies in the place that shouldn't, lacks or is another.
    std::string differences() const
    {
        Snapshot found = snapshotOf(place);
        QStringList lines;
        const auto take = [&](const QString &path, const auto &isRight) {
            const auto file = found.find(path);
            if (file == found.end() || !isRight(file->second))
                lines.append(u"lacks or differs "_qs + path);
            found.erase(path);
        };
        for (const auto &[path, bytes] : wanted())
            take(path, [&all = bytes](const QByteArray &contents) { return contents == all; });
        for (const auto &[path, part] : written) {
            if (m_what == u"sync")
                take(QString::fromUtf8(path), [&some = part](const QByteArray &contents) {
                    return contents.contains(some);
                });
        }
        // Of what a failure leaves unknown more may be kept than had to be.
        for (const auto &[path, bytes] : found) {
            if (!path.contains(u"/Removed from PSP/"))
                lines.append(u"has "_qs + path);
        }
        return lines.join(u'\n').toStdString();
    }
    /// What is as the sample has it, and the copies.
    Snapshot wanted() const
    {
        const Snapshot before = snapshotOf(sample);
        Snapshot after = before;
        const QString history = u"home/Documents/Caravel/Backup/Game Saves/GAME/new/GAME/"_qs;
        const QString save = stick + u"PSP/SAVEDATA/GAME/"_qs;
        for (const auto &file : {u"DATA.BIN"_qs, u"a/DEEP"_qs})
            after[history + file] = before.at(save + file);
        if (m_what == u"restore") {
            after.erase(save + u"a/DEEP"_qs);
        } else {
            // No sync had placed them.
            for (const QString &mine :
                 {u"PSP/MUSIC/Old/gone.mp3"_qs, u"PSP/MUSIC/Album 0/Song 1.mp3"_qs})
                after[u"home/Documents/Caravel/Removed from PSP/new/"_qs + mine] =
                    before.at(stick + mine);
            after.erase(stick + u"PSP/MUSIC/Old/gone.mp3"_qs);
            for (const auto &[path, part] : written)
                after.erase(QString::fromUtf8(path));
        }
        for (const auto &[to, from] : copies.at(m_what))
            after[stick + QLatin1String(to)] = before.at(QString::fromUtf8(from));
        return after;
    }

    /// An undisturbed run on a copy of the sample; how many calls of that kind it makes.
    long measure(const QString &what, const QString &calls)
    {
        m_what = what;
        begin();
        const Outcome outcome = run(calls + QStringLiteral(":0:kill"));
        EXPECT_TRUE(outcome.exited && outcome.status == 0) << outcome.log.toStdString();
        EXPECT_EQ(m_what == u"store" ? "" : differences(), "");
        for (const QString &path : treeOf(place)) {
            struct stat status = {};
            ::stat(qPrintable(place + u'/' + path), &status);
            EXPECT_FALSE(outcome.report.mid(1).contains(QByteArray::number(quint64(status.st_ino))))
                << "not flushed: " << path.toStdString();
        }
        return outcome.report.value(0).toLong();
    }

    static int pointsOfEachRow()
    {
        bool isSet = false;
        const int count = qEnvironmentVariableIntValue("CARAVEL_FAULT_POINTS", &isSet);
        return isSet ? count : 12;
    }
    static bool isFullLength() { return pointsOfEachRow() == 0; }

    /// The numbers of the calls to disturb: all of them or a seeded choice.
    static std::set<long> points(long calls)
    {
        const int count = pointsOfEachRow();
        std::set<long> chosen;
        std::mt19937 random(20060314);
        while (count > 0 && chosen.size() < size_t(std::min<long>(count, calls)))
            chosen.insert(1 + long(random() % static_cast<unsigned long>(calls)));
        for (long i = 1; count == 0 && i <= calls; ++i)
            chosen.insert(i);
        return chosen;
    }

    // The sample is copied a thousand times.
    static void SetUpTestSuite()
    {
        if (QFileInfo(QStringLiteral("/dev/shm")).isWritable())
            qputenv("TMPDIR", "/dev/shm");
    }

    /// Path and inode of each file that a run has put on the stick.
    std::set<std::pair<QString, ino_t>> mediaOnStick() const
    {
        std::set<std::pair<QString, ino_t>> files;
        for (const char *kind : {"PSP/MUSIC/", "PSP/PHOTO/", "MP_ROOT/", "Caravel/Contacts/"}) {
            const QString below = at("volumes/STICK/") + QLatin1String(kind);
            for (const QString &path : treeOf(below)) {
                struct stat status;
                if (!path.endsWith(u'/') && ::stat(qPrintable(below + path), &status) == 0)
                    files.emplace(below + path, status.st_ino);
            }
        }
        return files;
    }

    void makeSample();
    void expectRepaired(const std::string &where);
    qsizetype expectSurvived(const QString &plan);
    void SetUp() override { makeSample(); }
};

void Faults::makeSample()
{
    const auto put = [&](const char *path, const QByteArray &bytes) {
        writeFile(at(path), bytes);
    };
    MusicLibraryFile music;
    QList<int> ids;
    for (int i = 1; i <= 6; ++i) {
        const QString name = QStringLiteral("Song %1.mp3").arg(i);
        const QString path = at("home/Music/") + name;
        writeFile(path, someBytes(i, i == 3 ? 2500000 : 20000 + i));
        music.addFile(i, path,
                      MusicLibraryFile::string("Name", QStringLiteral("Song %1").arg(i)) +
                          MusicLibraryFile::string("Album", QStringLiteral("Album %1").arg(i / 3)));
        ids.append(i);
    }
    music.addPlaylist(QStringLiteral("Mix"), ids);
    put("home/Music/iTunes/iTunes Music Library.xml", music.contents());
    PhotoLibraryFile photos;
    for (int i = 1; i <= 3; ++i) {
        const QString path = at("home/Pictures/") + QStringLiteral("%1.jpg").arg(i);
        writeFile(path, someBytes(10 + i, 9000));
        photos.addImage(QString::number(i), path, QStringLiteral("Beach"));
    }
    photos.addAlbum(QStringLiteral("Trip"),
                    {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    put("home/Pictures/iPhoto Library/AlbumData.xml", photos.contents());
    put("home/Documents/Caravel/Movies/M4V00001/Film/M4V00001.MP4", someBytes(20, 50000));
    put("home/Documents/Caravel/Movies/M4V00001/Film/M4V00001.THM", someBytes(21, 3000));
    put("home/Documents/Caravel/Dropboxes/Music/Own/own.mp3", someBytes(22, 7000));
    put("home/Library/Application Support/Caravel/CONVERT.MP4", someBytes(23, 60000));
    put("home/Library/Application Support/Caravel/CONVERT.THM", someBytes(24, 2000));
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    QImage(30, 20, QImage::Format_RGB32).save(&buffer, "PNG");
    put("home/.contacts/all.vcf",
        "BEGIN:VCARD\nUID:a\nFN:Ada Quill\nPHOTO;ENCODING=b:" + png.toBase64() + "\nEND:VCARD\n");
    for (const char *stamp : {"1000000000", "1000000060"})
        writeFile(at("home/Documents/Caravel/Backup/Game Saves/GAME/") +
                      QStringLiteral("%1/GAME/DATA.BIN").arg(QLatin1String(stamp)),
                  stamp);
    put("Caravel/Contents/Helpers/CaravelHelper/Contents/Resources/PSP3.icns", someBytes(30, 5000));
    put("volumes/STICK/MEMSTICK.IND", {});
    put("volumes/STICK/.caravel/MusicSyncIndex.plist", "<plist><array/></plist>");
    put("volumes/STICK/PSP/SAVEDATA/GAME/DATA.BIN", "now");
    put("volumes/STICK/PSP/SAVEDATA/GAME/a/DEEP", someBytes(31, 30000));
    put("volumes/STICK/PSP/MUSIC/Old/gone.mp3", someBytes(32, 4000));
    put("volumes/STICK/PSP/MUSIC/Album 0/Song 1.mp3", someBytes(33, 5)); // of another size
    put("volumes/STICK/PSP/GAME/mine.pbp", "mine");
    put("preferences/org.caravel.Caravel.plist",
        "<plist><dict><key>enabledMusic</key><array><string>Mix</string></array>"
        "<key>enabledPhotos</key><array><string>Trip</string></array>"
        "<key>enabledMovies</key><array><string>M4V00001/Film</string></array>"
        "<key>sortMusicBy</key><integer>1</integer><key>syncOnMount</key><false/></dict></plist>");
    std::filesystem::rename(place.toStdString(), sample.toStdString());
}

/// Runs once more, undisturbed, and looks.
void Faults::expectRepaired(const std::string &where)
{
    const Outcome outcome = run();
    EXPECT_TRUE(outcome.exited) << where;
    EXPECT_EQ(outcome.status, 0) << where << '\n' << outcome.log.toStdString();
    EXPECT_FALSE(outcome.log.contains(QStringLiteral("unreadable"))) << where;
    EXPECT_EQ(differences(), "") << where;
}

/// A disturbed run that ends by itself, and the repair. How many alerts the user got.
qsizetype Faults::expectSurvived(const QString &plan)
{
    const std::string where = (m_what + u' ' + plan).toStdString();
    begin();
    const Outcome outcome = run(plan);
    EXPECT_TRUE(outcome.exited) << where << '\n' << outcome.log.toStdString();
    static const QRegularExpression end(
        QStringLiteral("Sync was c.*ed|could not be copied|sync was not started"));
    EXPECT_EQ(outcome.lines.filter(end).size(), m_what == u"sync" ? 1 : 0) << where;
    const qsizetype alerts = outcome.lines.filter(QStringLiteral("alert: ")).size();
    EXPECT_LE(alerts, 1) << where << outcome.lines.join(u'\n').toStdString();
    expectRepaired(where);
    return alerts;
}

} // namespace

TEST_F(Faults, KilledAnywhere)
{
    for (const char *what : {"sync", "restore"}) {
        const long calls = measure(QString::fromLatin1(what), QStringLiteral("all"));
        for (const long point : points(calls)) {
            const std::string where = what + std::string(" killed at call ") +
                                      std::to_string(point) + " of " + std::to_string(calls);
            begin();
            const auto old = mediaOnStick();
            EXPECT_FALSE(run(QStringLiteral("all:%1:kill").arg(point)).exited) << where;
            const auto copied = mediaOnStick();
            expectRepaired(where);
            const auto now = mediaOnStick();
            const auto isCopiedAgain = [&](const auto &file) {
                return !old.contains(file) && !now.contains(file);
            };
            EXPECT_LE(std::ranges::count_if(copied, isCopiedAgain), 1) << where;
            ASSERT_FALSE(HasFailure());
        }
    }
}

TEST_F(Faults, EveryCallMayFail)
{
    static constexpr std::array errors{EIO, ENOSPC, EROFS, ENODEV, EACCES};
    qsizetype alerts = 0;
    for (const char *what : {"sync", "restore"}) {
        for (const char *call :
             {"open", "read", "write", "close", "rename", "mkdir", "unlink", "fsync"}) {
            const long calls = measure(QString::fromLatin1(what), QString::fromLatin1(call));
            for (const long point : points(calls)) {
                // All of them at full length, else one, and the stick that fills at each write.
                for (const int error : errors) {
                    const bool fills = error == ENOSPC && call == std::string_view("write");
                    if (!isFullLength() && !fills && error != errors[size_t(point) % errors.size()])
                        continue;
                    const bool goesOn = (point + error) % 3 == 0;
                    alerts += expectSurvived(QStringLiteral("%1:%2:%3%4")
                                                 .arg(QLatin1String(call))
                                                 .arg(point)
                                                 .arg(error)
                                                 .arg(goesOn ? QStringLiteral("+") : QString()));
                    ASSERT_FALSE(HasFailure());
                }
            }
        }
    }
    if (isFullLength()) {
        EXPECT_GT(alerts, 0) << "a stick that fills is said to be full";
    }
}

TEST_F(Faults, ShortAndInterruptedCallsLoseNothing)
{
    for (const char *call : {"read", "write", "fsync"}) {
        measure(QStringLiteral("sync"), QString::fromLatin1(call));
        const bool moves = *call != 'f';
        for (const char *how : {"short", "EINTR+"}) {
            if (!moves && *how == 's')
                continue;
            const QString plan =
                QString::fromLatin1(call) + QStringLiteral(":1:") + QString::fromLatin1(how);
            begin();
            const Outcome outcome = run(plan);
            EXPECT_TRUE(outcome.exited && outcome.status == 0) << plan.toStdString() << '\n'
                                                               << outcome.log.toStdString();
            EXPECT_EQ(differences(), "") << plan.toStdString();
        }
    }
}

TEST_F(Faults, AConvertedMovieIsWholeOrNotInTheLibrary)
{
    const long calls = measure(QStringLiteral("store"), QStringLiteral("all"));
    const QByteArray movie = someBytes(23, 60000);
    for (const long point : points(calls)) {
        for (const char *what : {"kill", "28", "5+"}) {
            begin();
            const QString plan = QStringLiteral("all:%1:%2").arg(point).arg(QLatin1String(what));
            run(plan);
            int whole = 0;
            for (const auto &[path, bytes] : snapshotOf(place)) {
                const bool isNew = path.contains(u"/M4V00002/") && path.endsWith(u".MP4");
                EXPECT_TRUE(!isNew || bytes == movie) << plan.toStdString();
                whole += bytes == movie;
            }
            EXPECT_EQ(whole, 1) << plan.toStdString();
        }
    }
}
