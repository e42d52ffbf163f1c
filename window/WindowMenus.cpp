#include "window/WindowMenus.h"

#include "platform/core/Localized.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

QAction *add(QMenu &menu, const QString &text, const QKeySequence &keys,
             const QString &meaning = {})
{
    QAction *action = menu.addAction(text);
    action->setShortcut(keys);
    action->setStatusTip(meaning);
    return action;
}

} // namespace

WindowMenus::Actions WindowMenus::make(QMainWindow &window)
{
    Actions actions{};
    QMenu &file = *window.menuBar()->addMenu(localized("&PSP"));
    actions.sync = add(file, localized("Sync Now"), Qt::CTRL | Qt::Key_S,
                       localized("Brings the Memory Stick up to date with your selection"));
    actions.cancel = add(file, localized("Cancel Sync"), Qt::Key_Escape,
                         localized("Stops the sync; the next one completes it"));
    actions.preview = add(file, localized("Preview..."), Qt::CTRL | Qt::Key_P,
                          localized("Shows what a sync would do, without doing it"));
    actions.eject = add(file, localized("Eject PSP"), Qt::CTRL | Qt::Key_E,
                        localized("Writes out all that waits and lets go of the Memory Stick"));
    actions.report = add(file, localized("Last Sync..."), {});
    file.addSeparator();
    actions.quit = add(file, localized("Quit"), Qt::CTRL | Qt::Key_Q);
    QMenu &edit = *window.menuBar()->addMenu(localized("&Edit"));
    actions.find = add(edit, localized("Find"), QKeySequence::Find);
    actions.reload = add(edit, localized("Read Anew"), QKeySequence::Refresh);
    edit.addSeparator();
    actions.settings = add(edit, localized("Settings..."), Qt::CTRL | Qt::Key_Comma);
    QMenu &help = *window.menuBar()->addMenu(localized("&Help"));
    actions.firstStart = add(help, localized("Where Your Media Are..."), {});
    actions.log = add(help, localized("Log"), Qt::CTRL | Qt::Key_L);
    return actions;
}
