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

using Snapshot = std::map<QString, QByteArray>; // of a place's files, by path; folders end in "/"

/// What was copied comes behind what was in place: the order tells nothing.
QByteArray sortedLines(const QByteArray &text)
{
    QByteArrayList lines = text.split('\n');
    std::sort(lines.begin(), lines.end());
    return lines.join('\n');
}

Snapshot snapshotOf(const QString &place)
{
    Snapshot snapshot;
    // A state that was kept twice, since the first attempt failed later, counts once.
    static const QRegularExpression newBackup(QStringLiteral("/GAME/17\\d+"));
    for (const QString &path : treeOf(place)) {
        QByteArray &bytes = snapshot[QString(path).replace(newBackup, QStringLiteral("/GAME/new"))];
        if (!path.endsWith(u'/'))
            bytes = readFile(place + u'/' + path);
        if (path.endsWith(u"SyncIndex.plist"))
            bytes = sortedLines(bytes);
    }
    return snapshot;
}

QString differences(const Snapshot &found, const Snapshot &wanted)
{
    QStringList lines;
    for (const auto &[path, bytes] : wanted) {
        const auto other = found.find(path);
        if (other == found.end())
            lines.append(QStringLiteral("lacks ") + path);
        else if (other->second != bytes && bytes.size() < 4000)
            lines.append(
                QStringLiteral("differs %1:\n%2\n").arg(path, QString::fromUtf8(other->second)));
        else if (other->second != bytes)
            lines.append(QStringLiteral("differs ") + path);
    }
    for (const auto &[path, bytes] : found) {
        if (!wanted.contains(path))
            lines.append(QStringLiteral("has ") + path);
    }
    return lines.join(u'\n');
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
    long calls = 0;
};

class Faults : public testing::Test
{
protected:
    const TemporaryFolder folder;
    const QString sample = folder / QStringLiteral("sample");
    const QString place = folder / QStringLiteral("place");
    QString m_what;
    Snapshot m_wanted;      // after one undisturbed run
    Snapshot m_wantedLater; // and after a second one

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
        outcome.calls = contentsIfAny(report).toLong();
        return outcome;
    }

    static QByteArray contentsIfAny(const QString &path)
    {
        return QFile::exists(path) ? readFile(path).trimmed() : QByteArray();
    }

    /// An undisturbed run on a copy of the sample; how many calls of that kind it makes.
    long measure(const QString &what, const QString &calls)
    {
        m_what = what;
        begin();
        const Outcome outcome = run(calls + QStringLiteral(":0:kill"));
        EXPECT_TRUE(outcome.exited && outcome.status == 0) << outcome.log.toStdString();
        m_wanted = snapshotOf(place);
        EXPECT_EQ(run().status, 0);
        m_wantedLater = snapshotOf(place);
        return outcome.calls;
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
    // Until the next run it is told what the last one copied.
    const auto withoutRecords = [](Snapshot snapshot) {
        for (const char *path : {"preferences/org.caravel.Caravel.plist",
                                 "volumes/STICK/.caravel/BackupSyncIndex.plist",
                                 "volumes/STICK/.caravel/LastSyncSize"})
            snapshot.erase(QString::fromLatin1(path));
        return snapshot;
    };
    EXPECT_EQ(
        differences(withoutRecords(snapshotOf(place)), withoutRecords(m_wanted)).toStdString(), "")
        << where;
    EXPECT_EQ(run().status, 0) << where;
    EXPECT_EQ(differences(snapshotOf(place), m_wantedLater).toStdString(), "") << where;
}

/// A disturbed run that ends by itself, and the repair. How many alerts the user got.
qsizetype Faults::expectSurvived(const QString &plan)
{
    const std::string where = (m_what + u' ' + plan).toStdString();
    begin();
    const Outcome outcome = run(plan);
    EXPECT_TRUE(outcome.exited) << where << '\n' << outcome.log.toStdString();
    static const QRegularExpression end(QStringLiteral("Sync was c.*ed"));
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
            EXPECT_EQ(differences(snapshotOf(place), m_wanted).toStdString(), "")
                << plan.toStdString();
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
