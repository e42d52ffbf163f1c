// The order of a run's callbacks, its cancel points, and sticks that fail in the middle.

#include "support/FailingFileManager.h"
#include "support/ListModule.h"
#include "support/SyncHarness.h"
#include "util/Settings.h"

#include <QDir>

#include <gmock/gmock.h>

namespace {

constexpr qint64 chunk = 1 << 20;

QStringList lines(const char *text)
{
    return QString::fromLatin1(text).split(u'\n');
}

/// A run of one module with two items: one of three chunks, one of a few bytes.
class SyncRunTest : public testing::Test
{
protected:
    TemporaryFolder sources;
    ListModule::Wishes wishes{[this] { return items(); }, QStringLiteral("/PSP/MUSIC"), true,
                              QStringLiteral("Music")};
    FailingFileManager files;
    SyncHarness harness{{ListModule::kind(QStringLiteral("Music"), wishes)}};

    void SetUp() override
    {
        FileManager::setDefaultManager(&files);
        writeFile(sources / QStringLiteral("big"), QByteArray(2 * chunk + 100, 'b'));
        writeFile(sources / QStringLiteral("small"), "small");
        writeFile(harness.stick(QStringLiteral("PSP/MUSIC/stale")), "stale");
        harness.mountStick();
    }
    void TearDown() override
    {
        harness.delegate.onEvent = nullptr;
        harness.settle();
        FileManager::setDefaultManager(nullptr);
    }

    std::vector<CVSyncItem> items() const
    {
        std::vector<CVSyncItem> wanted;
        for (const QString &name : {QStringLiteral("big"), QStringLiteral("small")})
            wanted.emplace_back(sources / name, harness.stick(QStringLiteral("PSP/MUSIC/") + name),
                                name);
        return wanted;
    }

    QStringList onStick() const { return treeOf(harness.stick(QStringLiteral("PSP/MUSIC"))); }

    /// Does something at the first event of that name.
    void when(const QString &event, std::function<void()> act)
    {
        harness.delegate.onEvent = [event, act = std::move(act),
                                    done = false](const QString &now) mutable {
            if (now.startsWith(event) && !std::exchange(done, true))
                act();
        };
    }
};

} // namespace

TEST_F(SyncRunTest, TellsEveryStepInOrder)
{
    EXPECT_TRUE(harness.run());
    harness.settle();
    EXPECT_EQ(harness.delegate.events, lines("syncWillStart\n"
                                             "syncWillCleanUp\n"
                                             "syncDidStart\n"
                                             "syncWillProcessModule Music\n"
                                             "syncWillProcessItem big\n"
                                             "syncDidCopyBytes 1048576\n"
                                             "syncDidCopyBytes 1048576\n"
                                             "syncDidCopyBytes 100\n"
                                             "syncDidProcessItem big\n"
                                             "syncWillProcessItem small\n"
                                             "syncDidCopyBytes 5\n"
                                             "syncDidCopyLastBytes\n"
                                             "syncDidProcessItem small\n"
                                             "finalizeDidStart\n"
                                             "syncDidFinish true"));
    EXPECT_EQ(harness.clock.pauses, 5);
    EXPECT_EQ(onStick(), lines("big\nsmall"));
    EXPECT_EQ(harness.index(QStringLiteral("Music")), lines("/PSP/MUSIC/big\n/PSP/MUSIC/small"));
    EXPECT_EQ(harness.lastSyncSizeOnStick(), quint64(2 * chunk + 105));
    EXPECT_EQ(Settings::lastSyncSize(), quint64(2 * chunk + 105));
    EXPECT_EQ(Settings::lastSync(), harness.clock.current);
    EXPECT_EQ(harness.manager.syncBytesTotal(), 1U);
    EXPECT_EQ(harness.manager.syncBytes(), 0U);
    EXPECT_FALSE(harness.manager.isIndeterminate());

    // Again, with everything in place.
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(harness.delegate.events, lines("syncWillStart\nsyncWillCleanUp\nsyncDidStart\n"
                                             "syncWillProcessModule Music\nfinalizeDidStart\n"
                                             "syncDidFinish true"));
    EXPECT_EQ(harness.index(QStringLiteral("Music")), lines("/PSP/MUSIC/big\n/PSP/MUSIC/small"));
    EXPECT_EQ(harness.lastSyncSizeOnStick(), quint64(2 * chunk + 105));
}

TEST_F(SyncRunTest, StopsWhereTheStickHasNoRoom)
{
    // As many bytes free as are needed count as too few.
    files.freeBytes = 2 * chunk + 105;
    EXPECT_FALSE(harness.run());
    EXPECT_EQ(harness.delegate.events,
              lines("syncWillStart\nsyncWillCleanUp\n"
                    "syncNotEnoughFreeSpace 2097257\nsyncWillCancel\n"
                    "syncDidStart\nfinalizeDidStart\nsyncDidFinish false"));
    EXPECT_TRUE(onStick().isEmpty()) << "the clean-up has happened, nothing was copied";
    EXPECT_EQ(harness.lastSyncSizeOnStick(), 0U);
    EXPECT_FALSE(Settings::lastSync());
    files.freeBytes = 2 * chunk + 106;
    EXPECT_TRUE(harness.run());
}

