// Detection, mount state, estimate, and the selection that counts.

#include "platform/lists/NumberArchive.h"
#include "platform/lists/PropertyList.h"
#include "support/FailingFileManager.h"
#include "support/ListModule.h"
#include "sync/ModuleSelection.h"
#include "sync/StickEditor.h"
#include "sync/SyncPreview.h"
#include "util/Settings.h"

#include <QDir>
#include <QScopeGuard>

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>

TEST(Detection, TellsSticksFromOtherVolumes)
{
    const struct
    {
        const char *what, *files, *events;
    } cases[] = {
        {"a PSP's stick", "MEMSTICK.IND PSP/x", "pspDidMount"},
        {"the marker in another place", "PSP/MEMSTICK.IND", ""},
        {"a stick that no PSP formatted", "MEMSTICK.IND", "foundUnformattedMemoryStick"},
        {"a PSP entry that is a file", "MEMSTICK.IND PSP", "pspDidMount"},
        {"any other volume", "PSP/MUSIC/x", ""},
    };
    for (const auto &c : cases) {
        SyncHarness harness;
        for (const QString &file : list(c.files))
            writeFile(harness.stick(file), {});
        harness.volumes.mount(harness.stick());
        EXPECT_EQ(joined(harness.delegate.events), c.events) << c.what;
        EXPECT_EQ(harness.manager.pspIsMounted(), QByteArray(c.events) == "pspDidMount") << c.what;
    }
}

TEST(Detection, TakesTheFirstStickAndReportsEachMountOnce)
{
    SyncHarness harness;
    const auto volume = [&](const char *name) {
        return harness.folder / (u"volumes/"_s + QLatin1String(name));
    };
    for (const char *name : {"A", "B", "C"})
        writeFile(volume(name) + u"/MEMSTICK.IND"_s, {});
    QDir().mkpath(volume("B") + u"/PSP"_s);
    QDir().mkpath(volume("C") + u"/PSP"_s);
    for (const char *name : {"A", "B", "C"})
        harness.volumes.mount(volume(name));
    EXPECT_EQ(harness.manager.pspVolume(), volume("B"));
    harness.manager.detectPSP();
    // With its first stick gone the scan goes on to the other; the state never leaves "mounted".
    harness.volumes.unmount(volume("B"));
    EXPECT_EQ(harness.manager.pspVolume(), volume("C"));
    harness.volumes.unmount(volume("C"));
    EXPECT_EQ(joined(harness.delegate.events), "foundUnformattedMemoryStick\npspDidMount\n"
                                               "pspDidUnmount\nfoundUnformattedMemoryStick");
    EXPECT_EQ(harness.manager.pspVolume(), volume("C")) << "the last path is kept";
}

TEST(Detection, NoticesAStickThatWentWithoutAnEvent)
{
    SyncHarness harness;
    harness.mountStick();
    ASSERT_TRUE(harness.manager.canSync());
    harness.volumes.vanish(harness.stick());
    QDir(harness.stick()).removeRecursively();
    // An empty mount point at the same path is not the stick.
    QDir().mkpath(harness.stick());
    EXPECT_FALSE(harness.manager.pspIsMounted());
    EXPECT_EQ(harness.delegate.count(u"pspDidUnmount"_s), 1);
    EXPECT_FALSE(harness.manager.isFirstSync());
}

TEST(Detection, ReadsTheStickItsSizes)
{
    FailingFileManager files; // what the real disk has free changes under the test
    files.freeBytes = 12345;
    FileManager::setDefaultManager(&files);
    const auto restore = qScopeGuard([] { FileManager::setDefaultManager(nullptr); });
    const std::pair<std::optional<QByteArray>, quint64> cases[] = {
        {NumberArchive::encode(123456789012), 123456789012},
        {"\x04\x0bnonsense", 0},
        {std::nullopt, 0}};
    for (const auto &[archive, expected] : cases) {
        SyncHarness harness;
        Settings::lastSyncSize.set(7);
        if (archive)
            writeFile(harness.stick(u".caravel/LastSyncSize"_s), *archive);
        harness.mountStick();
        EXPECT_EQ(Settings::lastSyncSize(), expected);
        EXPECT_EQ(Settings::lastFreeSpace(), 12345U);
    }
    SyncHarness fresh;
    Settings::lastSyncSize.set(7);
    fresh.mountStick(false);
    EXPECT_TRUE(fresh.manager.isFirstSync());
    EXPECT_EQ(Settings::lastSyncSize(), 7U) << "a stick that was never synced says nothing";
}

