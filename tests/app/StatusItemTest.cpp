// The status item's images and its menu.

#include "app/StatusIcon.h"
#include "app/StatusMenu.h"
#include "support/FakeDesktop.h"
#include "support/ListModule.h"
#include "support/SyncHarness.h"

#include <gtest/gtest.h>

namespace {

QString frame(int number)
{
    return u"InactiveSyncingIcon%1/ActiveSyncingIcon%1"_s.arg(number);
}

QString shown(const Menu &menu)
{
    QStringList items;
    for (int i = 0; i < menu.count(); ++i) {
        const Menu::Item &item = menu.itemAtIndex(i);
        items.append(item.enabled ? item.title : u'(' + item.title + u')');
    }
    return items.join(u',');
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
    EXPECT_EQ(bar.images, QStringList{u"InactiveNoPSPIcon/ActiveIcon"_s})
        << "stopping what doesn't run changes nothing";

    bar.images.clear();
    icon.startSyncAnimation();
    icon.startSyncAnimation();
    EXPECT_TRUE(bar.images.isEmpty()) << "the first frame comes with the first ping";
    QStringList expected;
    for (int number = 1; number <= 13; ++number)
        expected.append(frame(number));
    for (int number = 12; number >= 1; --number)
        expected.append(frame(number));
    expected.append(frame(2));
    for (qsizetype i = 0; i < expected.size(); ++i)
        icon.syncAnimationPing();
    EXPECT_EQ(bar.images, expected);

    harness.mountStick();
    icon.stopSyncAnimation();
    EXPECT_EQ(bar.images.last(), u"InactiveIcon/ActiveIcon"_s);
    icon.startSyncAnimation();
    ASSERT_TRUE(waitFor([&] { return bar.images.last() == frame(3); })) << "by its timer";
    EXPECT_EQ(bar.images.mid(bar.images.size() - 3), (QStringList{frame(1), frame(2), frame(3)}))
        << "from the first frame on";
    icon.disable();
    EXPECT_FALSE(bar.enabled);
    icon.remove();
    EXPECT_EQ(bar.items, 0);
    icon.syncAnimationPing();
}

TEST(StatusMenuTest, FollowsTheManager)
{
    TemporaryFolder sources;
    writeFile(sources / u"one"_s, "contents");
    SyncHarness *running = nullptr;
    StatusMenu *following = nullptr;
    QStringList during;
    ListModule::Wishes wishes{[&] {
                                  return std::vector<CVSyncItem>{
                                      {sources / u"one"_s, running->stick(u"PSP/MUSIC/one"_s), {}}};
                              },
                              u"/PSP/MUSIC"_s};
    SyncHarness harness{{ListModule::kind(u"Music"_s, wishes)}};
    running = &harness;
    QStringList chosen;
    const auto note = [&](const QString &title) {
        chosen.append(title);
    };
    StatusMenu menu(harness.manager, {note, {}, {}, note});
    following = &menu;
    menu.setStatusText(u"Idle"_s);
    menu.update();
    EXPECT_EQ(shown(menu.menu()), u"Idle,(Sync Now),(Eject PSP),Open Caravel,Quit"_s);
    menu.menu().choose(1); // disabled
    menu.menu().choose(4);
    menu.menu().choose(9);
    ASSERT_TRUE(waitFor([&] { return !chosen.isEmpty(); }));
    EXPECT_EQ(chosen, QStringList{u"Quit"_s});

    harness.mountStick();
    menu.menu().setOpen(true); // whoever opens it asks
    EXPECT_EQ(shown(menu.menu()), u"Idle,Sync Now,Eject PSP,Open Caravel,Quit"_s);
    harness.delegate.onEvent = [&](const QString &event) {
        if (event == u"syncDidStart" || event.startsWith(u"syncWillCancel") ||
            event.startsWith(u"syncDidFinish")) {
            following->update();
            during.append(shown(menu.menu()));
        }
        if (event == u"syncDidStart") {
            menu.menu().choose(1);
            harness.manager.cancelSync();
        }
    };
    harness.run();
    ASSERT_TRUE(waitFor([&] { return chosen.size() == 2; }));
    EXPECT_EQ(chosen.last(), u"Cancel Sync"_s) << "as it was when it was chosen";
    EXPECT_EQ(during, (QStringList{u"Idle,Cancel Sync,(Eject PSP),Open Caravel,Quit"_s,
                                   u"Idle,(Cancel Sync),(Eject PSP),Open Caravel,Quit"_s,
                                   u"Idle,Sync Now,Eject PSP,Open Caravel,Quit"_s}));
}
