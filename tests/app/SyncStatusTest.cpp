#include "app/SyncStatus.h"

#include "app/FrontEnds.h"
#include "app/Plans.h"
#include "app/RunRecord.h"
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
    const ModuleCatalogue kinds{};
    Plans plans{kinds, harness.manager};
    RunRecord record;
    FrontEnds frontEnds;
    FakeStatusBar statusBar;
    FakeAlerts alerts;
    FakeSounds sounds;
    StatusMenu menu{harness.manager, {}};
    StatusIcon icon{statusBar, harness.manager};
    SyncStatus status{{harness.manager, logger, plans, record, frontEnds, menu, icon, alerts,
                       sounds, harness.clock, [] {
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
    EXPECT_EQ(run(), "Sync was cancelled.");
    EXPECT_EQ(joined(alerts.titles), "PSP lost during sync!") << "it can't be written any more";
    files.refusal = EACCES;
    QFile::link(harness.home({}), harness.stick(u"PSP/LINK"_s));
    harness.wishes.items = [this] {
        return std::vector<CVSyncItem>{
            {harness.sources / u"one"_s, harness.place(u"one"_s), {}},
            {harness.sources / u"two"_s, harness.stick(u"PSP/LINK/two"_s), {}},
            {harness.sources / u"gone"_s, harness.place(u"gone"_s), {}}};
    };
    EXPECT_EQ(run(), "Unexpected error: Couldn't create: STICK/PSP/MUSIC/one (Permission denied)\n"
                     "2 of 2 files could not be copied.\n"
                     "Not copied: STICK/PSP/LINK/two (a link lies on the way)");
    EXPECT_EQ(texts(), "Sync Incomplete\n2 of 2 files could not be copied.");
    icon.show(menu.menu());
    harness.volumes.unmount(harness.stick());
    EXPECT_EQ(texts(), "No PSP Connected\n2 of 2 files could not be copied.");
    EXPECT_EQ(statusBar.toolTip, u"No PSP Connected – 2 of 2 files could not be copied."_s);
    harness.mountStick();
    SyncHarness::settle();
    EXPECT_TRUE(alerts.titles.isEmpty() && sounds.played.isEmpty());
    harness.wishes.items = [this] {
        return std::vector<CVSyncItem>{{harness.sources / u"one"_s, harness.place(u"one"_s), {}}};
    };
    files.readOnlyBelow.clear();
    writeFile(harness.sources / u"one"_s, QByteArray(5000, 'l'));
    files.writableBytes = 1000;
    files.onFull = [this] {
        files.freeBytes = 0;
    };
    EXPECT_EQ(run(), "Memory stick filled while syncing!\nSync was cancelled.");
    EXPECT_EQ(joined(alerts.titles), "Memory stick full!") << "once, however many files fail";
    EXPECT_EQ(statusBar.toolTip, u"Sync Cancelled"_s);
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
