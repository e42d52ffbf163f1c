// A large home, and front-ends that never stop asking. CARAVEL_LOAD is the size in per cent, 100
// unless it says otherwise.

#include "programs/ProgramHarness.h"
#include "support/PhotoLibraryFile.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

constexpr qint64 callsPerSecond = 500;

/// Asks as often as that from three connections, and notes how long each answer took.
class FrontEnds
{
public:
    FrontEnds()
    {
        for (size_t i = 0; i < m_connections.size(); ++i)
            m_connections[i] = QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                                             QStringLiteral("asking-%1").arg(i));
        m_time.start();
    }
    ~FrontEnds()
    {
        for (const QDBusConnection &connection : m_connections)
            QDBusConnection::disconnectFromBus(connection.name());
    }
    FrontEnds(const FrontEnds &) = delete;
    FrontEnds &operator=(const FrontEnds &) = delete;

    void askWhatIsDue()
    {
        while (asked < m_time.elapsed() * callsPerSecond / 1000)
            ask();
    }
    double seconds() const { return static_cast<double>(m_time.elapsed()) / 1000; }

    qint64 asked = 0;
    std::vector<double> answered; ///< milliseconds
    QStringList errors;

private:
    void ask()
    {
        static constexpr const char *polled[] = {"isSyncing", "syncBytes", "syncBytesTotal",
                                                 "statusText", "statusSubText"};
        const QDBusMessage call = QDBusMessage::createMethodCall(
            ProgramHarness::helperBusName(), QStringLiteral("/CaravelHelper"),
            QStringLiteral("org.caravel.CaravelHelperProtocol"),
            QString::fromLatin1(polled[asked % std::ssize(polled)]));
        QElapsedTimer since;
        since.start();
        auto *const watcher = new QDBusPendingCallWatcher(
            m_connections[static_cast<size_t>(asked++) % m_connections.size()].asyncCall(call));
        QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                         [this, watcher, since] {
                             answered.push_back(static_cast<double>(since.nsecsElapsed()) / 1e6);
                             if (watcher->isError())
                                 errors.append(watcher->error().message());
                             watcher->deleteLater();
                         });
    }

    std::array<QDBusConnection, 3> m_connections{
        QDBusConnection(QString()), QDBusConnection(QString()), QDBusConnection(QString())};
    QElapsedTimer m_time;
};

