// The real helper on real mounts: images on loop devices under /media, where mounting is allowed.

#include "ProgramHarness.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

#include <unistd.h>

namespace {

bool succeeds(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

/// A file system in an image, mounted under /media while the object lives.
class MountedImage
{
public:
    /// `options` are mkfs.ext4's.
    MountedImage(const QString &image, int kilobytes, const QStringList &options)
        : m_image(image)
        , m_mountPoint(QStringLiteral("/media/caravel-test-%1").arg(::getpid()))
    {
        writeFile(m_image, {});
        QFile::resize(m_image, qint64(kilobytes) * 1024);
        m_formatted =
            succeeds(QStringLiteral("mkfs.ext4"),
                     QStringList{QStringLiteral("-q"), QStringLiteral("-m"), QStringLiteral("0")} +
                         options + QStringList{m_image});
    }
    ~MountedImage()
    {
        if (QFile::exists(m_mountPoint)) {
            succeeds(QStringLiteral("umount"), {QStringLiteral("-l"), m_mountPoint});
            QDir().rmdir(m_mountPoint);
        }
    }
    MountedImage(const MountedImage &) = delete;
    MountedImage &operator=(const MountedImage &) = delete;

    bool mount() const
    {
        return m_formatted && QDir().mkpath(m_mountPoint) &&
               succeeds(QStringLiteral("mount"),
                        {QStringLiteral("-o"), QStringLiteral("loop"), m_image, m_mountPoint});
    }
    bool unmount() const { return succeeds(QStringLiteral("umount"), {m_mountPoint}); }
    QString path(const QString &relative) const { return m_mountPoint + u'/' + relative; }

private:
    const QString m_image;
    const QString m_mountPoint;
    bool m_formatted = false;
};

class MountedStickTest : public testing::Test
{
protected:
    ProgramHarness programs;
    TemporaryFolder images;

    /// Mounts the image once to put a PSP's folders on it.
    static bool format(const MountedImage &stick)
    {
        if (!stick.mount())
            return false;
        writeFile(stick.path(QStringLiteral("MEMSTICK.IND")), {});
        QDir().mkpath(stick.path(QStringLiteral("PSP/MUSIC")));
        return stick.unmount();
    }
    bool statusHas(const char *text)
    {
        return programs.caravel({QStringLiteral("status")})
            .output.contains(QString::fromLatin1(text));
    }
    void selectRoadTrip()
    {
        EXPECT_EQ(programs
                      .caravel({QStringLiteral("select"), QStringLiteral("music"),
                                QStringLiteral("Road Trip")})
                      .status,
                  0);
    }
};

} // namespace

TEST_F(MountedStickTest, IsNoticedSyncedAndEjected)
{
    const MountedImage stick(images / QStringLiteral("stick.img"), 16 * 1024, {});
    if (!format(stick))
        GTEST_SKIP() << "skipped: this machine lets us mount no image";
    programs.addTrack(QStringLiteral("One"), QByteArray(2 << 20, '1'));
    programs.writeLibrary();
    programs.startHelper(true);
    EXPECT_TRUE(statusHas("No PSP Connected"));
    ASSERT_TRUE(stick.mount());
    ASSERT_TRUE(waitFor([&] { return statusHas("Available"); }))
        << qPrintable(programs.helperOutput());
    selectRoadTrip();
    EXPECT_EQ(programs.caravel({QStringLiteral("sync")}).status, 0)
        << qPrintable(programs.helperOutput());
    EXPECT_EQ(readFile(stick.path(QStringLiteral("PSP/MUSIC/Record/000. One.mp3"))).size(),
              2 << 20);

    ASSERT_TRUE(stick.unmount());
    ASSERT_TRUE(waitFor([&] { return statusHas("No PSP Connected"); }));
    // What has been synced before is synced again by itself.
    programs.addTrack(QStringLiteral("Two"), "two");
    ASSERT_TRUE(stick.mount());
    ASSERT_TRUE(waitFor([&] { return statusHas("Sync Successful"); }));
    const auto eject = programs.caravel({QStringLiteral("eject")});
    EXPECT_EQ(eject.status, 0) << qPrintable(eject.output);
    EXPECT_FALSE(QFile::exists(stick.path(QStringLiteral("MEMSTICK.IND"))));
    EXPECT_EQ(programs.stopHelper(), 0);
}

TEST_F(MountedStickTest, SaysSoWhenItIsTooSmall)
{
    // Files smaller than a block take a whole one: the sum of their sizes fits, they don't.
    const MountedImage stick(images / QStringLiteral("small.img"), 1024,
                             {QStringLiteral("-b"), QStringLiteral("1024"), QStringLiteral("-N"),
                              QStringLiteral("1600"), QStringLiteral("-O"),
                              QStringLiteral("^has_journal")});
    if (!format(stick))
        GTEST_SKIP() << "skipped: this machine lets us mount no image";
    for (int i = 0; i < 800; ++i)
        programs.addTrack(QStringLiteral("Small %1").arg(i), "few bytes");
    programs.writeLibrary();
    programs.startHelper(true);
    ASSERT_TRUE(stick.mount());
    ASSERT_TRUE(waitFor([&] { return statusHas("Available"); }));
    selectRoadTrip();
    EXPECT_EQ(programs.caravel({QStringLiteral("sync")}).status, 1);
    const QString log = programs.log();
    EXPECT_TRUE(
        log.contains(QStringLiteral("Not enough free space to complete sync of size: 802.0 KB")))
        << qPrintable(log);
    EXPECT_TRUE(log.contains(QStringLiteral("Sync was cancelled.")));

    programs.addTrack(QStringLiteral("Large"), QByteArray(2 << 20, 'l'));
    programs.writeLibrary();
    EXPECT_EQ(programs.caravel({QStringLiteral("sync")}).status, 1);
    EXPECT_TRUE(programs.log().contains(
        QStringLiteral("Not enough free space to complete sync of size: 2.0 MB")));
    EXPECT_TRUE(programs.helperLives());
    EXPECT_EQ(programs.stopHelper(), 0);
}
