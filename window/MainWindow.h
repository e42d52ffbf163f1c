#pragma once

#include "window/MessageBar.h"
#include "window/WindowMenus.h"

#include <QMainWindow>
#include <QPointer>

class CapacityBar;
class HelperConnection;
struct Kind;
class LogWindow;
class Planner;
class PreviewDialog;
class QListWidget;
class QStackedWidget;
class StickWatch;

/// The window: the stick, the kinds of media, and what a sync would do. Main thread.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// The helper's connection outlives it.
    explicit MainWindow(HelperConnection *helper);

    /// Brings the window to the front of all.
    void raiseWindow();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *makeMiddle();
    void addPage(const Kind &kind);
    void connectActions(const WindowMenus::Actions &actions);
    void followHelper();

    void helperChanged();
    void reload();
    void startSync();
    void syncOrPreview();
    void showPreview();
    void openPreview();
    void eject();
    void stickChanged();
    void syncDidFinish();
    void showAlert(const QString &title, const QString &text, int style);
    void showFirstStart();
    void showReport();
    void showSettings();
    void showLog();
    void find();

    HelperConnection *m_helper;
    StickWatch *m_watch;
    Planner *m_planner;
    MessageBar *m_messages;
    QListWidget *m_kinds;
    QStackedWidget *m_pages;
    CapacityBar *m_capacity;
    QPointer<PreviewDialog> m_preview;
    QPointer<LogWindow> m_log;
    bool m_looksFirst = false; // a sync waits for the plan: the preview may have to come first
    bool m_ejects = false;     // we asked for it
    bool m_firstStart = true;  // not looked at yet
};
