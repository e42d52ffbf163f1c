// Takes the guide's pictures: the window in a sample home, with the helper that it starts itself.
// Usage: pictures FOLDER [dark] -- in the environment of scripts/pictures.sh.
#include "frontend/HelperConnection.h"
#include "frontend/HelperProcess.h"
#include "frontend/Preferences.h"
#include "platform/core/Localized.h"
#include "window/MainWindow.h"
#include "window/WindowStyle.h"
#include "window/WindowUser.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

using namespace WindowUser;
using namespace std::chrono_literals;

QPalette darkPalette()
{
    const QColor window(0x2a2e32);
    const QColor text(0xf0f0f0);
    QPalette palette(window, window);
    palette.setColor(QPalette::Base, QColor(0x1b1e20));
    palette.setColor(QPalette::AlternateBase, QColor(0x232629));
    palette.setColor(QPalette::Button, QColor(0x3a3f44));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::HighlightedText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, QColor(0x84898e));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(0x9a9fa4));
    palette.setColor(QPalette::ToolTipBase, QColor(0x31363b));
    palette.setColor(QPalette::Highlight, QColor(0x2d6ea8));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x3a3f44));
    palette.setColor(QPalette::Link, QColor(0x6ab0f3));
    return palette;
}

/// What comes late, as thumbnails and the plan do, is there.
void settle(std::chrono::milliseconds time = 1500ms)
{
    waitFor([] { return false; }, time);
}

class Pictures
{
public:
    Pictures(QString folder, QString ending)
        : m_folder(std::move(folder))
        , m_ending(std::move(ending))
    {
        m_helper.frontEnd().setIsOpen(true);
        m_window = std::make_unique<MainWindow>(&m_helper);
        m_window->resize(960, 700);
        m_window->show();
        m_helper.search();
    }

    void take()
    {
        choose();
        plugIn();
        firstSync();
        afterwards();
    }

private:
    void picture(const QString &name, std::chrono::milliseconds time = 1500ms) const
    {
        settle(time);
        WindowUser::picture(m_folder, name + m_ending);
    }
    static QString volume(const QString &name)
    {
        return qEnvironmentVariable("CARAVEL_VOLUMES") + u'/' + name;
    }
    static void goTo(const char *kind) { inList(localized("Kinds of media"), localized(kind)); }
    static void check(const char *list, const QStringList &rows)
    {
        for (const QString &row : rows) {
            inList(localized(list), row, u" "_s);
            settle(600ms); // what was typed is forgotten
        }
    }

    void choose() const
    {
        sees(localized("Where are your media?"));
        picture(u"first-start"_s);
        press(localized("Begin"));
        check("Playlist", {u"Road"_s, u"Sunday"_s, u"Evening"_s});
        picture(u"no-stick"_s);
        goTo("Photos");
        check("Album", {u"Harbour"_s, u"Mountains"_s, u"Winter"_s});
        goTo("Movies");
        check("Movie", {u"Lighthouse"_s});
        goTo("Bookmarks");
        check("Folder", {u"Bookmarks"_s});
    }

    void plugIn() const
    {
        goTo("Music");
        QDir().rename(volume(u".waiting"_s), volume(u"MEMORYSTICK"_s));
        sees(u"MEMORYSTICK"_s);
        picture(u"music"_s, 3s);
        goTo("Photos");
        picture(u"photos"_s);
        goTo("Bookmarks");
        picture(u"bookmarks"_s);
        goTo("Contacts");
        picture(u"contacts"_s);
    }

    void firstSync() const
    {
        goTo("Music");
        press(localized("Sync Now"));
        sees(localized("To remove, though no sync placed them"));
        picture(u"preview"_s);
        press(localized("Sync Now"));
        watchCopying();
        sees(localized("The sync is complete"));
        picture(u"done"_s);
        press(localized("Show Report..."));
        picture(u"report"_s);
        press(localized("Close"));
    }

    /// At a real stick's pace: the helper has a short turn now and then.
    void watchCopying() const
    {
        const auto helper = [](const QString &signal) {
            QProcess::execute(u"pkill"_s, {signal, u"-x"_s, u"caravel-helper"_s});
        };
        const auto isHalfDone = [] {
            QAccessibleInterface *bar = find(QAccessible::ProgressBar, {});
            return bar && bar->valueInterface()->currentValue().toInt() >= 50;
        };
        for (int turn = 0; turn < 400 && !isHalfDone(); ++turn) {
            helper(u"-CONT"_s);
            settle(10ms);
            helper(u"-STOP"_s);
            settle(40ms);
        }
        picture(u"syncing"_s, 0ms);
        helper(u"-CONT"_s);
    }

    void afterwards()
    {
        goTo("Game Saves");
        inList(localized("Game"), Qt::Key_Down);
        settle();
        inList(localized("Backups"), Qt::Key_Down);
        picture(u"saves"_s);
        press(localized("Restore..."));
        picture(u"restore"_s);
        press(localized("Cancel"));
        goTo("Movies");
        m_helper.ask(Protocol::addMoviesFromArray,
                     {QStringList{QDir::homePath() + u"/Videos/Regatta.avi"_s}}, m_window.get(),
                     [](const QVariant &) {});
        picture(u"movies"_s, 4s);
        choose(u"settings"_s, localized("Settings..."));
        choose(u"log"_s, localized("Log"));
    }

    void choose(const QString &name, const QString &item) const
    {
        for (QAction *action : m_window->findChildren<QAction *>()) {
            if (action->text() == item)
                action->trigger();
        }
        picture(name);
        for (QWidget *each : QApplication::topLevelWidgets()) {
            if (each->parentWidget())
                each->close();
        }
    }

    const QString m_folder;
    const QString m_ending;
    HelperConnection m_helper;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(throw_on_failure, true);
    const bool isDark = application.arguments().value(2) == u"dark";
    QApplication::setStyle(u"Fusion"_s);
    WindowStyle::install();
    if (isDark)
        QApplication::setPalette(darkPalette());
    installTranslations(HelperProcess::bundle().resourcePath() + u"/translations"_s);
    Preferences::begin();
    Pictures(application.arguments().value(1), isDark ? u"-dark"_s : QString()).take();
    return 0;
}
