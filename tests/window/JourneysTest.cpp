#include "programs/ProgramHarness.h"
#include "support/RunTests.h"

#include "frontend/HelperConnection.h"
#include "frontend/Preferences.h"
#include "platform/bus/RemoteObject.h"
#include "window/MainWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace {

/// The window as its user meets it, on the real helper: what is seen is what assistive programs are
/// told, what is done is done with keys and by pressing what is shown.
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

    void plugIn() const { ASSERT_TRUE(QDir().rename(m_programs.path(u"MEMORYSTICK"_s), stick())); }
    void pull() const { ASSERT_TRUE(QDir().rename(stick(), m_programs.path(u"MEMORYSTICK"_s))); }
    QString stick(const QString &file = {}) const
    {
        return m_programs.path(u"volumes/MEMORYSTICK"_s) + file;
    }

    static QList<QAccessibleInterface *> shown()
    {
        QList<QAccessibleInterface *> all;
        // A dialog stands before the window.
        const QWidget *dialog = QApplication::activeModalWidget();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (dialog ? window == dialog : window->isVisible() && window->isWindow())
                all.append(QAccessible::queryAccessibleInterface(window));
        }
        for (qsizetype i = 0; i < all.size(); ++i) {
            for (int child = 0; child < all[i]->childCount(); ++child) {
                QAccessibleInterface *each = all[i]->child(child);
                if (each && !each->state().invisible)
                    all.append(each);
            }
        }
        return all;
    }

    static QAccessibleInterface *find(QAccessible::Role role, const QString &name)
    {
        for (QAccessibleInterface *each : shown()) {
            if (each->role() == role && each->text(QAccessible::Name).startsWith(name) &&
                !each->state().disabled)
                return each;
        }
        return nullptr;
    }

    static bool sees(const QString &text)
    {
        return waitFor(
            [&text] {
                return std::ranges::any_of(shown(), [&text](const QAccessibleInterface *each) {
                    return each->text(QAccessible::Name).contains(text) ||
                           each->text(QAccessible::Description).contains(text);
                });
            },
            std::chrono::seconds(20));
    }
    static std::string screen()
    {
        QStringList texts;
        for (const QAccessibleInterface *each : shown())
            texts.append(each->text(QAccessible::Name));
        texts.removeAll(QString());
        return joined(texts).substr(0, 3000);
    }

    static void press(const QString &button)
    {
        ASSERT_TRUE(
            waitFor([&] { return find(QAccessible::Button, button); }, std::chrono::seconds(20)))
            << button.toStdString() << " in:\n"
            << screen();
        find(QAccessible::Button, button)
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
    }

    static void type(QWidget *widget, const QString &text)
    {
        for (const QChar letter : text) {
            const int key = letter.toUpper().unicode();
            for (const auto kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(kind, key, Qt::NoModifier, letter);
                QApplication::sendEvent(widget, &event);
            }
        }
    }

    /// Goes to the row of that name in a list, and presses the keys there.
    static void inList(const QString &list, const QString &row, const QString &keys = {})
    {
        const auto cell = [&]() -> QAccessibleInterface * {
            for (QAccessibleInterface *each : shown()) {
                if (each->text(QAccessible::Name).startsWith(row) && each->parent() &&
                    each->parent()->text(QAccessible::Name) == list)
                    return each;
            }
            return nullptr;
        };
        ASSERT_TRUE(waitFor(cell, std::chrono::seconds(20))) << row.toStdString() << " in:\n"
                                                             << screen();
        auto *widget = qobject_cast<QWidget *>(cell()->parent()->object());
        ASSERT_TRUE(widget);
        type(widget, row + keys);
    }

    static void picture(const QString &name)
    {
        const QString folder = qEnvironmentVariable("CARAVEL_PICTURES");
        if (folder.isEmpty())
            return;
        const auto windows = QApplication::topLevelWidgets();
        const QWidget *dialog = QApplication::activeModalWidget();
        QApplication::processEvents();
        for (QWidget *each : windows) {
            if (dialog ? each == dialog : each->isVisible() && each->isWindow())
                each->grab().save(folder + u'/' + name + u".png"_s);
        }
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
    picture(u"first-start"_s);
    press(u"Begin"_s);
    EXPECT_SEES("No PSP is connected");
    inList(u"Playlist"_s, u"Quiet"_s, u" "_s);
    plugIn();
    EXPECT_SEES("MEMORYSTICK");
    EXPECT_SEES("Capacity of the Memory Stick after the sync");
    picture(u"music"_s);

    press(u"Sync Now"_s);
    EXPECT_SEES("To remove, though no sync placed them (1)");
    EXPECT_SEES("PSP/MUSIC/Old/stale.mp3");
    EXPECT_SEES("They will be removed from it, but are kept: copies of them come to lie in");
    EXPECT_SEES("Music: to copy (1)");
    EXPECT_EQ(readFile(stick(u"/PSP/MUSIC/Old/stale.mp3"_s)), "stale");
    picture(u"preview"_s);
    press(u"Sync Now"_s);
    EXPECT_SEES("The sync is complete");
    EXPECT_SEES("1 kept on this computer");
    EXPECT_EQ(readFile(stick(u"/PSP/MUSIC/Record/000. Two.mp3"_s)), "two");
    picture(u"done"_s);
    press(u"Show Report"_s);
    EXPECT_SEES("Kept on this computer, as no sync had placed them (1)");
    picture(u"report"_s);
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
    QFile(m_programs.path(u"home/Music/1.mp3"_s)).resize(600 << 20);
    writeFile(m_programs.path(u"MEMORYSTICK/.caravel/known"_s), {}); // synced before
    openWindow();
    press(u"Begin"_s);
    inList(u"Playlist"_s, u"Road Trip"_s, u" "_s);
    plugIn();
    EXPECT_SEES("MEMORYSTICK");
    press(u"Sync Now"_s);
    press(u"Cancel Sync"_s);
    EXPECT_SEES("The sync was cancelled");
    EXPECT_FALSE(QFile::exists(stick(u"/PSP/MUSIC/Record/000. One.mp3"_s)));
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
