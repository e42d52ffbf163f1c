#include "programs/ProgramHarness.h"
#include "support/RunTests.h"

#include "frontend/HelperConnection.h"
#include "frontend/Preferences.h"
#include "platform/bus/RemoteObject.h"
#include "support/PSFFile.h"
#include "window/MainWindow.h"
#include "window/WindowUser.h"

#include <QApplication>
#include <QDir>

#include <gtest/gtest.h>

namespace {

using namespace WindowUser;

/// The window as its user meets it, on the real helper.
class Journeys : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("HOME", m_programs.path(u"home"_s).toUtf8());
        qputenv("CARAVEL_VOLUMES", m_programs.path(u"volumes"_s).toUtf8());
        m_programs.addTrack(u"One"_s, "one");
        m_programs.addTrack(u"Two"_s, "two");
        Preferences::begin();
        m_programs.startHelper();
    }

    void openWindow()
    {
        m_helper = std::make_unique<HelperConnection>();
        m_helper->frontEnd().setIsOpen(true);
        m_window = std::make_unique<MainWindow>(m_helper.get());
        m_window->show();
        m_helper->search();
    }

    /// Selects a playlist with a new file of that size; the stick has been synced before.
    void selectToCopy(qint64 size)
    {
        QFile(m_programs.path(u"home/Music/1.mp3"_s)).resize(size);
        writeFile(m_programs.path(u"MEMORYSTICK/.caravel/known"_s), {});
        openWindow();
        press(u"Begin"_s);
        inList(u"Playlist"_s, u"Road"_s, u" "_s);
    }

    void plugIn() const { ASSERT_TRUE(QDir().rename(m_programs.path(u"MEMORYSTICK"_s), stick())); }
    void pull() const { ASSERT_TRUE(QDir().rename(stick(), m_programs.path(u"MEMORYSTICK"_s))); }
    QString stick(const QString &file = {}) const
    {
        return m_programs.path(u"volumes/MEMORYSTICK"_s) + file;
    }

    ProgramHarness m_programs;
    std::unique_ptr<HelperConnection> m_helper;
    std::unique_ptr<MainWindow> m_window;
};

#define EXPECT_SEES(text) EXPECT_TRUE(sees(QStringLiteral(text))) << (text) << " in:\n" << screen()

TEST_F(Journeys, FirstSyncOfAStickWithMusicOfItsOwn)
{
    openWindow();
    EXPECT_SEES("Where are your media?");
    EXPECT_SEES("iTunes (2 entries)");
    press(u"Begin"_s);
    EXPECT_SEES("No PSP is connected");
    inList(u"Playlist"_s, u"Quiet"_s, u" "_s);
    plugIn();
    EXPECT_SEES("MEMORYSTICK");
    EXPECT_SEES("Capacity of the Memory Stick after the sync");

    press(u"Sync Now"_s);
    EXPECT_SEES("To remove, though no sync placed them (1)");
    EXPECT_SEES("PSP/MUSIC/Old/stale.mp3");
    EXPECT_SEES("They will be removed from it, but are kept: copies of them come to lie in");
    EXPECT_SEES("Music: to copy (1)");
    EXPECT_EQ(readFile(stick(u"/PSP/MUSIC/Old/stale.mp3"_s)), "stale");
    press(u"Sync Now"_s);
    EXPECT_SEES("The sync is complete");
    EXPECT_SEES("1 kept on this computer");
    EXPECT_EQ(readFile(stick(u"/PSP/MUSIC/Record/000. Two.mp3"_s)), "two");
    press(u"Show Report"_s);
    EXPECT_SEES("Kept on this computer, as no sync had placed them (1)");
    press(u"Close"_s);

    press(u"Eject PSP"_s);
    EXPECT_SEES("You can disconnect the PSP now.");
    EXPECT_SEES("No PSP is connected");
}

TEST_F(Journeys, AStickThatGoes)
{
    openWindow();
    press(u"Begin"_s);
    plugIn();
    press(u"Preview"_s);
    EXPECT_SEES("PSP/MUSIC/Old/stale.mp3");
    pull();
    EXPECT_SEES("No PSP is connected.");
    EXPECT_FALSE(find(QAccessible::Button, u"Sync Now"_s));
}

TEST_F(Journeys, ACancelledSync)
{
    constexpr qint64 size = 600 << 20;
    selectToCopy(size);
    plugIn();
    EXPECT_SEES("MEMORYSTICK");
    press(u"Sync Now"_s);
    press(u"Cancel Sync"_s);
    EXPECT_SEES("The sync was cancelled");
    const qint64 copied = QFile(stick(u"/PSP/MUSIC/Record/000. One.mp3"_s)).size();
    EXPECT_TRUE(copied == 0 || copied == size) << "a part of a file: " << copied;
}

