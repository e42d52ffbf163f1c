#pragma once

#include <QWidget>

class HelperConnection;

/// The helper's log in a window of its own. Main thread.
class LogWindow : public QWidget
{
    Q_OBJECT
public:
    explicit LogWindow(HelperConnection *helper, QWidget *parent = nullptr);
};
