#include "platform/core/MainThread.h"
#include "platform/volumes/own/FolderVolumes.h"

#include "support/TestSupport.h"

#include <gmock/gmock.h>

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
        bool settled = false;
        performOnMainThread(
            nullptr, [&] { settled = true; }, CallMode::DontWait);
        waitFor([&] { return settled; });
        return std::exchange(m_events, {});
    }

    QString path(const QString &name) const { return m_folder + u'/' + name; }
    void insert(const QString &name) { QDir().mkpath(path(name)); }

    TemporaryFolder m_temporary;
    const QString m_folder = m_temporary / QStringLiteral("not/yet");
    FolderVolumes m_volumes{m_folder};
    std::vector<std::string> m_events;
};

} // namespace

TEST_F(FolderVolumesTest, FolderMadeLaterItsVolumesAndTheirEvents)
{
    EXPECT_THAT(m_volumes.mountedRemovableMedia(), IsEmpty());
    insert(QStringLiteral("stick"));
    EXPECT_THAT(events(1), ElementsAre("+stick"));
    insert(QStringLiteral("a"));
    EXPECT_THAT(events(1), ElementsAre("+a"));
    insert(QStringLiteral(".hidden"));
    writeFile(path(QStringLiteral("file")), {});
    QFile::link(QStringLiteral("/"), path(QStringLiteral("z link")));
    EXPECT_THAT(events(1), ElementsAre("+z link"));
    EXPECT_THAT(m_volumes.mountedRemovableMedia(),
                ElementsAre(path(QStringLiteral("a")), path(QStringLiteral("stick")),
                            path(QStringLiteral("z link"))));
    QDir().rmdir(path(QStringLiteral("a")));
    EXPECT_THAT(events(1), ElementsAre("-a"));
    // Gone and made again between two looks is another stick.
    QDir().rmdir(path(QStringLiteral("stick")));
    insert(QStringLiteral("stick"));
    EXPECT_THAT(events(2), ElementsAre("-stick", "+stick"));
    QDir(m_folder).removeRecursively();
    EXPECT_THAT(events(2), ElementsAre("-stick", "-z link"));
    insert(QStringLiteral("back"));
    EXPECT_THAT(events(1), ElementsAre("+back"));
}

TEST_F(FolderVolumesTest, EjectsFromAnyThreadAnnouncedFirstAndOnce)
{
    writeFile(path(QStringLiteral("stick/MEMSTICK.IND")), "x");
    insert(QStringLiteral("other"));
    events(2);
    EXPECT_TRUE(m_volumes.unmountAndEject(path(QStringLiteral("other"))));
    EXPECT_EQ(m_volumes.mountedRemovableMedia().size(), 1);
    EXPECT_THAT(events(2), ElementsAre("?other", "-other"));

    bool ejected = false;
    EXPECT_TRUE(Workers::start(
        [&] { ejected = m_volumes.unmountAndEject(path(QStringLiteral("stick"))); }));
    EXPECT_TRUE(Workers::serveUntilFinished(std::chrono::seconds(60)));
    EXPECT_TRUE(ejected);
    EXPECT_THAT(events(2), ElementsAre("?stick", "-stick"));
    EXPECT_EQ(readFile(path(QStringLiteral(".ejected/stick/MEMSTICK.IND"))), "x");
}

TEST_F(FolderVolumesTest, RefusesWhatIsNoVolumeOrWouldReplaceAnEjectedOne)
{
    insert(QStringLiteral("stick"));
    insert(QStringLiteral("stick/sub"));
    insert(QStringLiteral(".ejected/stick"));
    events(1);
    const SystemLogCapture log;
    for (const QString &name :
         {QStringLiteral("stick"), QStringLiteral("stick/sub"), QStringLiteral("none"),
          QStringLiteral(".ejected"), QStringLiteral("stick/.."), QString()}) {
        const auto before = log.lines().size();
        EXPECT_FALSE(m_volumes.unmountAndEject(path(name))) << name.toStdString();
        EXPECT_EQ(log.lines().size(), before + 1) << name.toStdString();
    }
    EXPECT_FALSE(m_volumes.unmountAndEject(m_folder));
    EXPECT_THAT(events(0), IsEmpty());
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("stick/sub"))));
}
