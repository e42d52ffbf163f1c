#include "modules/saves/CVSyncBackup.h"

#include "support/FailingFileManager.h"
#include "support/SyncHarness.h"
#include "util/Settings.h"

#include <QFile>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

QStringList list(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

class CVSyncBackupTest : public testing::Test
{
protected:
    SyncHarness harness{{CVSyncBackup::kind(harness.clock)}};
    const qint64 begin = harness.clock.current.toSecsSinceEpoch();

    void SetUp() override
    {
        harness.mountStick();
        putSave("first");
    }

    QString root(const QString &relative = {}) const
    {
        return harness.home(u"Documents/Caravel/Backup/Game Saves/"_s + relative);
    }
    QString save(const QString &relative = {}) const
    {
        return harness.stick(u"PSP/SAVEDATA/GAME/"_s + relative);
    }
    void putSave(const QByteArray &contents) const { writeFile(save(u"DATA.BIN"_s), contents); }
    void pass(int seconds) { harness.clock.current = harness.clock.current.addSecs(seconds); }
    /// The backups of the save as "seconds since the beginning: contents".
    QStringList history() const
    {
        QStringList result;
        for (const QString &name : CVSyncBackup::availableSubIdentifiersForIdentifier(u"GAME"_s))
            result.append(
                u"%1: %2"_s.arg(name.toLongLong() - begin)
                    .arg(QString::fromUtf8(readFile(root(u"GAME/%1/GAME/DATA.BIN"_s.arg(name))))));
        return result;
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
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(history(), list({"0: first"})) << "nothing has changed";
    putSave("firsT");
    EXPECT_TRUE(harness.run());
    putSave("third");
    EXPECT_TRUE(harness.run()); // within the same second
    pass(-3600);
    putSave("fourth");
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(history(), list({"0: first", "60: firsT", "61: third", "62: fourth"}));
    QFile::remove(save(u"DATA.BIN"_s));
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(history().size(), 4) << "a save that is gone takes no backup along";
    EXPECT_EQ(CVSyncBackup::availableIdentifiers(), list({"GAME"}));
    EXPECT_FALSE(QFile::exists(harness.home(u"Documents/Caravel/Backup/.partial"_s)));
}

TEST_F(CVSyncBackupTest, ShowsNoCopyThatIsNotWhole)
{
    ASSERT_EQ(::mkfifo(save(u"pipe"_s).toUtf8().constData(), 0600), 0);
    writeFile(harness.home(u"Documents/Caravel/Backup/.partial/GAME/half"_s), "half");
    EXPECT_TRUE(harness.run());
    EXPECT_FALSE(harness.delegate.errors.empty());
    EXPECT_TRUE(history().isEmpty());
    QFile::remove(save(u"pipe"_s));
    ASSERT_TRUE(QFile::link(u"nowhere"_s, save(u"dangling"_s)));
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(QFile::symLinkTarget(root(u"GAME/%1/GAME/dangling"_s.arg(begin))).section(u'/', -1),
              u"nowhere"_s);
    harness.delegate.errors.clear();
    pass(60);
    EXPECT_TRUE(harness.run());
    EXPECT_EQ(treeOf(root()).filter(u"half"_s), QStringList());
    EXPECT_EQ(history(), list({"0: first"}));
}

TEST_F(CVSyncBackupTest, KeepsASaveOfTenThousandFiles)
{
    for (int i = 0; i < 10000; ++i)
        writeFile(save(u"many/%1"_s.arg(i)), QByteArray::number(i));
    EXPECT_TRUE(harness.run());
    pass(60);
    EXPECT_TRUE(harness.run());
    ASSERT_EQ(history().size(), 1);
    EXPECT_EQ(treeOf(root(u"GAME/%1/GAME"_s.arg(begin))).size(), 10002);
}

TEST_F(CVSyncBackupTest, PrunesByThePreference)
{
    for (const auto &[choice, left] : {std::pair(0, 60), {5, 60}, {3, 49}, {2, 24}, {1, 9}}) {
        for (int i = 1; i <= 60; ++i)
            writeFile(root(u"OLD/%1/OLD/x"_s.arg(1000000000 + i)), "x");
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
    putSave("other");
    pass(60);
    const SystemLogCapture log;
    for (const char *bad : {"", "GAME", "GAME/", "GAME/..", "../x", "/etc/passwd", "GAME/5"})
        EXPECT_EQ(restore(QString::fromUtf8(bad)), Restored::NoBackup) << bad;
    const auto restoreWithRoomFor = [&](qint64 bytes) {
        FailingFileManager files;
        FileManager::setDefaultManager(&files);
        files.writableBytes = bytes;
        const Restored restored = restore(identifier(0));
        FileManager::setDefaultManager(nullptr);
        return restored;
    };
    EXPECT_EQ(restoreWithRoomFor(4), Restored::NotKept) << "no room on the computer";
    EXPECT_EQ(readFile(save(u"DATA.BIN"_s)), "other");
    EXPECT_EQ(history(), list({"0: first"}));

    EXPECT_EQ(restoreWithRoomFor(5), Restored::Failed) << "no room on the stick";
    EXPECT_FALSE(QFile::exists(save()));
    EXPECT_EQ(history(), list({"0: first", "60: other"}));
    EXPECT_EQ(restore(identifier(60)), Restored::Done);
    EXPECT_EQ(readFile(save(u"DATA.BIN"_s)), "other");

    QFile::remove(harness.stick(u"MEMSTICK.IND"_s));
    EXPECT_EQ(restore(identifier(0)), Restored::NoStick) << "a mount point that was left";
    EXPECT_EQ(readFile(save(u"DATA.BIN"_s)), "other");
    EXPECT_EQ(history().size(), 2);
}

TEST_F(CVSyncBackupTest, MovesBackupsToTheTrash)
{
    EXPECT_TRUE(harness.run());
    putSave("second");
    pass(60);
    EXPECT_TRUE(harness.run());
    const SystemLogCapture log;
    for (const char *bad : {"", ".", "..", "GAME/..", "/", "GAME/", "NONE"})
        EXPECT_FALSE(CVSyncBackup::deleteBackupWithIdentifier(QString::fromUtf8(bad))) << bad;
    EXPECT_EQ(history().size(), 2);
    EXPECT_TRUE(CVSyncBackup::deleteBackupWithIdentifier(identifier(0)));
    EXPECT_EQ(history(), list({"60: second"}));
    EXPECT_TRUE(CVSyncBackup::deleteBackupWithIdentifier(u"GAME"_s));
    EXPECT_TRUE(CVSyncBackup::availableIdentifiers().isEmpty());
    EXPECT_FALSE(treeOf(harness.home(u".local/share/Trash/files"_s)).isEmpty());
}
