#include "app/SyncStatus.h"

#include "app/StatusIcon.h"
#include "app/StatusMenu.h"
#include "support/FakeDesktop.h"

#include "support/FailingFileManager.h"
#include "support/ListModule.h"
#include "support/SyncHarness.h"
#include "util/QMLogger.h"
#include "util/Settings.h"

#include <gmock/gmock.h>

namespace {

class SyncStatusTest : public testing::Test
{
protected:
    TemporaryFolder sources;
    ListModule::Wishes wishes{
        [this] {
            std::vector<CVSyncItem> items;
            for (const QString &name : {u"one"_s, u"two"_s})
                items.emplace_back(sources / name, harness.stick(u"PSP/MUSIC/"_s + name), name);
            return items;
        },
        u"/PSP/MUSIC"_s};
    FailingFileManager files;
    SyncHarness harness{{ListModule::kind(u"Music"_s, wishes)}};
    QMLogger logger;
    FrontEnd frontEnd;
    FakeStatusBar statusBar;
    FakeAlerts alerts;
    FakeSounds sounds;
    int opened = 0;
    StatusMenu menu{harness.manager, {}};
    StatusIcon icon{statusBar, harness.manager};
    SyncStatus status{
        {harness.manager, logger, frontEnd, menu, icon, alerts, sounds, harness.clock, [this] {
             ++opened;
         }}};

    void SetUp() override
    {
        FileManager::setDefaultManager(&files);
        harness.manager.setDelegate(&status);
        for (const QString &name : {u"one"_s, u"two"_s})
            writeFile(sources / name, "contents");
    }
    void TearDown() override
    {
        harness.settle();
        FileManager::setDefaultManager(nullptr);
    }

    void run()
    {
        harness.manager.sync();
        harness.settle();
    }
    /// The log's messages without their time stamps.
    QStringList messages() const
    {
        QStringList result;
        for (const QString &line : logger.log().split(u'\n', Qt::SkipEmptyParts))
            result.append(line.mid(line.indexOf(u" : ") + 3));
        return result;
    }
};

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

} // namespace

TEST_F(SyncStatusTest, FollowsTheDeviceAndTheRun)
{
    files.freeBytes = 3ULL << 29;
    harness.mountStick();
    EXPECT_EQ(status.statusText(), u"1.5 GB Available"_s);
    EXPECT_EQ(status.statusSubText(), QStringLiteral("Click \"Sync Now\" to perform a sync."));
    run();
    EXPECT_EQ(status.statusText(), u"Sync Successful"_s);
    EXPECT_EQ(status.statusSubText(), u"Last Sync: Today 03:09 PM"_s);
    EXPECT_EQ(messages(), list({"Sync was completed successfully."}));
    EXPECT_EQ(sounds.played, list({"SyncCompleted"}));

    Settings::openOnMount.set(true);
    harness.volumes.unmount(harness.stick());
    EXPECT_EQ(status.statusText(), u"No PSP Connected"_s);
    EXPECT_EQ(status.statusSubText(), u"Connect a PSP to perform a sync."_s);
    harness.volumes.mount(harness.stick());
    EXPECT_EQ(status.statusSubText(), u"Last Sync: Today 03:09 PM"_s);
    EXPECT_EQ(opened, 1);
    harness.volumes.canEject = false;
    harness.manager.eject();
    EXPECT_EQ(status.statusText(), u"Eject Failed"_s);
}

TEST_F(SyncStatusTest, LogsEveryTextWhenAskedTo)
{
    harness.mountStick();
    Settings::useDetailedLogging.set(true);
    const SystemLogCapture quiet;
    run();
    EXPECT_EQ(messages(),
              list({"Preparing to Sync...", "One moment, Caravel is gathering information...",
                    "Cleaning Up...", "Caravel is removing unneeded files...", "Starting Sync...",
                    "Caravel is copying selected files...", "Syncing Test...", "one", "two",
                    "Sync Successful", "Last Sync: Today 03:09 PM"}));
}

TEST_F(SyncStatusTest, SaysWhyARunEnded)
{
    harness.mountStick();
    files.freeBytes = 10;
    run();
    EXPECT_EQ(alerts.titles, list({"Sync too large!"}));
    EXPECT_TRUE(alerts.message.contains(u"sync 16 b, however only 10 b of free space"_s));
    EXPECT_EQ(messages(), list({"Not enough free space to complete sync of size: 16 b",
                                "Sync was cancelled."}));
    EXPECT_EQ(status.statusText(), u"Sync Cancelled"_s);
    EXPECT_TRUE(sounds.played.isEmpty());
    EXPECT_EQ(status.statusSubText(), u"You must re-sync to ensure the PSP is up to date."_s);
}

TEST_F(SyncStatusTest, TellsAFullStickFromOtherErrors)
{
    const SystemLogCapture system;
    harness.mountStick();
    files.readOnlyBelow = harness.stick(u"PSP"_s);
    run();
    ASSERT_EQ(messages().size(), 3);
    EXPECT_TRUE(
        messages()[0].startsWith(u"Unexpected error: Couldn't create: "_s + harness.stick()));
    EXPECT_EQ(messages()[2], u"Sync was completed successfully."_s);
    EXPECT_TRUE(alerts.titles.isEmpty());

    files.readOnlyBelow.clear();
    files.writableBytes = 4;
    files.onFull = [this] {
        files.freeBytes = 0;
    };
    logger.clear();
    run();
    EXPECT_EQ(messages().mid(1),
              list({"Memory stick filled while syncing!", "Sync was cancelled."}));
    EXPECT_EQ(alerts.titles, list({"Memory stick full!"})) << "once, however many files fail";

    status.syncError({{u"Error"_s, u"Couldn't remove"_s}});
    EXPECT_EQ(alerts.titles.size(), 1);
}

TEST_F(SyncStatusTest, AnswersTheManagersQuestions)
{
    EXPECT_TRUE(status.shouldSyncOnMount());
    EXPECT_TRUE(status.shouldUnmountPSP());
    Settings::useSyncProfiles.set(true);
    EXPECT_FALSE(status.shouldSyncOnMount());
    EXPECT_TRUE(status.shouldUnmountPSP());
    Settings::useSyncProfiles.set(false);
    status.setIsInteractive(true);
    EXPECT_FALSE(status.shouldSyncOnMount());
    EXPECT_FALSE(status.shouldUnmountPSP());

    status.foundUnformattedMemoryStick();
    Settings::warnAboutUnformattedMemorySticks.set(false);
    status.foundUnformattedMemoryStick();
    EXPECT_EQ(alerts.titles, list({"Unformatted memory stick found!"}));
}