TEST(SyncOnMount, WaitsWhileThePreferencesCannotBeRead)
{
    SyncHarness harness;
    const QString preferences = harness.folder / u"preferences/org.caravel.Caravel.plist"_s;
    harness.mountStick();
    Settings::syncOnMount.set(true);
    harness.defaults.synchronize();
    harness.volumes.unmount(harness.stick());
    QFile::remove(preferences);
    writeFile(preferences + u"/no file"_s, {});
    const SystemLogCapture log;
    harness.defaults.synchronize();
    harness.volumes.mount(harness.stick());
    harness.manager.sync();
    EXPECT_EQ(harness.delegate.count(u"syncHeldBack 0 "_s), 2);
    EXPECT_EQ(harness.delegate.count(u"syncWillStart"_s), 0);

    harness.volumes.unmount(harness.stick());
    QDir(preferences).removeRecursively();
    harness.defaults.synchronize();
    harness.volumes.mount(harness.stick());
    harness.finishRun();
    EXPECT_EQ(harness.delegate.count(u"syncWillStart"_s), 1);

    writeFile(preferences, "garbage");
    harness.defaults.synchronize();
    harness.manager.sync();
    EXPECT_EQ(harness.delegate.events.last(), u"syncHeldBack 1 "_s) << "they were set aside";
    Settings::setSelection(u"Music"_s, {});
    EXPECT_TRUE(harness.run());
}

TEST(SyncOnMount, IsHeldBackWhereTheUserMayLoseWhatIsWanted)
{
    ListHarness harness;
    const SystemLogCapture log;
    for (int i = 0; i < 20; ++i)
        harness.want(QString::number(i), "contents");
    const QStringList all = harness.wanted;
    harness.mountStick();
    const auto placeAll = [&] {
        harness.wanted = all;
        EXPECT_TRUE(harness.run());
    };
    const auto remount = [&] {
        harness.volumes.unmount(harness.stick());
        harness.delegate.events.clear();
        Settings::syncOnMount.set(true);
        harness.volumes.mount(harness.stick());
        EXPECT_TRUE(waitFor([&] { return harness.delegate.events.size() > 1; }));
        SyncHarness::settle();
        return harness.delegate.events.value(1).toStdString();
    };
    placeAll();
    harness.wanted = all.first(10);
    EXPECT_EQ(remount(), "syncWillStart") << "half of it may go";
    harness.wanted.clear();
    EXPECT_EQ(remount(), "syncHeldBack 5 Music");
    EXPECT_EQ(harness.delegate.events.size(), 2) << "nothing else is told";
    Settings::setSelection(u"Music"_s, {u"Another"_s});
    EXPECT_EQ(remount(), "syncWillStart") << "the user has chosen anew";
    EXPECT_EQ(harness.placed(), "");
    placeAll();
    harness.wanted = all.first(9);
    EXPECT_EQ(remount(), "syncHeldBack 5 Music");
    Settings::syncDropboxes.set(false);
    EXPECT_EQ(remount(), "syncWillStart") << "another setting";
    EXPECT_EQ(harness.delegate.report.removed, 11U);
    harness.wanted.clear();
    EXPECT_EQ(remount(), "syncWillStart") << "nine are few";
    placeAll();
    harness.wanted.clear();
    EXPECT_TRUE(harness.run()) << "by hand";

    placeAll();
    harness.wanted.pop_back();
    harness.wishes.source = 1;
    EXPECT_EQ(remount(), "syncHeldBack 6 Music") << "even one, where it came from elsewhere";
    harness.manager.userHasLooked();
    EXPECT_EQ(remount(), "syncWillStart");
    harness.wishes.unreadable = FileError::of(FileError::Operation::Parse, u"/library"_s, 0);
    EXPECT_EQ(remount(), "syncHeldBack 4 Music");
    EXPECT_EQ(remount(), "syncHeldBack 4 Music");
    harness.manager.userHasLooked();
    EXPECT_EQ(remount(), "syncWillStart");
    harness.wishes.unreadable.reset();

    Settings::useSyncProfiles.set(true);
    writeFile(harness.stick(u".caravel/Music.plist"_s), "garbage");
    EXPECT_EQ(remount(), "syncHeldBack 3 ");
    Settings::useSyncProfiles.set(false);

    harness.wishes.items = [&] {
        performOnMainThread(
            nullptr, [&] { harness.volumes.unmount(harness.stick()); }, CallMode::Wait);
        return std::vector<CVSyncItem>();
    };
    EXPECT_EQ(remount(), "pspDidUnmount") << "while it was planned";

    ASSERT_TRUE(QDir().rename(harness.stick(u".caravel"_s), harness.home(u"mine"_s)));
    ASSERT_TRUE(QFile::link(harness.home(u"mine"_s), harness.stick(u".caravel"_s)));
    EXPECT_EQ(remount(), "syncHeldBack 2 ");
    harness.manager.sync();
    EXPECT_EQ(harness.delegate.count(u"syncHeldBack 2 "_s), 2);
}

