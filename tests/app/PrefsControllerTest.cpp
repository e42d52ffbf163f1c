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
    UserDefaults defaults{QStringLiteral("shared"), folder.path()};

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
    EXPECT_EQ(defaults.unsignedForKey(QStringLiteral("lastFreeSpace")), 490943283U);
    EXPECT_EQ(defaults.stringForKey(QStringLiteral("CaravelFolder")),
              QStringLiteral("~/Documents"));
    EXPECT_TRUE(defaults.boolForKey(QStringLiteral("startOnLogin")));
    EXPECT_FALSE(defaults.dateForKey(QStringLiteral("lastSync")));
    EXPECT_FALSE(defaults.stringArrayForKey(QStringLiteral("enabledMusic")));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(readFile(folder / QStringLiteral("shared.plist")), QByteArray());
    EXPECT_EQ(Folders::documents(),
              qEnvironmentVariable("HOME") + QStringLiteral("/Documents/Caravel"));
}

TEST_F(PrefsControllerTest, RelaysChangesBothWays)
{
    const QString announcement = QStringLiteral("CVPrefsDidChangeNotification");
    defaults.setObject(QStringLiteral("organizeMusicBy"), 3);
    ASSERT_TRUE(waitFor([&] { return notifications.posted.contains(announcement); }));
    UserDefaults frontEnd(QStringLiteral("shared"), folder.path());
    EXPECT_EQ(frontEnd.integerForKey(QStringLiteral("organizeMusicBy")), 3)
        << "written before it was announced";

    PrefsController::beginObserving(notifications);
    frontEnd.setObject(QStringLiteral("sortMusicBy"), 1);
    ASSERT_TRUE(frontEnd.synchronize());
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("sortMusicBy")), 2);
    notifications.post(announcement);
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("sortMusicBy")), 1);
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("organizeMusicBy")), 3);
}
