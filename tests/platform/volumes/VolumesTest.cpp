#include "platform/core/MainThread.h"
#include "platform/volumes/VolumeHolders.h"
#include "platform/volumes/own/FolderVolumes.h"

#include "support/TestSupport.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A folder of volumes under watch, with every event noted as "+name", "?name" (about to go) or
/// "-name".
class FolderVolumesTest : public testing::Test
{
protected:
    FolderVolumesTest()
    {
        note(&Volumes::didMount, '+');
        note(&Volumes::willUnmount, '?');
        note(&Volumes::didUnmount, '-');
    }

    void note(void (Volumes::*signal)(const QString &), char mark)
    {
        QObject::connect(&m_volumes, signal, &m_volumes, [this, mark](const QString &path) {
            EXPECT_TRUE(isMainThread());
            EXPECT_TRUE(path.startsWith(m_folder + u'/')) << path.toStdString();
            m_events.push_back(mark + path.mid(m_folder.size() + 1).toStdString());
        });
    }

    /// The events up to so many, and any that come right behind them.
    std::vector<std::string> events(size_t count)
    {
        EXPECT_TRUE(waitFor([&] { return m_events.size() >= count; }));
        QCoreApplication::processEvents();
        return std::exchange(m_events, {});
    }

    QString path(const char *name) const { return m_folder + u'/' + QString::fromUtf8(name); }
    void insert(const char *name) const { QDir().mkpath(path(name)); }

    TemporaryFolder m_temporary;
    const QString m_folder = m_temporary / "not/yet";
    FolderVolumes m_volumes{m_folder};
    std::vector<std::string> m_events;
};

TEST_F(FolderVolumesTest, FolderMadeLaterItsVolumesAndTheirEvents)
{
    EXPECT_THAT(m_volumes.mountedRemovableMedia(), IsEmpty());
    insert("stick");
    EXPECT_THAT(events(1), ElementsAre("+stick"));
    insert(".hidden");
    writeFile(path("file"), {});
    QFile::link(QStringLiteral("/"), path("z link"));
    EXPECT_THAT(events(1), ElementsAre("+z link"));
    EXPECT_THAT(m_volumes.mountedRemovableMedia(), ElementsAre(path("stick"), path("z link")));
    // Gone and made again between two looks is another stick.
    QDir().rmdir(path("stick"));
    insert("stick");
    EXPECT_THAT(events(2), ElementsAre("-stick", "+stick"));
    QDir(m_folder).removeRecursively();
    EXPECT_THAT(events(2), ElementsAre("-stick", "-z link"));
    insert("back");
    EXPECT_THAT(events(1), ElementsAre("+back"));
    // The stick is copied in.
    writeFile(path("back/MEMSTICK.IND"), {});
    EXPECT_THAT(events(1), ElementsAre("+back"));
}

} // namespace

TEST(VolumeHolders, ThoseThatHoldSomethingOnTheVolume)
{
    const TemporaryFolder folder;
    const QString volume = folder / "stick";
    QFile onIt(volume + u"/a folder/held"_s);
    QFile beside(volume + u"2/held"_s);
    writeFile(onIt.fileName(), "contents");
    writeFile(beside.fileName(), "contents");
    ASSERT_TRUE(beside.open(QIODevice::ReadOnly));
    EXPECT_TRUE(volumeHolders(volume).empty());
    ASSERT_TRUE(onIt.open(QIODevice::ReadOnly));
    const auto holders = volumeHolders(volume);
    ASSERT_EQ(holders.size(), 1U);
    EXPECT_EQ(holders[0].process, QCoreApplication::applicationPid());
    EXPECT_EQ(holders[0].program, u"platform_tests");
    EXPECT_EQ(holders[0].path, onIt.fileName());
}
