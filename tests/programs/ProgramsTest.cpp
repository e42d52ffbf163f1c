// The real helper and the real command, on a folder of volumes.

#include "ProgramHarness.h"

#include "platform/bus/RemoteObject.h"
#include "platform/lists/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStorageInfo>

#include <gmock/gmock.h>

#include <csignal>

using namespace std::chrono_literals;

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

    QString run(const QStringList &arguments, int expected = 0)
    {
        const auto outcome = programs.caravel(arguments);
        EXPECT_EQ(outcome.status, expected)
            << qPrintable(arguments.join(u' ')) << ":\n"
            << qPrintable(outcome.output) << qPrintable(programs.helperOutput());
        return outcome.output;
    }
    void selectRoadTrip()
    {
        run({QStringLiteral("select"), QStringLiteral("music"), QStringLiteral("Road Trip")});
    }
    QJsonObject stickAsJson()
    {
        const QString status = run({QStringLiteral("status"), QStringLiteral("--json")});
        return QJsonDocument::fromJson(status.toUtf8())[u"stick"].toObject();
    }
    void expectStick(const QJsonObject &stick)
    {
        const QStorageInfo disk(programs.stick());
        const QString name = QFileInfo(programs.stick()).fileName();
        EXPECT_EQ(stick[u"name"].toString(), name);
        EXPECT_EQ(stick[u"volume"].toString(), programs.stick());
        EXPECT_EQ(stick[u"capacity"].toInteger(), disk.bytesTotal());
        // Others write there too.
        constexpr double tolerance = 256 << 20;
        EXPECT_NEAR(stick[u"free"].toDouble(), static_cast<double>(disk.bytesAvailable()),
                    tolerance);
        EXPECT_NEAR(stick[u"used"].toDouble() + stick[u"free"].toDouble(),
                    static_cast<double>(disk.bytesTotal()), tolerance);
        EXPECT_TRUE(statusHas(
            QStringLiteral("Stick:      %1 (%2)\nSpace:      ").arg(name, programs.stick())));
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
    EXPECT_TRUE(stickAsJson().isEmpty());
    programs.insertStick();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    expectStick(stickAsJson());
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

TEST_F(ProgramsTest, PlaceContactsAndBookmarks)
{
    writeFile(programs.home(QStringLiteral(".contacts/all.vcf")),
              "BEGIN:VCARD\r\nUID:a\r\nFN:Ada Quill\r\nPHOTO;ENCODING=b:AAAA\r\nEND:VCARD\r\n");
    writeFile(programs.home(QStringLiteral("Library/Safari/Bookmarks.plist")),
              "<plist><dict><key>Children</key><array><dict><key>WebBookmarkType</key>"
              "<string>WebBookmarkTypeList</string><key>Title</key><string>BookmarksBar</string>"
              "<key>Children</key><array><dict><key>WebBookmarkType</key>"
              "<string>WebBookmarkTypeLeaf</string><key>URLString</key><string>http://a/</string>"
              "</dict></array></dict></array></dict></plist>");
    programs.insertStick();
    programs.startHelper();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    EXPECT_TRUE(run({QStringLiteral("select"), QStringLiteral("bookmarks"),
                     QStringLiteral("Bookmarks Bar")})
                    .contains(QStringLiteral("[x] Bookmarks Bar  1")));
    run({QStringLiteral("sync")});
    EXPECT_TRUE(readFile(programs.stick(QStringLiteral("Caravel/Contacts/index.html")))
                    .contains(">Ada Quill</a>"));
    EXPECT_TRUE(QFile::exists(
        programs.stick(QStringLiteral("Caravel/Contacts/0cc175b9c0f1b6a831c399e269772661.JPG"))));
    const QByteArray bookmarks =
        readFile(programs.stick(QStringLiteral("PSP/SYSTEM/BROWSER/bookmarks.html")));
    EXPECT_TRUE(bookmarks.contains("\"file:///Caravel/Contacts/index.html\""));
    EXPECT_TRUE(bookmarks.contains("\"http://a/\""));
}

TEST_F(ProgramsTest, KeepAHistoryOfGameSaves)
{
    const auto saves = [](const char *what, const QString &which) {
        return QStringList{QStringLiteral("saves"), QString::fromLatin1(what), which};
    };
    const QString save = programs.stick(QStringLiteral("PSP/SAVEDATA/GAME1/DATA.BIN"));
    programs.insertStick();
    writeFile(save, "first");
    programs.startHelper();
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    run({QStringLiteral("sync")});
    writeFile(save, "second");
    run({QStringLiteral("sync")});
    const QStringList history =
        run({QStringLiteral("saves"), QStringLiteral("GAME1")}).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(history.size(), 2);
    const QString oldest = history.last().section(u' ', 0, 0);

    for (const char *bad : {"GAME1/1", "GAME1", "GAME2/1", "../GAME1/1", "/", "GAME1/.."})
        run(saves("restore", QString::fromLatin1(bad)), 1);
    for (const char *bad : {"GAME1/1", "GAME2", "..", "/", "GAME1/.."})
        run(saves("delete", QString::fromLatin1(bad)), 1);
    run({QStringLiteral("saves"), QStringLiteral("GAME2")}, 1);
    run({QStringLiteral("saves")}, 2);
    run(saves("delete", oldest), 1); // nobody is there to confirm it
    EXPECT_EQ(readFile(save), "second");

    run(saves("restore", oldest));
    EXPECT_EQ(readFile(save), "first");
    run(saves("delete", oldest) << QStringLiteral("--yes"));
    const QString left = run({QStringLiteral("saves"), QStringLiteral("GAME1")});
    EXPECT_EQ(left.count(u'\n'), 2) << "the second state twice, as synced and as replaced";
    EXPECT_FALSE(left.contains(oldest));
    run(saves("delete", QStringLiteral("GAME1")) << QStringLiteral("--yes"));
    EXPECT_EQ(run({QStringLiteral("list"), QStringLiteral("saves")}), QString());
    EXPECT_EQ(readFile(save), "first");

    // The helper itself holds back what the command would not have asked for.
    writeFile(save, "third");
    run({QStringLiteral("sync")});
    writeFile(save, "fourth");
    const QString third =
        run({QStringLiteral("saves"), QStringLiteral("GAME1")}).section(u' ', 0, 0);
    run({QStringLiteral("sync"), QStringLiteral("--no-wait")});
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Syncing:    yes")); }));
    run(saves("restore", third), 1);
    RemoteObject helper(ProgramHarness::helperBusName(), QStringLiteral("/CaravelHelper"),
                        QStringLiteral("org.caravel.CaravelHelperProtocol"));
    for (const char *method : {"restoreBackupWithIdentifier", "deleteBackupWithIdentifier"})
        EXPECT_TRUE(helper.call(QString::fromLatin1(method), {third}, 10s).value);
    EXPECT_EQ(readFile(save), "fourth");
    EXPECT_EQ(
        programs.log().count(QStringLiteral("Can't restore or delete backups during a sync.")), 2);
    EXPECT_TRUE(run({QStringLiteral("saves"), QStringLiteral("GAME1")}).contains(third));
    run({QStringLiteral("cancel")});
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Syncing:    no")); }));

    run({QStringLiteral("eject")});
    run(saves("restore", third), 1);
}

TEST_F(ProgramsTest, StartAHelperWhereNoneRuns)
{
    run({QStringLiteral("status")});
    run({QStringLiteral("prefs"), QStringLiteral("startOnLogin"), QStringLiteral("no")});
    // With "startOnLogin" off it lives only as long as a front-end does, and that one until it has
    // its answer.
    run({QStringLiteral("estimate")});
    const RemoteObject helper(ProgramHarness::helperBusName(), {}, {});
    ASSERT_TRUE(waitFor([&] { return !helper.isAvailable(); }));
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
