#include "app/PrefsController.h"

#include "platform/lists/PropertyList.h"
#include "platform/lists/UserDefaults.h"
#include "support/SyncHarness.h"
#include "util/Folders.h"
#include "util/Settings.h"

#include <gtest/gtest.h>

namespace {

class PrefsControllerTest : public testing::Test
{
protected:
    TemporaryFolder folder;
    FakeNotifications notifications;
    UserDefaults defaults{u"shared"_s, folder.path()};

    void SetUp() override
    {
        UserDefaults::setStandard(&defaults);
        PrefsController::initialize(notifications);
    }
    void TearDown() override { UserDefaults::setStandard(nullptr); }
};

} // namespace

TEST_F(PrefsControllerTest, InstallsEveryDefaultWithoutWritingIt)
{
    EXPECT_EQ(Settings::keys().size(), 32U);
    EXPECT_EQ(defaults.unsignedForKey(u"lastFreeSpace"_s), 490943283U);
    EXPECT_EQ(defaults.stringForKey(u"CaravelFolder"_s), u"~/Documents"_s);
    EXPECT_TRUE(defaults.boolForKey(u"startOnLogin"_s));
    EXPECT_FALSE(defaults.dateForKey(u"lastSync"_s));
    EXPECT_FALSE(defaults.stringArrayForKey(u"enabledMusic"_s));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(readFile(folder / u"shared.plist"_s), QByteArray());
    EXPECT_EQ(Folders::documents(), qEnvironmentVariable("HOME") + u"/Documents/Caravel"_s);
}

TEST_F(PrefsControllerTest, RelaysChangesBothWays)
{
    const QString announcement = u"CVPrefsDidChangeNotification"_s;
    defaults.setObject(u"organizeMusicBy"_s, 3);
    ASSERT_TRUE(waitFor([&] { return notifications.posted.contains(announcement); }));
    UserDefaults frontEnd(u"shared"_s, folder.path());
    EXPECT_EQ(frontEnd.integerForKey(u"organizeMusicBy"_s), 3) << "written before it was announced";

    PrefsController::beginObserving(notifications);
    frontEnd.setObject(u"sortMusicBy"_s, 1);
    ASSERT_TRUE(frontEnd.synchronize());
    EXPECT_EQ(defaults.integerForKey(u"sortMusicBy"_s), 2);
    notifications.post(announcement);
    EXPECT_EQ(defaults.integerForKey(u"sortMusicBy"_s), 1);
    EXPECT_EQ(defaults.integerForKey(u"organizeMusicBy"_s), 3);
}
