// The order of a run's callbacks, its cancel points, and sticks that fail in the middle.

#include "platform/lists/PropertyList.h"
#include "support/FailingFileManager.h"
#include "support/ListModule.h"
#include "util/Settings.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

constexpr qint64 chunk = 1 << 20;

/// Two items are wanted: one of three chunks, one of a few bytes.
class SyncRunTest : public testing::Test
{
protected:
    FailingFileManager files;
    ListHarness harness;

    void SetUp() override
    {
        FileManager::setDefaultManager(&files);
        harness.want(u"big"_s, QByteArray(2 * chunk + 100, 'b'));
        harness.want(u"small"_s, "small");
        harness.put(u"stale"_s);
        harness.mountStick();
    }
    void TearDown() override
    {
        harness.delegate.onEvent = nullptr;
        SyncHarness::settle();
        FileManager::setDefaultManager(nullptr);
    }

    std::string events() const { return joined(harness.delegate.events); }
    std::string stepsFrom(QStringView step) const { return harness.delegate.stepsFrom(step); }
    /// Does something at the first event of that name.
    void when(const char *event, std::function<void()> act)
    {
        harness.delegate.onEvent = [event, act = std::move(act),
                                    done = false](const QString &now) mutable {
            if (now.startsWith(QLatin1String(event)) && !std::exchange(done, true))
                act();
        };
    }
};

} // namespace

TEST_F(SyncRunTest, TellsEveryStepInOrder)
{
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(events(), "syncWillStart\nsyncWillCleanUp\nsyncDidStart\n"
                        "syncWillProcessModule Music\n"
                        "syncWillProcessItem big\n"
                        "syncDidCopyBytes 1048576\nsyncDidCopyBytes 1048576\nsyncDidCopyBytes 100\n"
                        "syncDidProcessItem big\n"
                        "syncWillProcessItem small\n"
                        "syncDidCopyBytes 5\nsyncDidCopyLastBytes\n"
                        "syncDidProcessItem small\n"
                        "finalizeDidStart\nsyncDidFinish true");
    EXPECT_EQ(harness.clock.pauses, 5);
    EXPECT_EQ(harness.placed(), "big\nsmall");
    EXPECT_EQ(Settings::lastSync(), harness.clock.current);
    files.readOnlyBelow = harness.folder / u"volumes"_s;
    EXPECT_TRUE(harness.run()) << "with everything in place nothing is written";
    EXPECT_EQ(events(), "syncWillStart\nsyncWillCleanUp\nsyncDidStart\n"
                        "syncWillProcessModule Music\nfinalizeDidStart\nsyncDidFinish true");
    files.readOnlyBelow.clear();
    EXPECT_EQ(harness.index(u"Music"_s), list("/PSP/MUSIC/big /PSP/MUSIC/small"));
    EXPECT_EQ(harness.lastSyncSizeOnStick(), quint64(2 * chunk + 105));
    EXPECT_EQ(Settings::lastSyncSize(), quint64(2 * chunk + 105));
    Settings::syncMusic.set(false);
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(harness.tree(u"PSP"_s), "MUSIC/") << "the kind's own folder stays";
    EXPECT_TRUE(harness.index(u"Music"_s).isEmpty());
}

TEST_F(SyncRunTest, StopsWhereTheStickHasNoRoom)
{
    // As many bytes free as are needed count as too few.
    files.freeBytes = 2 * chunk + 105;
    EXPECT_FALSE(harness.run());
    EXPECT_EQ(events(), "syncWillStart\nsyncWillCleanUp\n"
                        "syncNotEnoughFreeSpace 2097257\nsyncWillCancel\n"
                        "syncDidStart\nfinalizeDidStart\nsyncDidFinish false");
    EXPECT_EQ(harness.placed(), "") << "the clean-up has happened, nothing was copied";
    EXPECT_EQ(harness.lastSyncSizeOnStick(), 0U);
    EXPECT_FALSE(Settings::lastSync());
    // Nor do the bytes alone count.
    const quint64 cluster = files.volumeSpace(harness.stick())->clusterSize;
    const quint64 clusters = (2 * chunk / cluster + 2) * cluster;
    ASSERT_GT(clusters, quint64(2 * chunk + 106));
    files.freeBytes = clusters - 1;
    EXPECT_FALSE(harness.run());
    EXPECT_EQ(harness.delegate.count(u"syncNotEnoughFreeSpace %1"_s.arg(clusters)), 1);
    files.freeBytes = clusters;
    EXPECT_TRUE(harness.run());
}

