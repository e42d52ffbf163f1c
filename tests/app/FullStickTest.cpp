// A small stick, a real one on a loop device, that gets more than it holds, over and over.

#include "support/FatImage.h"
#include "support/HelperHarness.h"
#include "util/Settings.h"

#include <gmock/gmock.h>

#include <map>

namespace {

using testing::ElementsAre;

/// Fits by the sum of its files' sizes, but a file takes a cluster of 64 KiB.
constexpr int many = 600;
constexpr int few = 40;
constexpr qsizetype bytesOfEach = 33 << 10;

class FullStick : public testing::Test
{
protected:
    TemporaryFolder place;
    FatImage image{place / QStringLiteral("stick.img"),
                   32 << 20,
                   {QStringLiteral("-c"), QStringLiteral("64K")}};
    HelperHarness helper{place.path()};
    std::map<QString, QByteArray> kept; // that fit, by path below the stick's music

    void SetUp() override
    {
        if (!image.mount(helper.stick()))
            GTEST_SKIP() << "skipped: exFAT can't be mounted here";
        writeFile(helper.stick() + QStringLiteral("/MEMSTICK.IND"), {});
        writeFile(onStick(QStringLiteral("Old/gone.mp3")), "old");
        Settings::syncOnMount.set(false);
        Settings::firmwareVersion.set(0); // music alone matters
        for (int i = 0; i < few; ++i)
            kept[QStringLiteral("Few/%1.mp3").arg(i)] = contents(i);
        for (const auto &[path, bytes] : kept)
            writeFile(dropbox(path), bytes);
        helper.volumes.mount(helper.stick());
    }

    static QByteArray contents(int seed) { return {bytesOfEach, static_cast<char>(seed)}; }
    QString dropbox(const QString &path) const
    {
        return place / (QStringLiteral("home/Documents/Caravel/Dropboxes/Music/") + path);
    }
    QString onStick(const QString &path) const
    {
        return helper.stick() + QStringLiteral("/PSP/MUSIC/") + path;
    }
    /// What of the selection that fits is not on the stick as it should be.
    QStringList missing() const
    {
        QStringList paths;
        for (const auto &[path, bytes] : kept) {
            if (!QFile::exists(onStick(path)) || readFile(onStick(path)) != bytes)
                paths.append(path);
        }
        return paths;
    }
    /// A run that can't complete, and what the user hears of it.
    QStringList alertsOfFailedSync()
    {
        helper.alerts.titles.clear();
        EXPECT_FALSE(helper.sync());
        HelperHarness::settle();
        return helper.alerts.titles;
    }
};

} // namespace

TEST_F(FullStick, HoldsWhatFitsAfterTenOverflows)
{
    ASSERT_TRUE(helper.sync());
    quint64 leftAtFirst = 0;
    for (int round = 0; round < 10; ++round) {
        const QString folder = QStringLiteral("Many %1/").arg(round);
        for (int i = 0; i < many; ++i)
            writeFile(dropbox(folder + QStringLiteral("%1.mp3").arg(i)), contents(round));
        EXPECT_THAT(alertsOfFailedSync(), ElementsAre(QStringLiteral("Sync too large!")));
        EXPECT_EQ(missing(), QStringList()) << round;

        writeFile(dropbox(folder + QStringLiteral("large.mp3")), {});
        QFile::resize(dropbox(folder + QStringLiteral("large.mp3")), 40 << 20);
        EXPECT_THAT(alertsOfFailedSync(), ElementsAre(QStringLiteral("Sync too large!")));
        EXPECT_EQ(missing(), QStringList()) << round;

        QDir(dropbox(folder)).removeRecursively();
        EXPECT_TRUE(helper.sync()) << round;
        EXPECT_EQ(missing(), QStringList()) << round;
        EXPECT_EQ(treeOf(onStick({})).size(), few + 1) << round;
        const auto left = FileManager::defaultManager().volumeSpace(helper.stick())->free;
        EXPECT_EQ(left, round == 0 ? left : leftAtFirst) << round;
        leftAtFirst = left;
    }
}
