// The status item's images and its menu.

#include "app/StatusIcon.h"
#include "app/StatusMenu.h"
#include "support/FakeDesktop.h"
#include "support/ListModule.h"

#include <gtest/gtest.h>

namespace {

QString frame(int number)
{
    return u"InactiveSyncingIcon%1/ActiveSyncingIcon%1"_s.arg(number);
}

std::string shown(const Menu &menu)
{
    QStringList items;
    for (int i = 0; i < menu.count(); ++i) {
        const Menu::Item &item = menu.itemAtIndex(i);
        items.append(item.enabled ? item.title : u'(' + item.title + u')');
    }
    return joined(items, u",");
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

TEST(StatusMenuTest, FollowsTheManager)
{
    ListHarness harness;
    harness.want(u"one"_s, "contents");
    QStringList chosen;
    const auto note = [&](const QString &title) {
        chosen.append(title);
    };
    StatusMenu menu(harness.manager, {note, {}, {}, note});
    menu.setStatusText(u"Idle"_s);
    menu.update();
    EXPECT_EQ(shown(menu.menu()), "Idle,(Sync Now),(Eject PSP),Open Caravel,Quit");
    for (const int item : {1, 4, 9}) // of which the first is disabled and the last isn't there
        menu.menu().choose(item);
    ASSERT_TRUE(waitFor([&] { return !chosen.isEmpty(); }));
    EXPECT_EQ(chosen, list("Quit"));

    harness.mountStick();
    menu.menu().setOpen(true); // whoever opens it asks
    EXPECT_EQ(shown(menu.menu()), "Idle,Sync Now,Eject PSP,Open Caravel,Quit");
    std::string during;
    harness.delegate.onEvent = [&](const QString &event) {
        if (event != u"syncDidStart" && event != u"syncWillCancel" &&
            event != u"syncDidFinish false")
            return;
        menu.update();
        during += shown(menu.menu()) + '\n';
        if (event == u"syncDidStart") {
            menu.menu().choose(1);
            harness.manager.cancelSync();
        }
    };
    harness.run();
    ASSERT_TRUE(waitFor([&] { return chosen.size() == 2; }));
    EXPECT_EQ(chosen.last(), u"Cancel Sync"_s) << "as it was when it was chosen";
    EXPECT_EQ(during, "Idle,Cancel Sync,(Eject PSP),Open Caravel,Quit\n"
                      "Idle,(Cancel Sync),(Eject PSP),Open Caravel,Quit\n"
                      "Idle,Sync Now,Eject PSP,Open Caravel,Quit\n");
}
