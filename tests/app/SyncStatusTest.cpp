#include "app/SyncStatus.h"

#include "app/FrontEnd.h"
#include "app/Plans.h"
#include "app/StatusIcon.h"
#include "app/StatusMenu.h"
#include "support/FailingFileManager.h"
#include "support/FakeDesktop.h"
#include "support/ListModule.h"
#include "util/QMLogger.h"
#include "util/Settings.h"

#include <gtest/gtest.h>

namespace {

class SyncStatusTest : public testing::Test
{
protected:
    FailingFileManager files;
    ListHarness harness;
    QMLogger logger;
    const ModuleCatalogue kinds;
    Plans plans{kinds, harness.manager};
    FrontEnd frontEnd;
    FakeStatusBar statusBar;
    FakeAlerts alerts;
    FakeSounds sounds;
    StatusMenu menu{harness.manager, {}};
    StatusIcon icon{statusBar, harness.manager};
    SyncStatus status{
        {harness.manager, logger, plans, frontEnd, menu, icon, alerts, sounds, harness.clock, [] {
         }}};
    const SystemLogCapture system;

    void SetUp() override
    {
        FileManager::setDefaultManager(&files);
        files.freeBytes = 3ULL << 29;
        harness.manager.setDelegate(&status);
        harness.want(u"one"_s, "contents");
        harness.want(u"two"_s, "contents");
    }
    void TearDown() override
    {
        SyncHarness::settle();
        FileManager::setDefaultManager(nullptr);
    }

    /// What the log then says, without the time stamps.
    std::string run()
    {
        logger.clear();
        alerts.titles.clear();
        sounds.played.clear();
        harness.manager.sync();
        SyncHarness::settle();
        QStringList lines = logger.log().split(u'\n', Qt::SkipEmptyParts);
        for (QString &line : lines)
            line = line.section(u" : "_s, 1).replace(harness.stick(), u"STICK"_s);
        return joined(lines.mid(1)); // the first says that it was cleared
    }
    std::string texts() const { return joined({status.statusText(), status.statusSubText()}); }
};

} // namespace

TEST_F(SyncStatusTest, SaysWhyARunEnded)
{
    harness.mountStick();
    files.freeBytes = 10;
    EXPECT_EQ(run(), "Not enough free space to complete sync of size: 16 b\nSync was cancelled.");
    EXPECT_EQ(joined(alerts.titles), "Sync too large!");
    EXPECT_TRUE(alerts.message.contains(u"sync 16 b, however only 10 b of free space"));
    EXPECT_EQ(texts(), "Sync Cancelled\nYou must re-sync to ensure the PSP is up to date.");
    EXPECT_TRUE(sounds.played.isEmpty());
    files.freeBytes = 3ULL << 29;
    files.readOnlyBelow = harness.stick(u"PSP"_s);
    EXPECT_EQ(run(),
              "Unexpected error: Couldn't create: STICK/PSP/MUSIC/one (Read-only file system)\n"
              "Unexpected error: Couldn't create: STICK/PSP/MUSIC/two (Read-only file system)\n"
              "Sync was completed successfully.");
    EXPECT_TRUE(alerts.titles.isEmpty());
    files.readOnlyBelow.clear();
    files.writableBytes = 4;
    files.onFull = [this] {
        files.freeBytes = 0;
    };
    EXPECT_EQ(run(), "Memory stick filled while syncing!\nSync was cancelled.");
    EXPECT_EQ(joined(alerts.titles), "Memory stick full!") << "once, however many files fail";
    status.syncError({{u"Error"_s, u"Couldn't remove"_s}});
    EXPECT_EQ(alerts.titles.size(), 1);
}

TEST_F(SyncStatusTest, AnswersTheManagersQuestions)
{
    const struct
    {
        bool profiles, interactive, syncs, unmounts;
    } cases[] = {
        {false, false, true, true}, {true, false, false, true}, {false, true, false, false}};
    for (const auto &c : cases) {
        Settings::useSyncProfiles.set(c.profiles);
        status.setIsInteractive(c.interactive);
        EXPECT_EQ(status.shouldSyncOnMount(), c.syncs);
        EXPECT_EQ(status.shouldUnmountPSP(), c.unmounts);
    }
    for (const bool warns : {true, false}) {
        Settings::warnAboutUnformattedMemorySticks.set(warns);
        status.foundUnformattedMemoryStick();
        EXPECT_EQ(joined(alerts.titles), "Unformatted memory stick found!");
    }
}