TEST_F(SyncRunTest, EndsOnceAfterACancelAnywhere)
{
    struct Case
    {
        const char *at;
        const char *steps; // from the cancel to the end
        QStringList onStick;
    };
    const QStringList stale{QStringLiteral("stale")};
    const QStringList big{QStringLiteral("big")};
    const QStringList both{QStringLiteral("big"), QStringLiteral("small")};
    const Case cases[] = {
        {"syncWillStart", "syncWillCleanUp\nsyncDidStart\nfinalizeDidStart", stale},
        {"syncWillCleanUp", "syncDidStart\nfinalizeDidStart", stale},
        {"syncDidStart", "finalizeDidStart", {}},
        {"syncWillProcessModule", "finalizeDidStart", {}},
        {"syncDidCopyBytes", "syncDidProcessItem big\nfinalizeDidStart", big},
        {"syncDidProcessItem", "finalizeDidStart", big},
        {"syncDidCopyLastBytes", "syncDidProcessItem small\nfinalizeDidStart", both},
        {"finalizeDidStart", "", both},
    };
    for (const Case &c : cases) {
        QDir(harness.stick(QStringLiteral("PSP"))).removeRecursively();
        writeFile(harness.stick(QStringLiteral("PSP/MUSIC/stale")), "stale");
        when(QLatin1String(c.at), [this] {
            EXPECT_TRUE(harness.manager.canCancelSync());
            harness.manager.cancelSync();
            harness.manager.cancelSync(); // ignored
            EXPECT_FALSE(harness.manager.canCancelSync());
            harness.manager.sync(); // so is a second run
        });
        EXPECT_FALSE(harness.run()) << c.at;
        const QStringList steps = harness.delegate.steps();
        QStringList expected = *c.steps ? lines(c.steps) : QStringList();
        expected.append(QStringLiteral("syncDidFinish false"));
        EXPECT_EQ(steps.mid(steps.indexOf(QStringLiteral("syncWillCancel")) + 1), expected) << c.at;
        EXPECT_EQ(harness.delegate.count(QStringLiteral("syncWillCancel")), 1) << c.at;
        EXPECT_EQ(onStick(), c.onStick) << c.at;
        EXPECT_FALSE(Settings::lastSync()) << c.at;
        EXPECT_FALSE(harness.manager.shouldCancelSync()) << c.at;
        EXPECT_EQ(harness.manager.syncBytesTotal(), 1U) << c.at;
        if (QLatin1String(c.at) == QLatin1String("syncDidCopyBytes")) {
            EXPECT_EQ(harness.lastSyncSizeOnStick(), quint64(chunk))
                << "what was not copied is left out";
        }
        harness.delegate.onEvent = nullptr;
        EXPECT_TRUE(harness.run()) << "the run after a cancel at " << c.at;
        EXPECT_EQ(onStick(), both) << c.at;
        Settings::lastSync.set({});
    }
}

TEST_F(SyncRunTest, CutsItsPausesShortWhenCancelled)
{
    harness.clock.onSleep = [this](int pause) {
        if (pause == 2)
            harness.manager.cancelSync();
    };
    EXPECT_FALSE(harness.run());
    EXPECT_EQ(harness.clock.pauses, 2);
    EXPECT_EQ(onStick(), lines("stale"));
}

TEST_F(SyncRunTest, IsCancelledByNotificationAndByAnnouncedUnmount)
{
    when(QStringLiteral("syncDidCopyBytes"),
         [this] { harness.notifications.post(QStringLiteral("CVCancelSyncNotification")); });
    EXPECT_FALSE(harness.run());
    when(QStringLiteral("syncDidStart"),
         [this] { Q_EMIT harness.volumes.willUnmount(harness.folder / QStringLiteral("other")); });
    EXPECT_TRUE(harness.run());
    writeFile(sources / QStringLiteral("small"), "changed");
    when(QStringLiteral("syncDidStart"),
         [this] { Q_EMIT harness.volumes.willUnmount(harness.stick()); });
    EXPECT_FALSE(harness.run());
}

TEST_F(SyncRunTest, EjectsAfterwardsWhereItMay)
{
    Settings::unmountAfterSync.set(true);
    harness.delegate.answerUnmount = false;
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(harness.delegate.steps().mid(9),
              lines("finalizeDidStart\nshouldUnmountPSP\nsyncDidFinish true"));
    harness.delegate.answerUnmount = true;
    harness.volumes.canEject = false;
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(harness.delegate.steps().mid(4),
              lines("finalizeDidStart\nshouldUnmountPSP\npspWillUnmount\n"
                    "pspUnmountFailed\nsyncDidFinish true"));
    harness.volumes.canEject = true;
    EXPECT_TRUE(harness.run()) << "the announcement of its own eject cancels nothing";
    EXPECT_EQ(harness.delegate.steps().mid(4),
              lines("finalizeDidStart\nshouldUnmountPSP\npspWillUnmount\n"
                    "pspDidUnmount\nsyncDidFinish true"));
    EXPECT_FALSE(harness.manager.canSync());
}

