// Detection, mount state, estimate and the device icon.

#include "platform/lists/NumberArchive.h"
#include "platform/lists/PropertyList.h"
#include "support/FailingFileManager.h"
#include "support/ListModule.h"
#include "support/SyncHarness.h"
#include "sync/ModuleSelection.h"
#include "sync/StickEditor.h"
#include "util/Settings.h"

#include <QDir>
#include <QScopeGuard>

#include <gmock/gmock.h>

#include <sys/xattr.h>

using testing::ElementsAre;

namespace {

QString lastSyncSizePath(const SyncHarness &harness)
{
    return harness.stick(QStringLiteral(".caravel/LastSyncSize"));
}

} // namespace

TEST(Detection, TellsSticksFromOtherVolumes)
{
    struct Case
    {
        const char *what;
        QStringList files;
        bool mounted;
        int unformatted;
    };
    const Case cases[] = {
        {"a PSP's stick", {QStringLiteral("MEMSTICK.IND"), QStringLiteral("PSP/x")}, true, 0},
        {"the marker in another place", {QStringLiteral("PSP/MEMSTICK.IND")}, false, 0},
        {"a stick that no PSP formatted", {QStringLiteral("MEMSTICK.IND")}, false, 1},
        {"a PSP entry that is a file",
         {QStringLiteral("MEMSTICK.IND"), QStringLiteral("PSP")},
         true,
         0},
        {"any other volume", {QStringLiteral("PSP/MUSIC/x")}, false, 0},
    };
    for (const Case &c : cases) {
        SyncHarness harness;
        for (const QString &file : c.files)
            writeFile(harness.stick(file), {});
        harness.volumes.mount(harness.stick());
        EXPECT_EQ(harness.manager.pspIsMounted(), c.mounted) << c.what;
        EXPECT_EQ(harness.delegate.count(QStringLiteral("foundUnformattedMemoryStick")),
                  c.unformatted)
            << c.what;
    }
}

TEST(Detection, TakesTheFirstStickAndReportsEachMountOnce)
{
    SyncHarness harness;
    for (const char *name : {"A", "B", "C"})
        writeFile(harness.folder /
                      QStringLiteral("volumes/%1/MEMSTICK.IND").arg(QLatin1String(name)),
                  {});
    const QString unformatted = harness.folder / QStringLiteral("volumes/A");
    const QString first = harness.folder / QStringLiteral("volumes/B");
    const QString second = harness.folder / QStringLiteral("volumes/C");
    QDir().mkpath(first + QStringLiteral("/PSP"));
    QDir().mkpath(second + QStringLiteral("/PSP"));

    harness.volumes.mount(unformatted);
    harness.volumes.mount(first);
    harness.volumes.mount(second);
    EXPECT_EQ(harness.manager.pspVolume(), first);
    harness.manager.detectPSP();
    // With its first stick gone the scan goes on to the other; the state never leaves "mounted".
    harness.volumes.unmount(first);
    EXPECT_EQ(harness.manager.pspVolume(), second);
    harness.volumes.unmount(second);
    EXPECT_THAT(harness.delegate.events,
                ElementsAre(QStringLiteral("foundUnformattedMemoryStick"),
                            QStringLiteral("pspDidMount"), QStringLiteral("pspDidUnmount"),
                            QStringLiteral("foundUnformattedMemoryStick")));
    EXPECT_EQ(harness.manager.pspVolume(), second) << "the last path is kept";
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
    EXPECT_EQ(harness.delegate.count(QStringLiteral("pspDidUnmount")), 1);
    EXPECT_FALSE(harness.manager.isFirstSync());
}

TEST(Detection, ReadsTheStickItsSizes)
{
    struct Case
    {
        const char *what;
        std::optional<QByteArray> archive;
        quint64 expected;
    };
    const Case cases[] = {
        {"its own", NumberArchive::encode(123456789012), 123456789012},
        {"garbage", QByteArray("\x04\x0bnonsense"), 0},
        {"too long", QByteArray(100000, 'x'), 0},
        {"none", std::nullopt, 0},
    };
    FailingFileManager files; // what the real disk has free changes under the test
    files.freeBytes = 12345;
    FileManager::setDefaultManager(&files);
    const auto restore = qScopeGuard([] { FileManager::setDefaultManager(nullptr); });
    for (const Case &c : cases) {
        SyncHarness harness;
        Settings::lastSyncSize.set(7);
        if (c.archive)
            writeFile(lastSyncSizePath(harness), *c.archive);
        harness.mountStick();
        EXPECT_EQ(Settings::lastSyncSize(), c.expected) << c.what;
        EXPECT_EQ(Settings::lastFreeSpace(), 12345U);
    }
    SyncHarness fresh;
    Settings::lastSyncSize.set(7);
    fresh.mountStick(false);
    EXPECT_TRUE(fresh.manager.isFirstSync());
    EXPECT_EQ(Settings::lastSyncSize(), 7U) << "a stick that was never synced says nothing";
}

TEST(SyncOnMount, AsksOnlyForSticksThatWereSyncedBefore)
{
    for (const bool syncedBefore : {true, false}) {
        for (const bool wanted : {true, false}) {
            SyncHarness harness;
            harness.mountStick(syncedBefore);
            harness.volumes.unmount(harness.stick());
            harness.delegate.events.clear();
            harness.delegate.answerSyncOnMount = wanted;
            Settings::syncOnMount.set(true);
            harness.volumes.mount(harness.stick());
            const bool asked =
                harness.delegate.events.contains(QStringLiteral("shouldSyncOnMount"));
            EXPECT_EQ(asked, syncedBefore);
            EXPECT_EQ(harness.manager.isSyncing(), syncedBefore && wanted);
            harness.settle();
        }
    }
}