TEST(Estimate, AddsTheSelectionAndSetsItAgainstTheRoom)
{
    const TemporaryFolder sources;
    writeFile(sources / u"a"_s, QByteArray(400, 'a'));
    const ListModule::Wishes wishes{[&] {
                                        return std::vector<CVSyncItem>{
                                            {sources / u"a"_s, u"/x/a"_s, {}},
                                            {sources / u"gone"_s, u"/x/b"_s, {}}};
                                    },
                                    u"/x"_s};
    const ModuleKind always = ListModule::kind(u"Music"_s, wishes);
    ModuleKind notOnTheStick = always;
    notOnTheStick.countsInEstimate = false;
    ModuleKind sometimes = always;
    sometimes.takesPart = [] {
        return Settings::firmwareVersion() > 0;
    };
    SyncHarness harness({always, notOnTheStick, sometimes});
    const struct
    {
        bool syncMusic;
        int firmware;
        quint64 free, lastSync, bytes, percent;
    } cases[] = {
        {true, 1, 600, 1000, 800, 50}, {true, 0, 600, 1000, 400, 25},
        {true, 0, 401, 0, 400, 99},                             // cut, not rounded
        {true, 0, 200, 0, 400, 200},   {true, 0, 0, 0, 400, 0}, // nothing is known of the stick
        {false, 1, 600, 1000, 0, 0},
    };
    for (const auto &c : cases) {
        Settings::syncMusic.set(c.syncMusic);
        Settings::firmwareVersion.set(c.firmware);
        Settings::lastFreeSpace.set(c.free);
        Settings::lastSyncSize.set(c.lastSync);
        harness.manager.refreshSyncBytesEstimate();
        SyncHarness::settle();
        EXPECT_EQ(harness.delegate.events.last(), u"newSyncBytesEstimate %1"_s.arg(c.bytes));
        EXPECT_EQ(harness.manager.syncPercentEstimate(), c.percent);
    }
}

