#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QProgressBar;
class StickWatch;

/// What the helper does now, with the buttons for it. Main thread.
class SyncPanel : public QWidget
{
    Q_OBJECT
public:
    struct Actions
    {
        QAction *preview;
        QAction *sync;
        QAction *cancel;
        QAction *eject;
    };
    /// What is given outlives it.
    SyncPanel(const StickWatch &watch, const Actions &actions, QWidget *parent = nullptr);

private:
    void refresh();
    void showProgress();

    const StickWatch &m_watch;
    const Actions m_actions;
    QLabel *m_status;
    QLabel *m_subText;
    QProgressBar *m_progress;
    QLabel *m_pace;
};
