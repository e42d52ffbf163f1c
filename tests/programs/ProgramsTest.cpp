// The real helper and the real command, on a folder of volumes.

#include "ProgramHarness.h"

#include "platform/PropertyList.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

#include <csignal>

namespace {

class ProgramsTest : public testing::Test
{
protected:
    ProgramHarness programs;

    void SetUp() override
    {
        programs.addTrack(QStringLiteral("One"), QByteArray(3 << 20, '1'));
        programs.addTrack(QStringLiteral("Two"), "two");
        programs.writeLibrary();
    }

    void run(const QStringList &arguments, int expected = 0)
    {
        const auto outcome = programs.caravel(arguments);
        EXPECT_EQ(outcome.status, expected)
            << qPrintable(arguments.join(u' ')) << ":\n"
            << qPrintable(outcome.output) << qPrintable(programs.helperOutput());
    }
    void selectRoadTrip()
    {
        run({QStringLiteral("select"), QStringLiteral("music"), QStringLiteral("Road Trip")});
    }
    QStringList music() const { return treeOf(programs.stick(QStringLiteral("PSP/MUSIC"))); }
    bool statusHas(const QString &text)
    {
        return programs.caravel({QStringLiteral("status")}).output.contains(text);
    }

    const QStringList synced{QStringLiteral("Record/"), QStringLiteral("Record/000. One.mp3"),
                             QStringLiteral("Record/000. Two.mp3")};
};

} // namespace

TEST_F(ProgramsTest, SyncAStickEndToEnd)
{
    programs.startHelper();
    run({QStringLiteral("sync")}, 1); // no stick yet
    programs.insertStick();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    run({QStringLiteral("select"), QStringLiteral("music"), QStringLiteral("No Such List")}, 1);
    selectRoadTrip();
    run({QStringLiteral("estimate")});
    run({QStringLiteral("sync")});
    EXPECT_EQ(music(), synced);
    EXPECT_EQ(readFile(programs.stick(QStringLiteral("PSP/GAME/mine.pbp"))), "mine");
    EXPECT_TRUE(QFile::exists(programs.stick(QStringLiteral(".VolumeIcon.icns"))));
    EXPECT_TRUE(programs.log().contains(QStringLiteral("Sync was completed successfully.")));
    EXPECT_TRUE(statusHas(QStringLiteral("Sync Successful")));

    run({QStringLiteral("eject")});
    EXPECT_FALSE(QFile::exists(programs.stick()));
    EXPECT_TRUE(statusHas(QStringLiteral("No PSP Connected")));
    run({QStringLiteral("nonsense")}, 2);
    EXPECT_EQ(programs.stopHelper(), 0);
}

TEST_F(ProgramsTest, StartAHelperWhereNoneRuns)
{
    run({QStringLiteral("status")});
    run({QStringLiteral("prefs"), QStringLiteral("startOnLogin"), QStringLiteral("no")});
    // With "startOnLogin" off it lives only as long as a front-end does.
    const auto watch = programs.start({QStringLiteral("watch")});
    ASSERT_TRUE(waitFor([&] { return watch->bytesAvailable() > 0; }));
    watch->terminate();
    ASSERT_TRUE(waitFor([&] { return watch->state() == QProcess::NotRunning; }));
}

TEST_F(ProgramsTest, OutliveFrontEndsThatDie)
{
    programs.startHelper();
    programs.insertStick();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    selectRoadTrip();
    const auto other = programs.start({QStringLiteral("watch")});
    const auto killed = programs.start({QStringLiteral("watch")});
    ASSERT_TRUE(
        waitFor([&] { return other->bytesAvailable() > 0 && killed->bytesAvailable() > 0; }));
    // It stops listening while the helper calls it, and then goes without a word.
    ::kill(static_cast<pid_t>(killed->processId()), SIGSTOP);
    run({QStringLiteral("sync"), QStringLiteral("--no-wait")});
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("gathering information")); }));
    killed->kill();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Sync Successful")); }));
    EXPECT_EQ(music(), synced);
    EXPECT_TRUE(programs.helperLives());
    other->kill();
    other->waitForFinished();
    EXPECT_EQ(programs.stopHelper(), 0);
}

TEST_F(ProgramsTest, CancelAndQuitInTheMiddle)
{
    programs.startHelper();
    programs.insertStick();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    selectRoadTrip();
    const auto sync = programs.start({QStringLiteral("sync")});
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("gathering information")); }));
    run({QStringLiteral("sync")}, 1); // one runs already
    run({QStringLiteral("cancel")});
    ASSERT_TRUE(waitFor([&] { return sync->state() == QProcess::NotRunning; }));
    EXPECT_EQ(sync->exitCode(), 1);
    EXPECT_TRUE(programs.log().contains(QStringLiteral("Sync was cancelled.")));

    run({QStringLiteral("sync"), QStringLiteral("--no-wait")});
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("gathering information")); }));
    EXPECT_EQ(programs.stopHelper(), 0) << qPrintable(programs.helperOutput());
    EXPECT_TRUE(PropertyList::readStringArray(
        programs.stick(QStringLiteral(".caravel/MusicSyncIndex.plist"))));
}

TEST_F(ProgramsTest, StartOverGarbage)
{
    const QString preferences =
        programs.home(QStringLiteral("Library/Preferences/org.caravel.Caravel.plist"));
    writeFile(preferences, "garbage");
    writeFile(programs.home(QStringLiteral("Library/Application Support/Caravel/CONVERT.MP4")),
              "left over");
    writeFile(programs.home(QStringLiteral("Library/Application Support/Caravel/other")), "stays");
    programs.startHelper();
    run({QStringLiteral("prefs"), QStringLiteral("organizeMusicBy"), QStringLiteral("3")});
    EXPECT_EQ(readFile(preferences + QStringLiteral(".unreadable")), "garbage");
    EXPECT_EQ(treeOf(programs.home(QStringLiteral("Library/Application Support/Caravel"))),
              QStringList({QStringLiteral("bookmarks.html"), QStringLiteral("other")}));
    for (const char *name : {"Music", "Photos", "Movies"})
        EXPECT_TRUE(
            QDir(programs.home(
                     QStringLiteral("Documents/Caravel/Dropboxes/%1").arg(QLatin1String(name))))
                .exists());
    EXPECT_TRUE(programs.log().contains(QStringLiteral("Initializing Caravel build ")));
    EXPECT_EQ(programs.stopHelper(), 0);
}