TEST(Estimate, HasTwoAtWorkAtMostAndOneThatWaits)
{
    std::counting_semaphore<> mayEnd(0);
    std::atomic<int> begun = 0;
    const ListModule::Wishes wishes{[&] {
                                        ++begun;
                                        mayEnd.acquire();
                                        return std::vector<CVSyncItem>();
                                    },
                                    u"/x"_s};
    SyncHarness harness({ListModule::kind(u"Music"_s, wishes)});
    for (int call = 0; call < 5; ++call)
        harness.manager.refreshSyncBytesEstimate();
    EXPECT_TRUE(waitFor([&] { return begun == 2; }));
    EXPECT_EQ(Workers::live(), 2);
    EXPECT_EQ(Workers::awaited(), 0) << "by a helper that quits";
    mayEnd.release(3);
    SyncHarness::settle();
    EXPECT_EQ(harness.delegate.count(u"newSyncBytesEstimate 0"_s), 3);
}

TEST(Preview, AnswersAllWhoAskedAndDropsWhatIsNotTrueAnyMore)
{
    std::counting_semaphore<> mayEnd(0);
    std::atomic<int> begun = 0;
    const ListModule::Wishes wishes{[&] {
                                        ++begun;
                                        mayEnd.acquire();
                                        return std::vector<CVSyncItem>();
                                    },
                                    u"/x"_s};
    const SyncHarness harness;
    const ModuleCatalogue kinds{ListModule::kind(u"Music"_s, wishes)};
    SyncPreview preview(kinds);
    QStringList told;
    QObject::connect(&preview, &SyncPreview::isReady,
                     [&](bool ready) { told.append(ready ? u"ready"_s : u"none"_s); });
    const auto toldAfter = [&](int plannings) {
        mayEnd.release(plannings);
        SyncHarness::settle();
        return joined(std::exchange(told, {}), u" ");
    };
    preview.request(harness.stick());
    preview.request(harness.stick());
    EXPECT_EQ(toldAfter(1), "ready") << "two who ask at once";
    preview.request(harness.stick());
    EXPECT_TRUE(waitFor([&] { return begun == 2; }));
    preview.invalidate();
    EXPECT_EQ(toldAfter(2), "ready") << "a change while planning begins anew";
    EXPECT_NE(preview.plan(), nullptr);
    preview.invalidate();
    EXPECT_EQ(preview.plan(), nullptr);
    EXPECT_EQ(toldAfter(0), "none") << "a later one empties the plan";
    preview.request(harness.stick());
    preview.forget();
    EXPECT_EQ(toldAfter(1), "none") << "a stick that goes while planning";
    EXPECT_EQ(preview.plan(), nullptr);
    preview.request({});
    EXPECT_EQ(toldAfter(0), "none") << "no stick";
    EXPECT_EQ(begun, 4);
}

TEST(Threads, ThatCannotStartEndARunAndAnEstimateAtOnce)
{
    SyncHarness harness;
    harness.mountStick();
    harness.delegate.events.clear();
    {
        const NoThreads none;
        harness.manager.sync();
        harness.manager.refreshSyncBytesEstimate();
    }
    EXPECT_EQ(joined(harness.delegate.events),
              "syncWillStart\nsyncDidFinish false\nnewSyncBytesEstimate 0");
    EXPECT_TRUE(harness.run());
}

TEST(Selection, LiesInThePreferencesAndOnSyncedSticks)
{
    SyncHarness harness;
    harness.mountStick();
    const QString profile = harness.stick(u".caravel/Music.plist"_s);
    ModuleSelection::store({u"One"_s}, u"Music"_s, harness.stick());
    EXPECT_EQ(PropertyList::readStringArray(profile).valueOr({}), list("One"));
    ModuleSelection::store({u"Two"_s}, u"Music"_s, {});
    const auto read = [&] {
        return ModuleSelection::read(u"Music"_s, harness.stick()).value_or(QStringList());
    };
    EXPECT_EQ(read(), list("Two"));
    Settings::useSyncProfiles.set(true);
    EXPECT_EQ(read(), list("One"));
    writeFile(profile, "garbage");
    EXPECT_EQ(read(), list("Two")) << "garbage must not clear the stick";
    QDir(harness.stick(u".caravel"_s)).removeRecursively();
    ModuleSelection::store({u"Three"_s}, u"Music"_s, harness.stick());
    EXPECT_FALSE(QFile::exists(profile)) << "no stick is synced by being there";
}
