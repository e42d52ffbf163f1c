#pragma once

#include <QMainWindow>

class HelperConnection;
class KindPage;
class QListWidget;
class QStackedWidget;

/// The window: the stick, the kinds of media, and what a sync would do. Main thread.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// The helper's connection outlives it.
    explicit MainWindow(HelperConnection *helper);

private:
    void addPages();

    HelperConnection *m_helper;
    QListWidget *m_kinds;
    QStackedWidget *m_pages;
};