TEST_F(SyncRunTest, EndsOnceAfterACancelAnywhere)
{
    const struct
    {
        const char *at, *steps, *placed; // steps from the cancel to the end
    } cases[] = {
        {"syncWillStart", "syncWillCleanUp\nsyncDidStart\nfinalizeDidStart\n", "stale"},
        {"syncWillCleanUp", "syncDidStart\nfinalizeDidStart\n", "stale"},
        {"syncDidStart", "finalizeDidStart\n", ""},
        {"syncWillProcessModule", "finalizeDidStart\n", ""},
        {"syncDidCopyBytes", "syncDidProcessItem big\nfinalizeDidStart\n", "big"},
        {"syncDidProcessItem", "finalizeDidStart\n", "big"},
        {"syncDidCopyLastBytes", "syncDidProcessItem small\nfinalizeDidStart\n", "big\nsmall"},
        {"finalizeDidStart", "", "big\nsmall"},
    };
    int ways = 0;
    for (const auto &c : cases) {
        QDir(harness.place({})).removeRecursively();
        harness.put(u"stale"_s);
        const auto cancelled = [&] {
            Q_EMIT harness.volumes.willUnmount(harness.folder / u"another"_s);
            EXPECT_TRUE(harness.manager.canCancelSync());
            switch (++ways % 3) {
            case 0:
                harness.manager.cancelSync();
                break;
            case 1:
                harness.notifications.post(u"CVCancelSyncNotification"_s);
                break;
            case 2:
                Q_EMIT harness.volumes.willUnmount(harness.stick());
            }
            harness.manager.cancelSync(); // ignored
            EXPECT_FALSE(harness.manager.canCancelSync());
            harness.manager.sync(); // so is a second run
        };
        when(c.at, cancelled);
        EXPECT_FALSE(harness.run()) << c.at;
        EXPECT_EQ(stepsFrom(u"syncWillCancel"),
                  std::string("syncWillCancel\n") + c.steps + "syncDidFinish false")
            << c.at;
        EXPECT_EQ(harness.placed(), c.placed) << c.at;
        EXPECT_FALSE(Settings::lastSync()) << c.at;
        EXPECT_EQ(harness.manager.syncBytesTotal(), 1U) << c.at;
        EXPECT_FALSE(harness.manager.isIndeterminate()) << c.at;
        if (QByteArrayView(c.at) == "syncDidCopyBytes") {
            EXPECT_EQ(harness.lastSyncSizeOnStick(), quint64(chunk))
                << "what was not copied is left out";
        }
        harness.delegate.onEvent = nullptr;
        EXPECT_TRUE(harness.run()) << "the run after a cancel at " << c.at;
        EXPECT_EQ(harness.placed(), "big\nsmall") << c.at;
        Settings::lastSync.set({});
    }
    // Before the replacements are removed it costs nothing.
    writeFile(harness.sources / u"small"_s, "larger than before");
    const auto items = harness.wishes.items;
    harness.wishes.items = [&] {
        harness.manager.cancelSync();
        return items();
    };
    EXPECT_FALSE(harness.run());
    EXPECT_EQ(readFile(harness.place(u"small"_s)), "small");
    EXPECT_EQ(harness.index(u"Music"_s), list("/PSP/MUSIC/big /PSP/MUSIC/small"));
    EXPECT_EQ(Settings::lastSyncSize(), quint64(2 * chunk + 105));
    harness.wishes.items = items;
    harness.clock.pauses = 0;
    harness.clock.onSleep = [this](int pause) {
        if (pause == 2)
            harness.manager.cancelSync();
    };
    EXPECT_FALSE(harness.run());
    EXPECT_EQ(harness.clock.pauses, 2) << "the rest is cut short";
}

