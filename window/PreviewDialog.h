#pragma once

#include "window/FileGroups.h"

#include <QDialog>

class Planner;
class QLabel;
class QPushButton;
class StickWatch;

/// What a sync would do, before it is done. Follows the plan and the stick. Main thread.
class PreviewDialog : public QDialog
{
    Q_OBJECT
public:
    /// Both outlive it.
    PreviewDialog(Planner &planner, const StickWatch &watch, QWidget *parent = nullptr);

Q_SIGNALS:
    void syncWanted();

private:
    void showPlan();
    void readItems();
    void updateState();

    Planner &m_planner;
    const StickWatch &m_watch;
    FileGroups m_files;
    QLabel *m_totals;
    QLabel *m_strangers;
    QPushButton *m_sync;
};
