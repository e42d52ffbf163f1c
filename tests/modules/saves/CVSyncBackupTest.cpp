#include "modules/saves/CVSyncBackup.h"

#include "support/FailingFileManager.h"
#include "support/SyncHarness.h"
#include "util/Settings.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

class CVSyncBackupTest : public testing::Test
{
protected:
    SyncHarness harness{{CVSyncBackup::kind(harness.clock)}};
    const qint64 begin = harness.clock.current.toSecsSinceEpoch();
    const QString save = harness.stick(u"PSP/SAVEDATA/GAME/"_s);
    const QString root = harness.home(u"Documents/Caravel/Backup/Game Saves/"_s);

    void SetUp() override
    {
        harness.mountStick();
        putSave("first");
    }

    void putSave(const QByteArray &contents) const { writeFile(save + u"DATA.BIN"_s, contents); }
    QByteArray onStick() const { return readFile(save + u"DATA.BIN"_s); }
    void pass(int seconds) { harness.clock.current = harness.clock.current.addSecs(seconds); }
    /// The backups of the save as "seconds since the beginning: contents".
    std::string history() const
    {
        QStringList result;
        for (const QString &name : CVSyncBackup::availableSubIdentifiersForIdentifier(u"GAME"_s)) {
            const QByteArray kept = readFile(root + u"GAME/%1/GAME/DATA.BIN"_s.arg(name));
            result.append(u"%1: %2"_s.arg(name.toLongLong() - begin).arg(QString::fromUtf8(kept)));
        }
        return joined(result);
    }
    QString identifier(int seconds) const { return u"GAME/%1"_s.arg(begin + seconds); }
    CVSyncBackup::Restored restore(const QString &backup)
    {
        return CVSyncBackup::restoreBackupWithIdentifier(backup, harness.stick(), harness.clock);
    }
};

} // namespace

TEST_F(CVSyncBackupTest, KeepsWhatChanged)
{
    EXPECT_TRUE(harness.run());
    pass(60);
    const QString strange = root + u"GAME/99999999999999999999"_s;
    QDir().mkpath(strange);
    EXPECT_TRUE(harness.run());
    QDir().rmdir(strange);
    EXPECT_EQ(history(), "0: first") << "nothing has changed";
    for (const char *changed : {"firsT", "third"}) { // within the same second
        putSave(changed);
        EXPECT_TRUE(harness.run());
    }
    pass(-3600);
    putSave("fourth");
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(history(), "0: first\n60: firsT\n61: third\n62: fourth");
    QFile::remove(save + u"DATA.BIN"_s);
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(history(), "0: first\n60: firsT\n61: third\n62: fourth") << "it takes none along";
    EXPECT_EQ(CVSyncBackup::availableIdentifiers(), list("GAME"));
}

TEST_F(CVSyncBackupTest, ShowsNoCopyThatIsNotWhole)
{
    const QString partial = harness.home(u"Documents/Caravel/Backup/.partial"_s);
    ASSERT_EQ(::mkfifo(qPrintable(save + u"pipe"_s), 0600), 0);
    writeFile(partial + u"/GAME/half"_s, "half");
    EXPECT_TRUE(harness.run());
    EXPECT_FALSE(harness.delegate.errors.empty());
    EXPECT_EQ(history(), "");
    QFile::remove(save + u"pipe"_s);
    ASSERT_TRUE(QFile::link(u"nowhere"_s, save + u"dangling"_s));
    for (int i = 0; i < 500; ++i)
        writeFile(save + u"many/%1"_s.arg(i), QByteArray::number(i));
    EXPECT_TRUE(harness.run());
    pass(60);
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(history(), "0: first");
    EXPECT_EQ(treeOf(root + u"GAME/%1/GAME"_s.arg(begin)), treeOf(save.chopped(1)));
    EXPECT_FALSE(QFile::exists(partial));
}

TEST_F(CVSyncBackupTest, KeepsNothingFromBehindALink)
{
    const QString saves = harness.stick(u"PSP/SAVEDATA"_s);
    ASSERT_TRUE(QFile::rename(saves, harness.home(u"elsewhere"_s)));
    ASSERT_TRUE(QFile::link(harness.home(u"elsewhere"_s), saves));
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(history(), "");
}

TEST_F(CVSyncBackupTest, PrunesByThePreference)
{
    for (const auto &[choice, left] :
         {std::pair(0, 60), {-1, 60}, {4, 60}, {3, 49}, {2, 24}, {1, 9}}) {
        for (int i = 1; i <= 60; ++i)
            writeFile(root + u"OLD/%1/OLD/x"_s.arg(1000000000 + i), "x");
        Settings::backupsToKeep.set(choice);
        EXPECT_TRUE(harness.run());
        const QStringList kept = CVSyncBackup::availableSubIdentifiersForIdentifier(u"OLD"_s);
        EXPECT_EQ(kept.size(), left) << choice;
        EXPECT_EQ(kept.last(), u"1000000060"_s);
    }
}

TEST_F(CVSyncBackupTest, LosesNothingWhenItCannotRestore)
{
    using Restored = CVSyncBackup::Restored;
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(restore(identifier(0)), Restored::Done);
    EXPECT_EQ(history(), "0: first") << "the save is what the backup is";
    putSave("other");
    pass(60);
    const SystemLogCapture log;
    for (const char *bad : {"", "GAME", "GAME/", "GAME/..", "../x", "/etc/passwd", "GAME/5"})
        EXPECT_EQ(restore(QLatin1String(bad)), Restored::NoBackup) << bad;
    const auto restoreWithRoomFor = [&](qint64 bytes) {
        FailingFileManager files;
        FileManager::setDefaultManager(&files);
        files.writableBytes = bytes;
        const Restored restored = restore(identifier(0));
        FileManager::setDefaultManager(nullptr);
        return restored;
    };
    EXPECT_EQ(restoreWithRoomFor(4), Restored::NotKept) << "no room on the computer";
    EXPECT_EQ(onStick(), "other");
    EXPECT_EQ(history(), "0: first");
    EXPECT_EQ(restoreWithRoomFor(5), Restored::Failed) << "no room on the stick";
    EXPECT_FALSE(QFile::exists(save));
    EXPECT_EQ(history(), "0: first\n60: other");
    QDir(harness.stick(u".caravel"_s)).removeRecursively();
    EXPECT_EQ(restore(identifier(60)), Restored::Done);
    EXPECT_TRUE(
        QDir(harness.stick()).entryList({u".caravel*"_s}, QDir::Dirs | QDir::Hidden).isEmpty())
        << "the stick counts as synced, or something is left on it";
    EXPECT_EQ(onStick(), "other");
    EXPECT_EQ(restore(identifier(0)), Restored::Done);
    EXPECT_EQ(onStick(), "first");
    EXPECT_EQ(history(), "0: first\n60: other\n61: other");
    QFile::remove(harness.stick(u"MEMSTICK.IND"_s));
    EXPECT_EQ(restore(identifier(60)), Restored::NoStick) << "a mount point that was left";
    EXPECT_EQ(onStick(), "first");
}