TEST(Estimate, AddsTheSelectionAndSetsItAgainstTheRoom)
{
    TemporaryFolder sources;
    writeFile(sources / QStringLiteral("a"), QByteArray(400, 'a'));
    const ListModule::Wishes wishes{
        [&] {
            return std::vector<CVSyncItem>{
                {sources / QStringLiteral("a"), QStringLiteral("/x/a"), {}},
                {sources / QStringLiteral("gone"), QStringLiteral("/x/b"), {}}};
        },
        QStringLiteral("/x")};
    const ModuleKind always = ListModule::kind(QStringLiteral("Music"), wishes);
    ModuleKind notOnTheStick = always;
    notOnTheStick.countsInEstimate = false;
    ModuleKind sometimes = always;
    sometimes.takesPart = [] {
        return Settings::firmwareVersion() > 0;
    };
    SyncHarness harness({always, notOnTheStick, sometimes});
    Settings::lastFreeSpace.set(600);
    Settings::lastSyncSize.set(1000);

    const auto estimate = [&] {
        harness.manager.refreshSyncBytesEstimate();
        harness.settle();
        return harness.delegate.events.last();
    };
    EXPECT_EQ(estimate(), QStringLiteral("newSyncBytesEstimate 800")) << "saves don't count";
    EXPECT_EQ(harness.manager.syncPercentEstimate(), 50U);
    Settings::firmwareVersion.set(0);
    EXPECT_EQ(estimate(), QStringLiteral("newSyncBytesEstimate 400"));
    EXPECT_EQ(harness.manager.syncPercentEstimate(), 25U);
    Settings::lastSyncSize.set(0);
    Settings::lastFreeSpace.set(401);
    EXPECT_EQ(harness.manager.syncPercentEstimate(), 99U) << "cut, not rounded";
    Settings::lastFreeSpace.set(0);
    EXPECT_EQ(harness.manager.syncPercentEstimate(), 0U) << "nothing is known of the stick";
    Settings::syncMusic.set(false);
    EXPECT_EQ(estimate(), QStringLiteral("newSyncBytesEstimate 0"));
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
    EXPECT_THAT(harness.delegate.events, ElementsAre(QStringLiteral("syncDidFinish false"),
                                                     QStringLiteral("newSyncBytesEstimate 0")));
    EXPECT_TRUE(harness.run());
}

TEST(Icon, IsTheMonthsAndMarksTheVolume)
{
    TemporaryFolder folder;
    writeFile(folder / QStringLiteral("resources/PSP3.icns"), "march");
    writeFile(folder / QStringLiteral("volume/.VolumeIcon.icns"), "february");
    const QString volume = folder / QStringLiteral("volume");
    StickEditor(volume).setIcon(folder / QStringLiteral("resources/PSP3.icns"));
    EXPECT_EQ(readFile(volume + QStringLiteral("/.VolumeIcon.icns")), "march");
    unsigned char info[32] = {};
    if (::getxattr(volume.toUtf8().constData(), "user.com.apple.FinderInfo", info, sizeof info) < 0)
        GTEST_SKIP() << "skipped: this file system takes no extended attributes";
    EXPECT_EQ(info[8], 0x04);
}

TEST(Selection, LiesInThePreferencesAndOnSyncedSticks)
{
    SyncHarness harness;
    harness.mountStick();
    const QString saveName = QStringLiteral("Music");
    const QString profile = harness.stick(QStringLiteral(".caravel/Music.plist"));
    ModuleSelection::store({QStringLiteral("One")}, saveName, harness.stick());
    EXPECT_EQ(*PropertyList::readStringArray(profile), QStringList{QStringLiteral("One")});
    ModuleSelection::store({QStringLiteral("Two")}, saveName, {});

    const auto read = [&] {
        return ModuleSelection::read(saveName, harness.stick()).value_or(QStringList());
    };
    EXPECT_THAT(read(), ElementsAre(QStringLiteral("Two")));
    Settings::useSyncProfiles.set(true);
    EXPECT_THAT(read(), ElementsAre(QStringLiteral("One")));
    writeFile(profile, "garbage");
    EXPECT_THAT(read(), ElementsAre(QStringLiteral("Two"))) << "garbage must not clear the stick";
}

TEST(SyncOnMount, WaitsWhileThePreferencesCannotBeRead)
{
    SyncHarness harness;
    const QString preferences =
        harness.folder / QStringLiteral("preferences/org.caravel.Caravel.plist");
    harness.mountStick();
    Settings::syncOnMount.set(true);
    harness.defaults.synchronize();
    harness.volumes.unmount(harness.stick());
    QFile::remove(preferences);
    writeFile(preferences + QStringLiteral("/no file"), {});
    const SystemLogCapture log;
    harness.defaults.synchronize();
    harness.volumes.mount(harness.stick());
    EXPECT_EQ(harness.delegate.count(QStringLiteral("syncWillStart")), 0);

    harness.volumes.unmount(harness.stick());
    QDir(preferences).removeRecursively();
    harness.defaults.synchronize();
    harness.volumes.mount(harness.stick());
    harness.finishRun();
    EXPECT_EQ(harness.delegate.count(QStringLiteral("syncWillStart")), 1);
}