TEST_F(Journeys, ASyncThatTheWindowLeavesAlone)
{
    constexpr qint64 size = 200 << 20;
    selectToCopy(size);
    EXPECT_EQ(type(Qt::Key_F, Qt::ControlModifier), "Search");
    for (const Qt::Key key : {Qt::Key_Q, Qt::Key_U, Qt::Key_I})
        type(key);
    EXPECT_SEES("selected and out of sight: 1");
    plugIn();
    EXPECT_SEES("MEMORYSTICK");
    press(u"Sync Now"_s);
    EXPECT_TRUE(waitFor([&] { return find(QAccessible::Button, u"Cancel Sync"_s); }));
    m_window.reset();
    m_helper.reset();
    m_programs.shell(u"until caravel status | grep 'Sync Successful'; do sleep 0.1; done"_s);
    EXPECT_EQ(QFile(stick(u"/PSP/MUSIC/Record/000. One.mp3"_s)).size(), size);
}

TEST_F(Journeys, AGameSaveComesBack)
{
    const QString save = u"/PSP/SAVEDATA/ULUS10001/"_s;
    const QString waiting = m_programs.path(u"MEMORYSTICK"_s);
    PSFFile parameters;
    parameters.add("TITLE", 2, "Lighthouse");
    writeFile(waiting + save + u"PARAM.SFO"_s, parameters.contents());
    writeFile(waiting + save + u"ICON0.PNG"_s, "no picture");
    writeFile(waiting + save + u"DATA.BIN"_s, "night 3");
    writeFile(waiting + u"/.caravel/known"_s, {}); // synced before
    openWindow();
    press(u"Begin"_s);
    plugIn();
    inList(u"Kinds of media"_s, u"Game"_s);
    EXPECT_SEES("The sync is complete");
    writeFile(stick(save + u"DATA.BIN"_s), "night 4");
    type(Qt::Key_F5);
    EXPECT_SEES("Newer on the PSP than what is kept");
    inList(u"Game"_s, Qt::Key_Down);
    EXPECT_SEES("Backups of Lighthouse");
    inList(u"Backups"_s, Qt::Key_Down);
    press(u"Restore..."_s);
    EXPECT_SEES("Put the backup of “Lighthouse” from");
    EXPECT_SEES("is kept as the newest backup, and then replaced.");
    press(u"Restore"_s);
    EXPECT_SEES("The game save is on the PSP.");
    EXPECT_EQ(readFile(stick(save + u"DATA.BIN"_s)), "night 3");
}

TEST_F(Journeys, KeysAloneReachEverything)
{
    openWindow();
    press(u"Begin"_s);
    plugIn();
    EXPECT_SEES("Capacity of the Memory Stick after the sync");
    for (const QString &button : {u"Preview"_s, u"Select All"_s})
        EXPECT_TRUE(waitFor([&] { return find(QAccessible::Button, button); }));
    std::string order;
    for (int step = 0; step < 10; ++step)
        order += type(Qt::Key_Tab) + "|";
    EXPECT_EQ(order, "Sync music|Search|Select All|Select None|Playlist|Preview|Eject PSP|"
                     "Sync Now|Kinds of media|Sync music|");
    EXPECT_EQ(type(Qt::Key_F, Qt::ControlModifier), "Search");
    type(Qt::Key_L, Qt::ControlModifier);
    EXPECT_SEES("Keeps the newest line in sight.");
    EXPECT_EQ(nameless(), "");
    type(Qt::Key_W, Qt::ControlModifier);
    m_window->activateWindow();
    type(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_SEES("Start at login");
    for (int page = 0; page < 7; ++page) {
        EXPECT_EQ(nameless(), "");
        type(Qt::Key_Tab, Qt::ControlModifier);
    }
    type(Qt::Key_Escape);
    type(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(Journeys, AHelperThatDies)
{
    openWindow();
    press(u"Begin"_s);
    plugIn();
    EXPECT_SEES("MEMORYSTICK");
    m_programs.helper().kill();
    EXPECT_SEES("Starting...");
    EXPECT_SEES("MEMORYSTICK");
    // The one that took its place goes with the last front-end.
    m_programs.shell(u"caravel prefs startOnLogin no"_s);
    m_window.reset();
    m_helper.reset();
    RemoteObject helper(ProgramHarness::helperBusName(), {}, {});
    EXPECT_TRUE(waitFor([&] { return !helper.isAvailable(); }));
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return runTests<QApplication>(argc, argv);
}