TEST_F(SyncRunTest, WritesNothingWhereTheStickWas)
{
    const SystemLogCapture log;
    const struct
    {
        const char *at;
        bool mountPointStays, isAnnounced, isReplaced; // by somebody else's stick
    } cases[] = {
        {"syncWillStart", true, false, false},     {"syncWillCleanUp", true, false, false},
        {"syncWillCleanUp", true, false, true},    {"syncDidStart", false, false, false},
        {"syncDidCopyBytes", false, false, false}, {"syncDidCopyBytes", true, true, false},
        {"syncDidProcessItem", true, false, true}, {"finalizeDidStart", true, false, false},
    };
    for (const auto &c : cases) {
        const QString pulled = harness.folder / u"pulled"_s;
        const char *const other = "MEMSTICK.IND\nPSP/\nPSP/MUSIC/\nPSP/MUSIC/theirs";
        when(c.at, [&] {
            ASSERT_TRUE(QDir().rename(harness.stick(), pulled));
            if (c.mountPointStays)
                QDir().mkpath(harness.stick());
            if (c.isAnnounced)
                harness.volumes.unmount(harness.stick());
            if (c.isReplaced) {
                writeFile(harness.stick(u"MEMSTICK.IND"_s), {});
                harness.put(u"theirs"_s);
                Q_EMIT harness.volumes.didUnmount(harness.stick());
            }
        });
        EXPECT_FALSE(harness.run()) << c.at;
        EXPECT_EQ(harness.delegate.events.filter(u"syncDidFinish"_s).size(), 1) << c.at;
        EXPECT_EQ(harness.tree({}), c.isReplaced ? other : "") << c.at;
        EXPECT_EQ(harness.manager.pspIsMounted(), c.isReplaced) << "the new stick can be synced";
        EXPECT_TRUE(log.contains(u"is gone"_s)) << c.at;
        harness.delegate.onEvent = nullptr;
        QDir(harness.stick()).removeRecursively();
        ASSERT_TRUE(QDir().rename(pulled, harness.stick()));
        harness.volumes.vanish(harness.stick());
        harness.manager.detectPSP();
        harness.volumes.mount(harness.stick());
        EXPECT_TRUE(harness.run()) << "the next run after " << c.at;
        EXPECT_EQ(harness.placed(), "big\nsmall") << c.at;
        QDir(harness.place({})).removeRecursively();
        harness.put(u"stale"_s);
    }
}

TEST_F(SyncRunTest, NeverFollowsALinkOnTheStick)
{
    const QString mine = harness.home(u"Music"_s);
    writeFile(mine + u"/small"_s, "mine");
    writeFile(mine + u"/stale"_s, "mine");
    QDir(harness.place({})).removeRecursively();
    ASSERT_TRUE(QFile::link(mine, harness.stick(u"PSP/MUSIC"_s)));
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(joined(treeOf(mine)), "small\nstale");
    EXPECT_EQ(harness.delegate.errors.size(), 1U);
    QFile::remove(harness.stick(u"PSP/MUSIC"_s));
    QDir().mkpath(harness.place({}));
    ASSERT_TRUE(QFile::link(mine + u"/small"_s, harness.place(u"small"_s)));
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(readFile(mine + u"/small"_s), "mine");
    EXPECT_EQ(readFile(harness.place(u"small"_s)), "small");
    // One on the computer is measured through.
    ASSERT_TRUE(QFile::rename(harness.sources / u"small"_s, mine + u"/real"_s));
    ASSERT_TRUE(QFile::link(mine + u"/real"_s, harness.sources / u"small"_s));
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(harness.delegate.processed(), 0);
}