class LoadTest : public testing::Test
{
protected:
    explicit LoadTest(int fullMovies = 10'000)
        : movies(scaled(fullMovies))
    {
    }
    static int scaled(int full)
    {
        bool isSet = false;
        const int percent = qEnvironmentVariableIntValue("CARAVEL_LOAD", &isSet);
        return full / 100 * (isSet ? percent : 100);
    }
    const int tracks = scaled(100'000);
    const int selected = scaled(10'000);
    const int pictures = scaled(20'000);
    const int movies;
    const int playlists = scaled(1'000);
    const int albums = scaled(500);
    ProgramHarness programs;

    void SetUp() override
    {
        makeMusic();
        makePhotos();
        for (int i = 1; i <= movies; ++i) {
            const QString id = QStringLiteral("M4V%1").arg(i, 5, 10, QChar(u'0'));
            const QString movie = programs.path(
                QStringLiteral("home/Documents/Caravel/Movies/%1/Film %2/%1").arg(id).arg(i));
            writeFile(movie + QStringLiteral(".MP4"), "movie");
            writeFile(movie + QStringLiteral(".THM"), "still");
        }
        programs.shell(QStringLiteral("mv MEMORYSTICK volumes/"));
    }
    void makeMusic() const
    {
        MusicLibraryFile library;
        QList<int> mix;
        for (int id = 1; id <= tracks; ++id) {
            const QString file = programs.path(QStringLiteral("home/Music/%1.mp3").arg(id));
            library.addFile(
                id, file,
                MusicLibraryFile::string("Name", QStringLiteral("Song %1").arg(id)) +
                    MusicLibraryFile::string("Artist", QStringLiteral("Artist %1").arg(id / 90)) +
                    MusicLibraryFile::string("Album", QStringLiteral("Album %1").arg(id / 12)));
            if (id > selected)
                continue;
            writeFile(file, QByteArray(2000, 'm'));
            mix.append(id);
        }
        library.addPlaylist(QStringLiteral("Mix"), mix);
        for (int i = 1; i <= playlists; ++i)
            library.addPlaylist(QStringLiteral("Playlist %1").arg(i), {i, tracks - i});
        writeFile(programs.path(QStringLiteral("home/Music/iTunes/iTunes Music Library.xml")),
                  library.contents());
    }
    void makePhotos() const
    {
        PhotoLibraryFile library;
        QStringList keys;
        for (int i = 1; i <= pictures; ++i) {
            const QString file = programs.path(QStringLiteral("home/Pictures/%1.jpg").arg(i));
            writeFile(file, QByteArray(1000, 'p'));
            keys.append(QString::number(i));
            library.addImage(keys.last(), file, QStringLiteral("Picture"));
        }
        library.addAlbum(QStringLiteral("All"), keys);
        for (int i = 1; i <= albums; ++i)
            library.addAlbum(QStringLiteral("Album %1").arg(i), keys.mid(i, pictures / albums));
        writeFile(programs.path(QStringLiteral("home/Pictures/iPhoto Library/AlbumData.xml")),
                  library.contents());
    }
    QString run(const char *command)
    {
        const auto outcome = programs.shell(QString::fromLatin1(command));
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.output);
        return outcome.output;
    }
    void askDuring(const char *command)
    {
        const auto process = programs.start(QString::fromLatin1(command));
        FrontEnds frontEnds;
        EXPECT_TRUE(waitFor(
            [&] {
                frontEnds.askWhatIsDue();
                return process->state() == QProcess::NotRunning;
            },
            std::chrono::minutes(10)));
        EXPECT_EQ(process->exitCode(), 0) << process->readAll().constData();
        const double seconds = frontEnds.seconds();
        EXPECT_TRUE(waitFor([&] { return std::ssize(frontEnds.answered) == frontEnds.asked; }));
        EXPECT_EQ(frontEnds.errors, QStringList());
        std::ranges::sort(frontEnds.answered);
        EXPECT_LT(frontEnds.answered.back(), 1000) << "milliseconds: nobody waits so long";
        std::printf(
            "%s: %lld calls in %.1f s; an answer took %.2f ms (median), %.1f ms (slowest)\n",
            command, static_cast<long long>(frontEnds.asked), seconds,
            frontEnds.answered[frontEnds.answered.size() / 2], frontEnds.answered.back());
    }
    qsizetype filesIn(const char *folder) const
    {
        const QStringList tree =
            treeOf(programs.path(QStringLiteral("volumes/MEMORYSTICK/") + QLatin1String(folder)));
        return std::ranges::count_if(tree,
                                     [](const QString &path) { return !path.endsWith(u'/'); });
    }
    QString memory(const char *field)
    {
        const QByteArray status =
            readFile(QStringLiteral("/proc/%1/status").arg(programs.helper().processId()));
        return QRegularExpression(QLatin1String(field) + QStringLiteral(":\\s+(.*)"))
            .match(QString::fromLatin1(status))
            .captured(1);
    }
};

class WindowLoadTest : public LoadTest
{
protected:
    WindowLoadTest()
        : LoadTest(2'000)
    {
    }
};

} // namespace

TEST_F(LoadTest, SyncsALargeHomeWhileFrontEndsAsk)
{
    programs.startHelper();
    run("caravel select music Mix; caravel select photos All");
    EXPECT_EQ(run("caravel list movies").count(QStringLiteral("Film ")), movies);

    askDuring("caravel list music");
    askDuring("caravel plan"); // with all its rows
    EXPECT_EQ(filesIn("PSP/MUSIC"), 1);
    askDuring("caravel sync");
    EXPECT_EQ(filesIn("PSP/MUSIC"), selected);
    EXPECT_EQ(filesIn("PSP/PHOTO"), pictures);
    askDuring("caravel plan");
    std::printf("the helper's memory %s, at its peak %s\n", qPrintable(memory("VmRSS")),
                qPrintable(memory("VmHWM")));
}

TEST_F(WindowLoadTest, TheWindowOpensAtOnceAndNeverStandsStill)
{
    programs.set(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    programs.startHelper();
    const int rows = playlists + albums + movies;
    const QStringList figures =
        run(qPrintable(QStringLiteral(CARAVEL_WINDOW " %1 2>/dev/null").arg(rows)))
            .simplified()
            .split(u' ');
    ASSERT_EQ(figures.size(), 4) << qPrintable(figures.join(u' '));
    std::printf("%s ms to the first paint, %s ms until %d rows were there, %s ms the longest "
                "stand, %s KB at the peak\n",
                qPrintable(figures[0]), qPrintable(figures[1]), rows, qPrintable(figures[2]),
                qPrintable(figures[3]));
    EXPECT_LE(figures[0].toInt(), 300) << "milliseconds";
    EXPECT_LE(figures[2].toInt(), 50) << "milliseconds";
    EXPECT_LE(figures[3].toInt(), 120 << 10) << "KB";
}