TEST_F(SyncRunTest, WritesNothingWhereTheStickWas)
{
    const SystemLogCapture log;
    struct Case
    {
        const char *at;
        bool mountPointStays;
        bool announced;
    };
    const Case cases[] = {
        {"syncWillStart", true, false},      {"syncWillCleanUp", true, false},
        {"syncDidStart", false, false},      {"syncDidCopyBytes", false, false},
        {"syncDidCopyBytes", true, false},   {"syncDidCopyBytes", true, true},
        {"syncDidProcessItem", true, false}, {"finalizeDidStart", true, false},
    };
    for (const Case &c : cases) {
        const QString pulled = harness.folder / QStringLiteral("pulled");
        when(QLatin1String(c.at), [&] {
            ASSERT_TRUE(QDir().rename(harness.stick(), pulled));
            if (c.mountPointStays)
                QDir().mkpath(harness.stick());
            if (c.announced)
                harness.volumes.unmount(harness.stick());
        });
        EXPECT_FALSE(harness.run()) << c.at;
        EXPECT_EQ(harness.delegate.events.filter(QStringLiteral("syncDidFinish")).size(), 1)
            << c.at;
        EXPECT_TRUE(treeOf(harness.stick()).isEmpty())
            << c.at << qPrintable(treeOf(harness.stick()).join(u' '));
        EXPECT_TRUE(log.contains(QStringLiteral("is gone"))) << c.at;
        harness.delegate.onEvent = nullptr;
        QDir(harness.stick()).removeRecursively();
        ASSERT_TRUE(QDir().rename(pulled, harness.stick()));
        harness.volumes.vanish(harness.stick());
        harness.manager.detectPSP();
        harness.volumes.mount(harness.stick());
        EXPECT_TRUE(harness.run()) << "the next run after " << c.at;
        EXPECT_EQ(onStick(), lines("big\nsmall")) << c.at;
        QDir(harness.stick(QStringLiteral("PSP/MUSIC"))).removeRecursively();
        writeFile(harness.stick(QStringLiteral("PSP/MUSIC/stale")), "stale");
    }
}

TEST_F(SyncRunTest, LeavesAStickAloneThatTookThePlaceOfItsOwn)
{
    const QString own = harness.folder / QStringLiteral("own");
    when(QStringLiteral("syncWillCleanUp"), [&] {
        ASSERT_TRUE(QDir().rename(harness.stick(), own));
        writeFile(harness.stick(QStringLiteral("MEMSTICK.IND")), {});
        writeFile(harness.stick(QStringLiteral("PSP/MUSIC/somebody else's")), "music");
        Q_EMIT harness.volumes.didUnmount(harness.stick());
    });
    EXPECT_FALSE(harness.run());
    EXPECT_EQ(treeOf(harness.stick()),
              lines("MEMSTICK.IND\nPSP/\nPSP/MUSIC/\nPSP/MUSIC/somebody else's"));
    EXPECT_TRUE(harness.manager.pspIsMounted()) << "the new stick is there to be synced";
}

TEST_F(SyncRunTest, ReportsAReadOnlyStickAndGoesOn)
{
    files.readOnlyBelow = harness.stick();
    EXPECT_TRUE(harness.run()) << "a run ends by itself whatever fails";
    EXPECT_EQ(harness.delegate.errors.size(), 3U) << "one removal, two files that can't be made";
    for (const ErrorInfo &error : harness.delegate.errors) {
        EXPECT_TRUE(error.value(QStringLiteral("Path")).toString().startsWith(harness.stick()));
        EXPECT_FALSE(error.value(QStringLiteral("Reason")).toString().isEmpty());
    }
    EXPECT_EQ(harness.delegate.errors.back().value(QStringLiteral("Error")),
              QStringLiteral("Couldn't create"));
    EXPECT_EQ(onStick(), lines("stale"));
}

TEST_F(SyncRunTest, ReportsAStickThatFillsAndPutsTheFileRightNextTime)
{
    files.writableBytes = chunk + 10;
    when(QStringLiteral("syncError"), [this] { harness.manager.cancelSync(); });
    EXPECT_FALSE(harness.run());
    ASSERT_EQ(harness.delegate.errors.size(), 1U);
    EXPECT_EQ(harness.delegate.errors[0].value(QStringLiteral("Error")),
              QStringLiteral("Couldn't write"));
    harness.delegate.onEvent = nullptr;
    files.writableBytes.reset();
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(readFile(harness.stick(QStringLiteral("PSP/MUSIC/big"))).size(), 2 * chunk + 100);
}
