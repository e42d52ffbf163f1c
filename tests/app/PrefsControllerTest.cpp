#include "app/PrefsController.h"

#include "support/SyncHarness.h"
#include "util/Folders.h"
#include "util/Settings.h"

#include <gtest/gtest.h>

TEST(PrefsController, InstallsEveryDefaultAndRelaysChangesBothWays)
{
    HomeHarness harness;
    PrefsController::initialize(harness.notifications);
    EXPECT_EQ(Settings::lastFreeSpace(), 490943283U);
    EXPECT_EQ(harness.defaults.stringForKey(u"CaravelFolder"_s), u"~/Documents"_s);
    EXPECT_TRUE(harness.defaults.boolForKey(u"startOnLogin"_s));
    EXPECT_FALSE(Settings::lastSync());
    EXPECT_FALSE(harness.defaults.stringArrayForKey(u"enabledMusic"_s));
    EXPECT_EQ(Folders::documents(), harness.home(u"Documents/Caravel"_s));
    EXPECT_TRUE(harness.defaults.synchronize());
    EXPECT_EQ(treeOf(harness.folder / u"preferences"_s).filter(u".plist"_s), QStringList())
        << "defaults aren't written";

    const QString announcement = u"CVPrefsDidChangeNotification"_s;
    harness.set(u"organizeMusicBy", 3);
    ASSERT_TRUE(waitFor([&] { return harness.notifications.posted.contains(announcement); }));
    UserDefaults frontEnd(u"org.caravel.Caravel"_s, harness.folder / u"preferences"_s);
    EXPECT_EQ(frontEnd.integerForKey(u"organizeMusicBy"_s), 3) << "written before it was announced";
    PrefsController::beginObserving(harness.notifications);
    frontEnd.setObject(u"sortMusicBy"_s, 1);
    ASSERT_TRUE(frontEnd.synchronize());
    EXPECT_EQ(harness.defaults.integerForKey(u"sortMusicBy"_s), 2);
    harness.notifications.post(announcement);
    EXPECT_EQ(harness.defaults.integerForKey(u"sortMusicBy"_s), 1);
    EXPECT_EQ(harness.defaults.integerForKey(u"organizeMusicBy"_s), 3);
}
