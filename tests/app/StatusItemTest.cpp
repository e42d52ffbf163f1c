#include "app/StatusIcon.h"
#include "app/StatusMenu.h"
#include "support/FakeDesktop.h"
#include "support/SyncHarness.h"

#include <gtest/gtest.h>

namespace {

QString frame(int number)
{
    return u"InactiveSyncingIcon%1/ActiveSyncingIcon%1"_s.arg(number);
}

} // namespace

TEST(StatusIconTest, SwingsThroughThirteenFrames)
{
    SyncHarness harness;
    FakeStatusBar bar;
    StatusIcon icon(bar, harness.manager);
    StatusMenu menu(harness.manager, {});
    icon.pspDidMount(); // nothing to show it on
    icon.startSyncAnimation();
    icon.stopSyncAnimation();
    icon.show(menu.menu());
    icon.show(menu.menu());
    EXPECT_EQ(bar.items, 1);
    EXPECT_TRUE(bar.enabled);
    EXPECT_EQ(bar.menu, &menu.menu());
    icon.stopSyncAnimation();
    EXPECT_EQ(joined(bar.images), "InactiveNoPSPIcon/ActiveIcon")
        << "stopping what doesn't run changes nothing";

    bar.images.clear();
    icon.startSyncAnimation();
    EXPECT_TRUE(bar.images.isEmpty()) << "the first frame comes with the first ping";
    QStringList expected;
    for (const int number :
         {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 2}) {
        expected.append(frame(number));
        icon.syncAnimationPing();
    }
    EXPECT_EQ(bar.images, expected);
    bar.isShown = false;
    icon.syncAnimationPing();
    EXPECT_EQ(bar.images, expected) << "where nobody sees them";
    bar.isShown = true;
    harness.mountStick();
    icon.stopSyncAnimation();
    EXPECT_EQ(bar.images.last(), u"InactiveIcon/ActiveIcon"_s);
    icon.startSyncAnimation();
    ASSERT_TRUE(waitFor([&] { return bar.images.last() == frame(3); })) << "by its timer";
    EXPECT_EQ(bar.images.last(3), (QStringList{frame(1), frame(2), frame(3)}));
    icon.disable();
    EXPECT_FALSE(bar.enabled);
    icon.remove();
    EXPECT_EQ(bar.items, 0);
    icon.syncAnimationPing();
}
