#pragma once

class QAction;
class QMainWindow;

/// The window's menus. Main thread.
namespace WindowMenus {

struct Actions
{
    QAction *sync;
    QAction *cancel;
    QAction *preview;
    QAction *eject;
    QAction *report;
    QAction *quit;
    QAction *find;
    QAction *reload;
    QAction *settings;
    QAction *log;
    QAction *firstStart;
};

/// Makes them in the window, which owns the actions.
Actions make(QMainWindow &window);

} // namespace WindowMenus