TEST_F(SyncRunTest, ReportsAStickThatFailsAndPutsItRightNextTime)
{
    files.readOnlyBelow = harness.stick();
    EXPECT_FALSE(harness.run()) << "one that has turned read-only";
    EXPECT_EQ(stepsFrom(u"syncWillCancel"),
              "syncWillCancel\nsyncWillCleanUp\nsyncDidStart\nfinalizeDidStart\n"
              "syncDidFinish false");
    EXPECT_TRUE(harness.delegate.report.isStickLost);
    files.refusal = EACCES;
    EXPECT_TRUE(harness.run()) << "a run ends by itself whatever fails";
    EXPECT_EQ(stepsFrom(u"syncError"),
              "syncError Couldn't remove\nsyncDidStart\nsyncWillProcessModule Music\n"
              "syncWillProcessItem big\nsyncError Couldn't create\nsyncDidProcessItem big\n"
              "syncWillProcessItem small\nsyncError Couldn't create\nsyncDidProcessItem small\n"
              "finalizeDidStart\nsyncDidFinish true");
    for (const ErrorInfo &error : harness.delegate.errors) {
        EXPECT_TRUE(error.value(u"Path"_s).toString().startsWith(harness.stick()));
        EXPECT_FALSE(error.value(u"Reason"_s).toString().isEmpty());
    }
    EXPECT_EQ(harness.delegate.report.failures(), 2U);
    EXPECT_EQ(harness.delegate.report.placeable(), 2U);
    files.readOnlyBelow.clear();
    files.writableBytes = chunk + 10;
    when("syncError", [this] { harness.manager.cancelSync(); });
    EXPECT_FALSE(harness.run());
    EXPECT_EQ(stepsFrom(u"syncError"), "syncError Couldn't write\nsyncWillCancel\n"
                                       "syncDidProcessItem big\nfinalizeDidStart\n"
                                       "syncDidFinish false");
    harness.delegate.onEvent = nullptr;
    files.writableBytes.reset();
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(readFile(harness.place(u"big"_s)).size(), 2 * chunk + 100);
}

TEST_F(SyncRunTest, LeavesWhatItCannotKeep)
{
    const QString kept = harness.home(u"Documents/Caravel/Removed from PSP"_s);
    const QString mine = harness.place(u"mine"_s);
    QFile::remove(harness.place(u"stale"_s));
    for (const int error : {ENOSPC, EFBIG, EIO}) {
        writeFile(mine, "mine");
        files.refusal = error;
        files.readOnlyBelow = error == EIO ? QString() : kept;
        if (error == EIO) // on the stick
            when("syncWillCleanUp", [this] { files.readableTimes = 0; });
        EXPECT_TRUE(harness.run());
        const RunReport &report = harness.delegate.report;
        EXPECT_EQ(report.outcome(), RunReport::Outcome::Incomplete) << error;
        ASSERT_FALSE(report.leftOut.empty());
        EXPECT_EQ(report.leftOut[0].path, mine);
        EXPECT_TRUE(report.leftOut[0].text.endsWith(u": "_s + qt_error_string(error)));
        EXPECT_EQ(readFile(mine), "mine");
        EXPECT_TRUE(treeOf(kept).filter(u"mine"_s).isEmpty());
        files.readableTimes.reset();
    }
    files.readOnlyBelow.clear();
    EXPECT_TRUE(harness.run());
    EXPECT_FALSE(QFile::exists(mine));
    EXPECT_EQ(treeOf(kept).filter(u"/PSP/MUSIC/mine"_s).size(), 1);
    EXPECT_FALSE(QFile::exists(kept + u"/.unfinished"_s));
}

TEST_F(SyncRunTest, ComparesWhatAnInterruptedRunPlacedLast)
{
    QVariantList unfinished;
    for (int i = 0; i < 20; ++i) {
        const QString name = u"file %1"_s.arg(i, 2, 10, QChar(u'0'));
        harness.want(name, "right");
        if (i != 19)
            harness.put(name, i == 18 ? "right" : "wrong");
        unfinished.append(u"/PSP/MUSIC/"_s + name);
    }
    const QString mark = harness.stick(u".caravel/Unfinished"_s);
    writeFile(mark, PropertyList::toXml(unfinished));
    when("syncDidStart", [&] {
        const QStringList left = PropertyList::readStringArray(mark).valueOr({});
        EXPECT_EQ(left.size(), 20 + 2 + 15 + 1);
        EXPECT_EQ(left[20], u"/PSP/MUSIC/big"_s);
    });
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(harness.delegate.report.replaced, 15U);
    EXPECT_EQ(harness.delegate.report.copied, 3U);
    EXPECT_EQ(readFile(harness.place(u"file 02"_s)), "wrong") << "its copy was flushed before";
    EXPECT_EQ(readFile(harness.place(u"file 03"_s)), "right");
    EXPECT_FALSE(QFile::exists(mark));
}
