#include "platform/core/MainThread.h"
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
}

TEST_F(FolderVolumesTest, EjectsFromAnyThreadAnnouncedFirstAndOnce)
{
    writeFile(path("stick/MEMSTICK.IND"), "x");
    events(1);
    bool ejected = false;
    ASSERT_TRUE(Workers::start([&] { ejected = m_volumes.unmountAndEject(path("stick")); }));
    EXPECT_TRUE(Workers::serveUntilFinished(std::chrono::seconds(60)));
    EXPECT_TRUE(ejected);
    EXPECT_THAT(events(2), ElementsAre("?stick", "-stick"));
    EXPECT_THAT(m_volumes.mountedRemovableMedia(), IsEmpty());
    EXPECT_EQ(readFile(path(".ejected/stick/MEMSTICK.IND")), "x");
}

TEST_F(FolderVolumesTest, RefusesWhatIsNoVolumeOrWouldReplaceAnEjectedOne)
{
    insert("stick/sub");
    insert(".ejected/stick");
    events(1);
    const SystemLogCapture log;
    for (const char *name : {"stick", "stick/sub", "none", ".ejected", "stick/..", ""}) {
        const auto before = log.lines().size();
        EXPECT_FALSE(m_volumes.unmountAndEject(path(name))) << name;
        EXPECT_EQ(log.lines().size(), before + 1) << name;
    }
    EXPECT_FALSE(m_volumes.unmountAndEject(m_folder));
    EXPECT_THAT(events(0), IsEmpty());
    EXPECT_TRUE(QFile::exists(path("stick/sub")));
}

} // namespace
